# SPDX-License-Identifier: MIT
"""Changes the library in many small ways, one at a time, and runs the tests, which should notice each change.

./run help shows how to call it; Survivors.txt says what to do about a mutant that survives.
"""

import argparse
import concurrent.futures
import difflib
import hashlib
import math
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading

import MutantFinder

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
REQUIRED_SCORE = 98.0

# The mutated sources. For those that must be compiled separately, the tests to compile with them; for a header, code
# that makes the compiler instantiate its templates.
LIST_TESTS = ['Tests/Unit/Core/Utils/ListTest.cpp', 'Tests/Unit/Core/Utils/SafeIteratorTest.cpp']
MANAGER_TESTS = ['Tests/Unit/Core/DialogManager/*.cpp', 'Tests/HookMatrix/*.cpp']
RECORD_TESTS = ['Tests/Unit/Core/DialogManager/DialogManagerObjectTest.cpp',
                'Tests/Unit/Core/DialogManager/PopupRegistryTest.cpp']
TREE_TESTS = ['Tests/Unit/Core/Control/*.cpp']
TRACE_TESTS = ['Tests/Unit/Core/Trace*.cpp']
LOADER_TESTS = ['Tests/Unit/Loader/*.cpp']
LIST_UNIT = """#include "Core/Utils/eC_TList_doubleLinked.h"
struct Element_t
{
    bool operator==(const Element_t& kOther) const;
    bool operator>(const Element_t& kOther) const;
};
template class eC_TListDoubleLinked<Element_t>;
template class eC_TIterator<Element_t>;
template class eC_TSafeIterator<Element_t>;
"""
MUTATED = {
    'Source/Core/GUIDialogManager.cpp': (MANAGER_TESTS, None),
    'Include/Core/GUIDialogManager.h': (RECORD_TESTS, ''),
    'Include/Core/Utils/eC_TList_doubleLinked.h': (LIST_TESTS, LIST_UNIT),
    'Include/Core/Utils/eC_TList_Iterators.h': (LIST_TESTS, LIST_UNIT),
    'Include/Core/Utils/SafeGUIObjectPtr.h': (LIST_TESTS, ''),
    'Source/Core/Utils/SafeGUIObjectPtr.cpp': (LIST_TESTS, None),
    'Source/Core/GUITimer.cpp': (['Tests/Unit/Core/TimerTest.cpp'], None),
    'Include/Core/GUITimer.h': (['Tests/Unit/Core/TimerTest.cpp'], ''),
    'Source/Core/Control/GUIObjectIndex.cpp': (['Tests/Unit/Core/Control/*.cpp'], None),
    'Include/Core/Control/GUIObjectIndex.h': (['Tests/Unit/Core/Control/*.cpp'], ''),
    'Source/Core/Control/GUIObject.cpp': (TREE_TESTS, None),
    'Include/Core/Control/GUIObject.h': (TREE_TESTS, ''),
    'Source/Core/Control/GUICompositeObject.cpp': (TREE_TESTS, None),
    'Include/Core/Control/GUICompositeObject.h': (TREE_TESTS, ''),
    'Source/Core/Control/GUI.cpp': (TREE_TESTS, None),
    'Include/Core/Control/GUI.h': (TREE_TESTS, ''),
    'Source/Core/GUIEventHandler.cpp': (TREE_TESTS, None),
    'Include/Core/GUIEventHandler.h': (TREE_TESTS, ''),
    'Source/Core/Utils/eC_String.cpp': (['Tests/Unit/Core/Utils/StringTest.cpp'], None),
    'Include/Core/Utils/eC_String.h': (['Tests/Unit/Core/Utils/StringTest.cpp'], ''),
    'Source/Core/GUITrace.cpp': (TRACE_TESTS, None),
    'Include/Core/GUITrace.h': (TRACE_TESTS, ''),
    'Source/Core/GUIFactoryManager.cpp': (['Tests/Unit/Core/FactoryTest.cpp'], None),
    'Include/Core/GUIFactoryManager.h': (['Tests/Unit/Core/FactoryTest.cpp'], ''),
    'Source/Core/GUIAnimatable.cpp': (['Tests/Unit/Core/AnimatableTest.cpp'], None),
    'Source/GUIConfig/GUIObjectHandleNames.cpp': (['Tests/Unit/GUIConfig/*.cpp'], None),
    'Loader/GUIDialogROMReader.cpp': (LOADER_TESTS, None),
    'Loader/GUIDialogXMLReader.cpp': (LOADER_TESTS, None),
    'Loader/DialogTreeBuilder.cpp': (LOADER_TESTS, None),
    'Loader/DialogTreeBuilder.h': (LOADER_TESTS, ''),
    'Loader/DialogDocument.cpp': (LOADER_TESTS, None),
    'Loader/DialogDocument.h': (LOADER_TESTS, ''),
    'Loader/DialogElements.h': (LOADER_TESTS, ''),
    'Loader/DialogFileError.cpp': (LOADER_TESTS, None),
    'Loader/DialogParser.cpp': (LOADER_TESTS, None),
    'Loader/DialogParser.h': (LOADER_TESTS, ''),
    'Loader/RegularFile.cpp': (LOADER_TESTS, None),
    'Loader/UTF8Text.cpp': (LOADER_TESTS, None),
    'Loader/UTF8Text.h': (LOADER_TESTS, ''),
    'Loader/XMLErrorExplainer.cpp': (LOADER_TESTS, None),
    'Loader/XMLErrorExplainer.h': (LOADER_TESTS, ''),
}
# The library without its own table of handles, which the unit tests replace with theirs.
LIBRARY = ['Source/Core/**/*.cpp', 'Source/GUIConfig/GUIObjectHandleNames.cpp', 'Scenario/*.cpp',
           'Loader/*.cpp', 'TestSupport/*.cpp', 'Tests/AllocationCounter/*.cpp', 'Tests/Unit/*.cpp']
