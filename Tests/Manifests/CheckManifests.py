# SPDX-License-Identifier: MIT
"""Checks the manifests for package managers: CheckManifests.py [--check-script]

Each file must have its fields, the version of project() and the sources of CMakeLists.txt, and must not name a missing
file. With --check-script, this must find mistakes made in copies of the files.
"""

import ast
import json
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path


class Project:
    """What the manifests must agree with, and the faults found in them."""

    def __init__(self, root):
        self.root = Path(root)
        lists = self.read('CMakeLists.txt')
        self.version = re.search(r'project\(DialogManager VERSION ([0-9.]+)', lists)[1]
        core = re.search(r'dialogmanager_add_library\(Core\s+SOURCES([^)]*?)INCLUDE_ROOT', lists)[1].split()
        reader = re.search(r'set\(ROMLoaderSources([^)]*)\)', lists)[1].split()
        self.device_sources = sorted(core + reader)
        self.faults = []

    def read(self, name):
        return (self.root / name).read_text(encoding='utf-8')

    def expect(self, file, what, wanted, found):
        if wanted != found:
            self.faults.append(f'{file}: {what} should be {wanted}, not {found}')

    def expect_fields(self, file, fields, found):
        for field in fields:
            if not found.get(field):
                self.faults.append(f'{file}: {field} is missing')

    def expect_files(self, file, names):
        for name in names:
            if not list(self.root.glob(name)):
                self.faults.append(f'{file}: {name} is not there')


def lines_with_keys(text, separator):
    """The unindented lines `key<separator> value` of a file."""
    lines = re.findall(rf'^([\w.]+){separator} *(.*)$', text, re.MULTILINE)
    return {key: value.strip().strip('"') for key, value in lines}


def check_esp_idf(project):
    file = 'idf_component.yml'
    text = project.read(file)
    fields = lines_with_keys(text, ':')
    project.expect_fields(file, ('version', 'description', 'url', 'license'), fields)
    project.expect(file, 'the version', project.version, fields.get('version'))
    project.expect_files(file, re.findall(r'- "([^"]+)"', text))
    if not re.search(r'^  idf: ">=\d', text, re.MULTILINE):
        project.faults.append(f'{file}: the version of ESP-IDF is missing')


def check_zephyr(project):
    file = 'zephyr/module.yml'
    text = project.read(file)
    project.expect_fields(file, ('name',), lines_with_keys(text, ':'))
    folders = dict(re.findall(r'^  (cmake|kconfig): (.+)$', text, re.MULTILINE))
    project.expect_fields(file, ('cmake', 'kconfig'), folders)
    project.expect_files(file, [f'{folders.get("cmake")}/CMakeLists.txt', folders.get('kconfig') or '-'])
    options = re.findall(r'^config (\w+)$', project.read('zephyr/Kconfig'), re.MULTILINE)
    for used in re.findall(r'CONFIG_(\w+)', project.read('zephyr/CMakeLists.txt')):
        if used not in options:
            project.faults.append(f'zephyr/CMakeLists.txt: Kconfig has no option {used}')


def check_platformio(project):
    file = 'library.json'
    fields = json.loads(project.read(file))
    project.expect_fields(file, ('name', 'version', 'description', 'keywords', 'repository', 'license', 'build'), fields)
    project.expect(file, 'the version', project.version, fields.get('version'))
    sources = []
    for rule in fields['build']['srcFilter']:
        sign, name = re.fullmatch(r'([+-])<(.+)>', rule).groups()
        if sign == '+':
            folder = project.root / name
            found = folder.rglob('*.cpp') if name.endswith('/') else [folder]
            sources += [str(path.relative_to(project.root)) for path in found]
    project.expect(file, 'the sources', project.device_sources, sorted(sources))
    project.expect_files(file, fields['export']['include'] + sources + ['Include/' + fields['headers']])


def check_arduino(project):
    file = 'Packaging/library.properties'
    fields = lines_with_keys(project.read(file), '=')
    needed = ('name', 'version', 'author', 'maintainer', 'sentence', 'paragraph', 'category', 'url', 'architectures')
    project.expect_fields(file, needed, fields)
    project.expect(file, 'the version', project.version, fields.get('version'))
    categories = ('Display', 'Communication', 'Signal Input/Output', 'Sensors', 'Device Control', 'Timing',
                  'Data Storage', 'Data Processing', 'Other')
    if fields.get('category') not in categories:
        project.faults.append(f'{file}: there is no category {fields.get("category")}')


def check_cmsis(project):
    file = 'DialogManager.DialogManager.pdsc'
    package = ElementTree.fromstring(project.read(file))
    fields = {element.tag: element.text for element in package}
    project.expect_fields(file, ('vendor', 'name', 'description', 'url', 'license'), fields)
    project.expect(file, 'its own name', f'{fields.get("vendor")}.{fields.get("name")}.pdsc', file)
    project.expect(file, 'the newest release', project.version, package.find('releases/release').get('version'))
    component = package.find('components/component')
    project.expect(file, 'the component', project.version, component.get('Cversion'))
    files = component.findall('files/file')
    sources = sorted(item.get('name') for item in files if item.get('category') == 'source')
    project.expect(file, 'the sources', project.device_sources, sources)
    project.expect_files(file, [fields['license'], *(item.get('name').rstrip('/') for item in files)])


