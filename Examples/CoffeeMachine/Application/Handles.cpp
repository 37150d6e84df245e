#include "Examples/CoffeeMachine/Application/Handles.h"

GUI_DEFINE_OBJECT_HANDLES(COFFEE_MACHINE_HANDLES)