TESTS = ['Tests/Unit/Core/**/*.cpp', 'Tests/Unit/GUIConfig/*.cpp', 'Tests/Unit/Loader/*.cpp', 'Tests/HookMatrix/*.cpp']
COPIED = ['Include', 'Source', 'Loader', 'Scenario', 'TestSupport', 'Tests/AllocationCounter', 'Tests/HookMatrix',
          'Tests/Unit']
INCLUDES = ['Include', '.']

# dialogc is a program of its own, which its tests start.
COMPILER_TESTS = [f'Tests/CompiledDialogs/{name}.cpp' for name in (
    'DialogArgumentsTest', 'DialogOutputTest', 'DialogPathsTest', 'DialogTablesTest')]
COMPILER_MUTATED = {f'Loader/Compiler/{name}.cpp': (COMPILER_TESTS, None) for name in (
    'CompilerTask', 'ConstantName', 'DialogCompiler', 'DialogSource', 'Main', 'OutputFiles')}
COMPILER_PROGRAM = ['Source/**/*.cpp', 'Loader/*.cpp', 'Loader/Compiler/*.cpp']

NUMBERS = 2000

# Seconds of processor time, so that a mutant that runs forever is noticed: for the start of a program, for tests beside
# four times what they take without a mutant, and for those that are tried first because they take the least.
START = 3
TESTS_BESIDE = 1
FIRST_TESTS = 0.2
SANITIZERS = {
    'ASAN_OPTIONS': 'symbolize=0:detect_leaks=1:hard_rss_limit_mb=1000:max_allocation_size_mb=500',
    'UBSAN_OPTIONS': 'symbolize=0',
}


class Server:
    """A test program that has started and forks for each mutant."""

    def __init__(self, program, directory):
        environment = dict(os.environ, MUTANTS_SERVED='1', GTEST_FAIL_FAST='1', GTEST_BRIEF='1', **SANITIZERS)
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=environment,
                                        cwd=directory, text=True)

    def run(self, number, seconds, log, tests):
        """Returns the status of the tests as subprocess has it."""
        self.process.stdin.write(f'{number} {seconds} {log} {tests}\n')
        self.process.stdin.flush()
        return os.waitstatus_to_exitcode(int(self.process.stdout.readline()))

    def end(self):
        self.process.communicate()


