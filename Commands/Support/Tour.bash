# SPDX-License-Identifier: MIT
# The tour of the coffee machine.

build_demo()
{
    build demo CoffeeMachine
}

play_tour()
{
    build/demo/Examples/CoffeeMachine/CoffeeMachine Examples/CoffeeMachine/Tour.scenario
}
