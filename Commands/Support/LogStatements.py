# SPDX-License-Identifier: MIT
"""Finds the log statements of the library: the place, level and text of each."""

import pathlib
import re
import sys

MACROS = re.compile(r"\b(GUILOGMESSAGE|GUILOG)\s*\(")
# The beginning of a member function: in a source with its class, in a header indented below it.
FUNCTION = re.compile(r"^(?:\w[\w:*&<>, ]*[ *&])?(\w+)::(?:\w+::)*?(~?\w+)\(", re.MULTILINE)
CLASS = re.compile(r"^class (?:GUI_API )?(\w+)", re.MULTILINE)
INLINE_FUNCTION = re.compile(r"^    virtual [\w:*& ]+?[ *&](\w+)\(", re.MULTILINE)
SEPARATOR = re.compile(r'[\s+,]+')
CALL = re.compile(r'(\w+)\(')
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
HELPER = re.compile(r"^eC_String (\w+)\((.*?)\)\n\{\n    return (.*?);\n\}", re.MULTILINE | re.DOTALL)

# How values are shown in a text. A value that is missing here is an error, so that every row is readable.
VALUES = {
    'eID': 'id',
    'eDialogID': 'id',
    'ePopupID': 'id',
    'eGoingID': 'id',
    'm_eHome': 'id',
    'm_eQuestion': 'id',
    'kPlace.m_eID': 'id',
    'eCurrent': 'id',
    'eFree': 'id',
    'pkDialog->GetID()': 'id',
    'kMirrored.m_pkObject->GetID()': 'name of the id',
    'kObject.GetID()': 'name of the id',
    'pkObject->GetID()': 'name of the id',
    'pkTop->GetID()': 'name of the id',
    'pObjectToFocus->GetID()': 'id',
    '(*kIterator).m_Dialog.m_eDialogID': 'id',
    'm_CurrentDialog.m_eDialogID': 'id',
    '(*kIterator).m_eAction': 'action',
    'm_CurrentDialog.m_eOldDialogAction': 'action',
    'iPriority': 'priority',
    'uiDisplayTime': 'time',
    'kRegistered.m_uiDisplayTime': 'time',
    'uiLoadTime': 'milliseconds',
    'kDialogPath': 'path',
    '(*kIterator).m_kPath': 'path',
    'kPath': 'path',
    'GetHookName(eHook)': 'hook',
    'uiTime': 'time',
    'GetReason(eContents)': 'reason',
    'pcName': 'name',
}
# Functions that only convert their argument to a string.
CONVERSIONS = ('Message', 'TraceText', 'Text', 'Number', 'eC_String')


def closing(text, start):
    """The position after the parenthesis that closes the one before start, literals skipped."""
    depth = 1
    position = start
    while depth > 0:
        literal = LITERAL.match(text, position)
        if literal:
            position = literal.end()
            continue
        depth += {'(': 1, ')': -1}.get(text[position], 0)
        position += 1
    return position


def value_end(expression, position):
    """Where the value ends that begins at a position: at a plus sign, a comma or a literal."""
    while position < len(expression) and expression[position] not in '+,"':
        position = closing(expression, position + 1) if expression[position] == '(' else position + 1
    return position


def pieces(expression, helpers):
    """The literals and values of an expression, in order."""
    position = 0
    while position < len(expression):
        separator = SEPARATOR.match(expression, position)
        literal = LITERAL.match(expression, position)
        call = CALL.match(expression, position)
        name = call.group(1) if call else None
        if separator:
            end = separator.end()
        elif literal:
            end = literal.end()
            yield 'text', literal.group(1)
        elif name in CONVERSIONS or name in helpers:
            end = closing(expression, call.end())
            yield from pieces(helpers.get(name, expression[call.end():end - 1]), helpers)
        else:
            end = value_end(expression, position)
            yield 'value', expression[position:end].strip()
        position = end


def text_of(expression, helpers, place):
    """The text that an expression makes, with the names of its values in angle brackets."""
    text = ''
    for kind, piece in pieces(expression, helpers):
        if kind == 'text':
            text += piece
        elif piece.startswith('FormatDialogFileError'):
            text += '<path:line:column: what was found; expected what>'
        elif piece in VALUES:
            text += f'<{VALUES[piece]}>'
        else:
            sys.exit(f"{place}: '{piece}' is in a message; say in VALUES of LogStatements.py how to show it")
    return text


def last(pattern, text, end):
    """The last match before a position."""
    found = None
    for found in pattern.finditer(text, 0, end):
        pass
    return found


def operation_at(source, position):
    """The class and name of the function around a position."""
    function = last(FUNCTION, source, position)
    if function:
        return f'{function.group(1)}::{function.group(2)}'
    return f'{last(CLASS, source, position).group(1)}::{last(INLINE_FUNCTION, source, position).group(1)}'


def logged_in(path):
    """The messages of one source file in order: (operation, level, text)."""
    source = path.read_text()
    helpers = {name: expression for name, _, expression in HELPER.findall(source) if name not in CONVERSIONS}
    for macro in MACROS.finditer(source):
        expression = source[macro.end():closing(source, macro.end()) - 1]
        level = 'INFO'
        if macro.group(1) == 'GUILOG':
            name, expression = expression.split(',', 1)
            level = name.strip().removeprefix('GUI_TRACE_')
        line = source.count('\n', 0, macro.start()) + 1
        yield operation_at(source, macro.start()), level, text_of(expression, helpers, f'{path}:{line}')


def logged():
    """All messages of the library."""
    for directory in ('Include', 'Source', 'Loader', 'Companions', 'Adapters'):
        for path in sorted(pathlib.Path(directory).rglob('*')):
            if path.suffix in ('.h', '.cpp') and path.name != 'GUITrace.h':
                yield from logged_in(path)