class Project:
    """What is mutated, where, and with which tests."""

    def __init__(self, root, build, mutated, library, tests, copied, includes, program=()):
        """`program` are the sources of a program that the tests start."""
        self.root = root
        self.build = build
        self.mutated = mutated
        self.library = library
        self.tests = tests
        self.copied = copied
        self.includes = includes
        self.program = program
        self.sources = []
        self.mutants = []
        self.seconds = {}  # of processor time for each test
        self.servers = []
        self.of_thread = threading.local()
        self.tests_program = build / 'switchable/MutationTests'

    # ---- The mutants

    def find_mutants(self):
        arguments = ['-std=c++17', f'-include{HERE}/Mutants.h']
        arguments += [f'-I{self.root / directory}' for directory in self.includes]
        for index, (name, (_, header_unit)) in enumerate(self.mutated.items()):
            path = str(self.root / name)
            unit = path
            if header_unit is not None:
                unit = str(self.build / 'units' / (name.replace('/', '_') + '.cpp'))
                write_if_different(pathlib.Path(unit), f'#include "{path}"\n{header_unit}')
            source = MutantFinder.Source(name, path, unit, arguments)
            # Each source has its own range of numbers, so a change to one source does not renumber the others.
            for number, mutant in enumerate(source.mutants, 1 + index * NUMBERS):
                mutant.number = number
            assert len(source.mutants) < NUMBERS
            memory = self.build / 'units' / (name.replace('/', '_') + '.alone')
            source.compile_alone_what_cannot_be_switched(unit, arguments, memory)
            self.sources.append(source)
            self.mutants += source.mutants

    def write_tree(self, tree, changed):
        """Copies the sources, with the text in `changed` where there is one."""
        wanted = set()
        for directory in self.copied:
            for path in sorted((self.root / directory).rglob('*')):
                if path.suffix in ('.h', '.cpp'):
                    name = str(path.relative_to(self.root))
                    wanted.add(name)
                    write_if_different(tree / name, changed.get(name) or path.read_text(encoding='utf-8'))
        for path in tree.rglob('*'):
            if path.is_file() and str(path.relative_to(tree)) not in wanted:
                path.unlink()

    def compile(self, tree, build, tests):
        """Builds the test program. Returns false if it does not compile."""
        sources, program = [';'.join(str(path.relative_to(tree)) for expression in expressions
                                     for path in sorted(tree.glob(expression)))
                            for expressions in (self.library + tests, self.program)]
        environment = dict(os.environ)
        if shutil.which('ccache'):
            environment['CMAKE_CXX_COMPILER_LAUNCHER'] = 'ccache'
        (self.build / 'logs').mkdir(parents=True, exist_ok=True)
        with open(self.build / 'logs' / f'{build.name}.log', 'w', encoding='utf-8') as log:
            for command in (
                    ['cmake', '-S', HERE, '-B', build, '-G', 'Ninja', '-DCMAKE_CXX_COMPILER=clang++-14',
                     f'-DMUTATION_TREE={tree}', f'-DMUTATION_SOURCES={sources}',
                     f'-DMUTATION_PROGRAM={program}', f'-DMUTATION_INCLUDES={";".join(self.includes)}'],
                    ['cmake', '--build', build]):
                if subprocess.run(command, stdout=log, stderr=log, env=environment, check=False).returncode:
                    return False
        return True

    def build_switchable(self):
        tree = self.build / 'tree'
        self.write_tree(tree, {source.name: source.instrumented() for source in self.sources})
        if not self.compile(tree, self.build / 'switchable', self.tests):
            sys.exit(f'the sources do not compile with their mutants: {self.build}/logs/switchable.log')

    # ---- Running

    def serve_tests(self, number, tests, seconds):
        """Returns what went wrong, or None if all is well. The tests begin at once."""
        if not hasattr(self.of_thread, 'server'):
            self.of_thread.server = Server(self.tests_program, self.build)
            self.servers.append(self.of_thread.server)
        path = self.build / f'logs/run-{number}.log'
        status = self.of_thread.server.run(number, seconds, path, tests)
        output = path.read_text(encoding='utf-8', errors='replace')
        path.unlink()
        return find_trouble(status, output)

    def end_servers(self):
        for server in self.servers:
            server.end()

    def run_tests(self, program, number, tests, seconds):
        """Returns what went wrong, or None if all is well. The program starts for the tests."""
        environment = dict(os.environ, MUTANT=str(number), GTEST_FAIL_FAST='1', GTEST_BRIEF='1', **SANITIZERS)
        with open(self.build / 'logs' / f'run-{number}.log', 'w+', encoding='utf-8', errors='replace') as log:
            with subprocess.Popen([program, '--gtest_filter=' + tests], stdout=log, stderr=log,
                                  env=environment, cwd=self.build, start_new_session=True,
                                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU,
                                                                        (seconds, seconds))) as process:
                try:
                    process.wait(30 * seconds)
                except subprocess.TimeoutExpired:
                    pass
                finally:
                    # Includes processes that the tests have started.
                    try:
                        os.killpg(process.pid, signal.SIGKILL)
                    except ProcessLookupError:
                        pass
                    process.wait()
            log.seek(0)
            output = log.read()
        os.unlink(log.name)
        return find_trouble(process.returncode, output)

    def baseline(self):
        """Runs the tests without a mutant; returns for each mutant the tests that reach it."""
        reached = self.build / 'reached'
        (self.build / 'reached.map').unlink(missing_ok=True)
        os.environ['MUTANTS_REACHED'] = str(reached)
        trouble = self.run_tests(self.tests_program, 0, '*', 600)
        del os.environ['MUTANTS_REACHED']
        if trouble:
            sys.exit(f'the tests fail without any mutant: {trouble}')
        tests = {}
        for line in reached.read_text(encoding='utf-8').splitlines():
            name, microseconds, *numbers = line.split()
            self.seconds[name] = self.seconds.get(name, 0) + int(microseconds) / 1e6
            for number in numbers:
                tests.setdefault(int(number), set()).add(name)
        return tests

    def judge(self, mutant, reaching):
        """Returns the outcome and a remark about it."""
        if mutant.is_alone:
            return self.judge_alone(mutant)
        names = sorted(reaching.get(mutant.number, set()) - {'*'}, key=self.seconds.get)
        first = 0
        while first < len(names) and sum(self.seconds[name] for name in names[:first + 1]) < FIRST_TESTS:
            first += 1
        for group in (names[:first], names[first:]):
            limit = TESTS_BESIDE + math.ceil(4 * sum(self.seconds[name] for name in group))
            trouble = self.serve_tests(mutant.number, ':'.join(group), limit) if group else None
            if trouble:
                return 'killed', trouble
        # Code reached outside of tests may matter to every test, and to the start of the program.
        if '*' in reaching.get(mutant.number, ()):
            trouble = self.run_tests(self.tests_program, mutant.number, '*', self.limit_of_all())
            if trouble:
                return 'killed', trouble
        return 'survived', f'{len(names)} tests'

    def limit_of_all(self):
        return START + math.ceil(4 * sum(self.seconds.values()))

    def judge_alone(self, mutant):
        source = next(source for source in self.sources if source.name == mutant.file)
        tree = self.build / 'tree-alone'
        tests = self.mutated[mutant.file][0]
        build = self.build / ('alone-' + hashlib.sha256(str(tests).encode()).hexdigest()[:8])
        self.write_tree(tree, {mutant.file: source.alone(mutant)})
        if not self.compile(tree, build, tests):
            log = (self.build / 'logs' / f'{build.name}.log').read_text(encoding='utf-8', errors='replace')
            if 'static_assert' in log or 'static assertion' in log:
                return 'killed', 'does not compile: static_assert'
            return 'none', 'does not compile'
        trouble = self.run_tests(build / 'MutationTests', 0, '*', self.limit_of_all())
        return ('killed', trouble) if trouble else ('survived', 'compiled alone')

    def digest(self):
        """Covers everything that the outcomes depend on."""
        digest = hashlib.sha256()
        names = [self.root / directory for directory in self.copied] + [HERE]
        for directory in names:
            for path in sorted(directory.rglob('*')):
                if path.suffix in ('.h', '.cpp', '.py'):
                    digest.update(str(path).encode() + path.read_bytes())
        return digest.hexdigest()


