# SPDX-License-Identifier: MIT
# Group: check
# Help: | the simulator in a terminal, driven as a person does: keys, mouse, sizes, signals, 10,000 random keys
# Needs: @tests tmux
# Gate: 069
# Figure: simulator
source Commands/Support/Command.bash

build test CoffeeMachine FaultySimulator ListeningDevice dialogsim
quietly simulator-install cmake --install build/test --component Tools --prefix build/simulator/installed
python3 -B Tests/Simulator/DriveTerminal.py build/test/Examples/CoffeeMachine/CoffeeMachine \
    build/test/Tests/Simulator/FaultySimulator >build/logs/simulator.log || {
    tail -n 40 build/logs/simulator.log >&2
    fail 'the simulator in a terminal does not do what it should; see build/logs/simulator.log'
}
python3 -B Tests/Simulator/DriveDialogSim.py build/simulator/installed/bin/dialogsim Examples/Flows/WashingMachine.xml \
    build/test/Tests/Simulator/ListeningDevice >build/logs/dialogsim.log || {
    tail -n 40 build/logs/dialogsim.log >&2
    fail 'dialogsim does not do what it should; see build/logs/dialogsim.log'
}
rm -rf build/simulator/page
mkdir build/simulator/page
python3 -B Tests/Flow/TryPage.py Docs/Simulator.md build/simulator/installed/bin/dialogsim build/simulator/page ||
    fail 'Docs/Simulator.md shows something else'
report_figure "the simulator in a terminal: $(tail -n 1 build/logs/simulator.log); $(tail -n 1 build/logs/dialogsim.log)"
