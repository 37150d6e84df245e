#include "Application.h"

int main()
{
    return RunApplication();
}