class Results:
    """Outcomes by key, in a file that an interrupted run leaves for the next one."""

    def __init__(self, path, digest, again):
        """`again` keeps those that were killed even though something has changed since."""
        self.outcomes = {}
        lines = path.read_text(encoding='utf-8').splitlines() if path.exists() else []
        if lines and (again or lines[0] == digest):
            for line in lines[1:]:
                key, outcome, remark = line.split('\t')
                self.outcomes[key] = (outcome, remark)
        if again:
            self.outcomes = {key: value for key, value in self.outcomes.items() if value[0] != 'survived'}
        kept, self.outcomes = self.outcomes, {}
        self.file = open(path, 'w', encoding='utf-8')
        self.file.write(digest + '\n')
        for key, value in kept.items():
            self.add(key, *value)

    def add(self, key, outcome, remark):
        self.outcomes[key] = (outcome, remark)
        self.file.write(f'{key}\t{outcome}\t{remark}\n')
        self.file.flush()


def find_trouble(status, output):
    """Returns what went wrong in a run of tests, or None if all is well."""
    if status == 0:
        return None
    failed = re.search(r'^\[  FAILED  \] ([\w./]+)', output, re.MULTILINE)
    broken = re.search(r'(ERROR: \w+Sanitizer: [\w-]+|runtime error: [^\n]*|Assertion [^\n]*)', output)
    if status in (-signal.SIGXCPU, -signal.SIGKILL, -signal.SIGALRM):
        return 'time is up'
    return (failed or broken).group(1)[:100] if failed or broken else f'status {status}'


