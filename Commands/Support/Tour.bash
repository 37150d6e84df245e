# SPDX-License-Identifier: MIT
# The tour of the coffee machine.

demo=build/demo/Examples/CoffeeMachine/CoffeeMachine

build_demo()
{
    build demo CoffeeMachine
}

play_tour()
{
    "$demo" --play
}