def check_conan(project):
    file = 'conanfile.py'
    recipe = next(node for node in ast.parse(project.read(file)).body if isinstance(node, ast.ClassDef))
    fields = {node.targets[0].id: ast.literal_eval(node.value) for node in recipe.body if isinstance(node, ast.Assign)}
    methods = {node.name: node for node in recipe.body if isinstance(node, ast.FunctionDef)}
    needed = ('name', 'version', 'license', 'description', 'settings', 'options', 'default_options', 'exports_sources')
    project.expect_fields(file, needed, fields)
    project.expect_fields(file, ('requirements', 'generate', 'build', 'package', 'package_info'), methods)
    project.expect(file, 'the version', project.version, fields.get('version'))
    project.expect(file, 'the options that have a default', sorted(fields['options']), sorted(fields['default_options']))
    project.expect_files(file, fields['exports_sources'])
    for room in re.findall(r'HEADER_DIRECTORIES (\w+)\n', project.read('CMakeLists.txt')):
        if (project.root / room).is_dir() and f'{room}/*' not in fields['exports_sources']:
            project.faults.append(f'{file}: exports_sources lacks {room}/*')
    for option in set(re.findall(r'"(DIALOGMANAGER_\w+)"', project.read(file))):
        if f'({option} ' not in project.read('CMakeLists.txt'):
            project.faults.append(f'{file}: CMakeLists.txt has no option {option}')


def check_meson(project):
    file = 'meson.build'
    text = project.read(file)
    project.expect(file, 'the version', project.version, re.search(r"^  version: '([^']+)'", text, re.MULTILINE)[1])
    sources = sorted(re.findall(r"'([\w/]+\.cpp)'", text))
    wanted = sorted(str(path.relative_to(project.root)) for folder in ('Source', 'Loader')
                    for path in (project.root / folder).rglob('*.cpp'))
    project.expect(file, 'the sources', wanted, sources)


CHECKS = {'ESP-IDF': check_esp_idf, 'Zephyr': check_zephyr, 'PlatformIO': check_platformio, 'Arduino': check_arduino,
          'CMSIS': check_cmsis, 'Conan': check_conan, 'Meson': check_meson}


def find_faults(root):
    project = Project(root)
    for check in CHECKS.values():
        check(project)
    for line in (project.root / 'CMake/DeviceSources.cmake').read_text(encoding='utf-8').splitlines():
        for name in re.findall(r'DialogManagerRoot}/(Loader/[^"]+)"', line):
            project.expect_files('CMake/DeviceSources.cmake', [name])
    return project.faults


def check_script():
    """Makes each of these mistakes in a copy; all must be found."""
    mistakes = [('idf_component.yml', 'version: "0', 'version: "9'), ('zephyr/module.yml', 'zephyr/Kconfig', 'Kconfig'),
                ('zephyr/Kconfig', 'config DIALOGMANAGER_TRACE_LEVEL', 'config OTHER'),
                ('library.json', 'UTF8Text.cpp', 'Gone.cpp'), ('library.json', '"keywords"', '"words"'),
                ('Packaging/library.properties', 'category=Display', 'category=Screens'),
                ('DialogManager.DialogManager.pdsc', '/GUITimer.cpp', '/GUITime.cpp'),
                ('conanfile.py', 'DIALOGMANAGER_SHARED', 'DIALOGMANAGER_SHAKEN'),
                ('conanfile.py', '"shared": False, ', ''), ('meson.build', "'Source/Core/GUITimer.cpp',", '')]
    files = subprocess.run(['git', 'ls-files', '-z', '-co', '--exclude-standard'], check=True,
                           stdout=subprocess.PIPE).stdout.decode().split('\0')
    for file, right, wrong in mistakes:
        with tempfile.TemporaryDirectory() as copy:
            for name in filter(lambda name: name and Path(name).is_file(), files):
                if name.count('/') == 0 or name.split('/')[0] in ('CMake', 'Docs', 'Include', 'Loader', 'Packaging',
                                                                  'Scenario', 'Source', 'TestSupport', 'zephyr'):
                    (Path(copy) / name).parent.mkdir(parents=True, exist_ok=True)
                    shutil.copyfile(name, Path(copy) / name)
            text = (Path(copy) / file).read_text(encoding='utf-8')
            if right not in text:
                sys.exit(f'{file} has no {right} to be replaced')
            (Path(copy) / file).write_text(text.replace(right, wrong), encoding='utf-8')
            if not find_faults(copy):
                sys.exit(f'{wrong} in {file} is not found')


def main(arguments):
    if arguments == ['--check-script']:
        check_script()
        return 0
    faults = find_faults('.')
    print('\n'.join(faults), end='\n' if faults else '')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