def write_if_different(path, text):
    if not path.exists() or path.read_text(encoding='utf-8') != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding='utf-8')


def read_survivors(path):
    """The mutants that no test can notice, by key, with the reason."""
    survivors = {}
    for block in re.split(r'\n\s*\n', path.read_text(encoding='utf-8')):
        lines = [line for line in block.splitlines() if line.strip() and not line.startswith('#')]
        if not lines:
            continue
        fields = dict(line.split(': ', 1) for line in lines if not line.startswith(' '))
        reason = ' '.join(line.strip() for line in lines[list(fields).index('reason'):])
        key = ' | '.join(fields[field] for field in ('file', 'function', 'text', 'change'))
        survivors[key] = reason[len('reason: '):]
    return survivors


def run_all(project, mutants, results, jobs):
    """Judges those of the mutants that belong to the project."""
    mutants = [mutant for mutant in mutants if mutant.file in project.mutated]
    if not mutants:
        return
    project.build_switchable()
    reaching = project.baseline()
    left = [mutant for mutant in mutants if mutant.key() not in results.outcomes]
    switchable = [mutant for mutant in left if not mutant.is_alone]
    done = len(mutants) - len(left)
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        futures = {pool.submit(project.judge, mutant, reaching): mutant for mutant in switchable}
        for future in concurrent.futures.as_completed(futures):
            results.add(futures[future].key(), *future.result())
            done += 1
            if done % 100 == 0:
                print(f'{done} of {len(mutants)}', flush=True)
    project.end_servers()
    # These mutants share their trees.
    for mutant in left:
        if mutant.is_alone:
            results.add(mutant.key(), *project.judge(mutant, reaching))


def report(mutants, results, survivors, is_part, summary):
    """Prints what is wrong, and writes the figures. Returns true if all is well."""
    outcomes = {mutant.key(): results.outcomes[mutant.key()][0] for mutant in mutants}
    good = True
    for mutant in mutants:
        if outcomes[mutant.key()] == 'survived' and mutant.key() not in survivors:
            print(f'\n{mutant.file}:{mutant.line}: survived, and is not listed')
            print(f'file: {mutant.file}\nfunction: {mutant.function}\ntext: {mutant.text}\n'
                  f'change: {mutant.change}')
            good = False
    for key in survivors:
        if outcomes.get(key) == 'killed':
            print(f'\nlisted as a survivor, but killed ({results.outcomes[key][1]}):\n{key}')
            good = False
        elif key not in outcomes and not is_part:
            print(f'\nlisted as a survivor, but there is no such mutant:\n{key}')
            good = False
    total = sum(outcome != 'none' for outcome in outcomes.values())
    killed = sum(outcome == 'killed' for outcome in outcomes.values())
    listed = sum(outcomes[key] == 'survived' and key in survivors for key in outcomes)
    # Mutants that no test can notice say nothing about the tests.
    score = 100.0 * killed / max(total - listed, 1)
    summary.write_text(f'mutants: {killed} of the {total - listed} that can be noticed are killed '
                       f'({score:.1f} %); {listed} more of {total} cannot, and are listed with the reason\n',
                       encoding='utf-8')
    if score < REQUIRED_SCORE:
        print(f'at least {REQUIRED_SCORE} % of those that can be noticed must be killed')
        good = False
    return good


def check_script():
    """Mutates a sample for which the outcome of each mutant is known. This proves that mutants are found, that
    those which are noticed count as killed, and that the others survive."""
    header_tests = ['SampleTest.cpp']
    project = Project(HERE / 'Sample', ROOT / 'build/mutation/sample',
                      {'Sample.cpp': (header_tests, None),
                       'Sample.h': (header_tests, 'template class CStack<int>;\n')},
                      ['Sample.cpp'], header_tests, ['.'], ['.'])
    project.find_mutants()
    results = Results(project.build / 'results', '', False)
    run_all(project, project.mutants, results, os.cpu_count())
    actual = [f'{results.outcomes[mutant.key()][0]}: {mutant.key()}' for mutant in project.mutants]
    expected = (HERE / 'Sample/Expected.txt').read_text(encoding='utf-8').splitlines()
    difference = list(difflib.unified_diff(expected, actual, 'expected', 'actual', lineterm='', n=0))
    print('\n'.join(difference or [f'{len(actual)} mutants of the sample end as they should']))
    return not difference


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--sample', type=int, metavar='N', help='only N mutants')
    parser.add_argument('--seed', type=int, default=random.randrange(1000000), help='which ones')
    parser.add_argument('--list', action='store_true', help='list the mutants')
    parser.add_argument('--only', default='', metavar='TEXT', help='only mutants with TEXT in their key')
    parser.add_argument('--again', action='store_true', help='only mutants that survived the last run')
    parser.add_argument('--jobs', type=int, default=os.cpu_count(), metavar='N', help='how many at a time')
    parser.add_argument('--check-script', action='store_true', help='try the script on a sample')
    arguments = parser.parse_args()
    if arguments.check_script:
        return check_script()

    build = ROOT / 'build/mutation'
    projects = [Project(ROOT, build, MUTATED, LIBRARY, TESTS, COPIED, INCLUDES),
                Project(ROOT, build / 'dialogc', COMPILER_MUTATED, ['Tests/CompiledDialogs/ProgramFixture.cpp'],
                        COMPILER_TESTS, ['Include', 'Source', 'Loader', 'Tests/CompiledDialogs'], INCLUDES,
                        COMPILER_PROGRAM)]
    for project in projects:
        project.find_mutants()
    mutants = [mutant for project in projects for mutant in project.mutants if arguments.only in mutant.key()]
    if arguments.list:
        for mutant in mutants:
            print(f'{mutant.number}{" alone" if mutant.is_alone else ""}: {mutant.line}: {mutant.key()}')
        return True
    if arguments.sample:
        print(f'{arguments.sample} mutants; the same again: ./run mutation --sample {arguments.sample} '
              f'--seed {arguments.seed}')
        # Mutants that are compiled separately would take most of the time.
        mutants = [mutant for mutant in mutants if not mutant.is_alone]
        mutants = random.Random(arguments.seed).sample(mutants, min(arguments.sample, len(mutants)))
    results = Results(build / 'results', ' '.join(project.digest() for project in projects), arguments.again)
    for project in projects:
        run_all(project, mutants, results, arguments.jobs)
    is_part = bool(arguments.sample or arguments.only)
    survivors = read_survivors(HERE / 'Survivors.txt')
    return report(mutants, results, survivors, is_part, build / 'summary')


if __name__ == '__main__':
    sys.exit(0 if main() else 1)
