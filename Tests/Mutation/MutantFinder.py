# SPDX-License-Identifier: MIT
"""Finds the places of a C++ source that can be mutated, and writes sources that contain all mutants.

Most mutants can be switched on while the program runs: `a < b` becomes
`(Mutated(7) ? (a <= b) : (a < b))`. So the tests are built only once for all of them. Mutants of compile-time values,
such as the value of an enumerator, are compiled separately.

A mutant is identified by what it changes, not by its position: file, function, text and change.
"""

import ctypes
import hashlib
import re

from clang import cindex
from clang.cindex import CursorKind as Kind, TypeKind

FUNCTIONS = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.CONVERSION_FUNCTION,
             Kind.FUNCTION_TEMPLATE)
LOOPS = (Kind.WHILE_STMT, Kind.FOR_STMT)
POINTERS = (TypeKind.POINTER, TypeKind.NULLPTR)
OFF_BY_ONE = {'<': '<=', '<=': '<', '>': '>=', '>=': '>'}
OTHER_OPERATOR = {'+': '-', '-': '+', '*': '/', '/': '*', '<<': '>>', '>>': '<<', '%': '*', '&': '|',
                  '|': '&'}
OTHER_ASSIGNMENT = {'+=': '-=', '-=': '+=', '*=': '/=', '<<=': '>>=', '>>=': '<<='}
OTHER_LEVEL = {'GUI_TRACE_DEBUG': 'GUI_TRACE_WARNING', 'GUI_TRACE_WARNING': 'GUI_TRACE_ERROR',
               'GUI_TRACE_ERROR': 'GUI_TRACE_WARNING'}


class Mutant:
    """One change. `wraps` are pieces of source and their replacements if the mutant can be switched on: functions of
    its number and of the piece, which may already contain other mutants. `edits` are pieces and their replacements
    when it is compiled separately."""

    def __init__(self, file, function, line, text, change):
        self.file = file
        self.function = function
        self.line = line
        self.text = text
        self.change = change
        self.number = 0
        self.wraps = []
        self.edits = []
        self.is_alone = False

    def key(self):
        return ' | '.join((self.file, self.function, self.text, self.change))


class Source:
    """A source file, its mutants, and its text with them."""

    def __init__(self, name, path, unit_path, arguments):
        with open(path, encoding='utf-8') as file:
            self.text = file.read()
        self.name = name
        self.path = path
        self.mutants = []
        self.constexpr_constructors = set()
        # clang counts bytes, Python counts characters.
        assert self.text.isascii(), f'{name} is not ASCII'
        unit = cindex.Index.create().parse(unit_path, arguments)
        check(unit)
        self._visit(unit.cursor, '')
        self._number_equal_ones()

    # ---- Pieces of the source

    def _offsets(self, cursor):
        """Where a cursor's text begins and ends in this file, even inside a macro's arguments."""
        begin = file_location(cursor.extent.start)
        end = file_location(cursor.extent.end)
        if begin[0] != self.path or end[0] != self.path or begin[1] >= end[1] or self._macro_at(begin[1]):
            return None
        return begin[1], end[1]

    def _raw(self, begin, end):
        return on_one_line(self.text[begin:end])

    def _add(self, piece, function, change, wrap=None, edit=None, text_piece=None):
        begin, end = text_piece or piece
        line = self.text.count('\n', 0, begin) + 1
        mutant = Mutant(self.name, function, line, self._raw(begin, end), change)
        if wrap:
            mutant.wraps.append((*piece, wrap))
        if edit is not None:
            mutant.edits.append((*piece, edit))
        mutant.is_alone = not wrap
        self.mutants.append(mutant)
        return mutant

    def _replace(self, piece, function, change, replacement):
        """Replaces a piece of an expression with another one."""
        self._add(piece, function, change,
                  lambda number, inner: f'(Mutated({number}) ? ({replacement}) : ({inner}))',
                  f'({replacement})')

    def _number_equal_ones(self):
        seen = {}
        self.mutants.sort(key=lambda mutant: min(piece[0] for piece in mutant.wraps + mutant.edits))
        for mutant in self.mutants:
            key = mutant.key()
            seen[key] = seen.get(key, 0) + 1
            if seen[key] > 1:
                mutant.text += f' (number {seen[key]} of its kind)'

    # ---- Walking through the source

    def _visit(self, cursor, function):
        for child in cursor.get_children():
            if cursor.kind == Kind.TRANSLATION_UNIT and file_location(child.location)[0] != self.path:
                continue
            self._visit_declaration(child, function)

    def _visit_declaration(self, cursor, scope):
        if cursor.kind in FUNCTIONS:
            if cursor.is_definition() or any(c.kind == Kind.COMPOUND_STMT for c in cursor.get_children()):
                self._function(cursor)
        elif cursor.kind == Kind.ENUM_CONSTANT_DECL:
            for value in cursor.get_children():
                self._enumerator(cursor, value, scope)
        elif cursor.kind in (Kind.FIELD_DECL, Kind.VAR_DECL):
            self._variable(cursor, scope + cursor.spelling)
        elif cursor.kind != Kind.STATIC_ASSERT:
            self._visit(cursor, scope + (cursor.spelling + '::' if cursor.kind.is_declaration() else ''))

    def _enumerator(self, cursor, value, scope):
        piece = self._offsets(value)
        if piece:
            self._add(piece, scope + cursor.spelling, 'plus one', edit=f'{self._raw(*piece)} + 1')

    def _variable(self, cursor, name):
        """A constant, or a member with a default value."""
        piece = self._offsets(cursor)
        is_constant = piece and re.search(r'\bconstexpr\b', self.text[piece[0]:piece[1]])
        if cursor.type.kind == TypeKind.CONSTANTARRAY:
            return
        for child in walk(cursor) if is_constant else cursor.get_children():
            if is_constant:
                inside = self._offsets(child)
                if inside and child.kind == Kind.INTEGER_LITERAL:
                    self._add(inside, name, 'plus one', edit=f'{self._raw(*inside)} + 1')
            elif child.kind.is_expression():
                self._expression(child, name)

    def _function(self, cursor):
        scopes = [cursor.displayname]
        parent = cursor.semantic_parent
        while parent and parent.kind != Kind.TRANSLATION_UNIT:
            if parent.spelling:
                scopes.insert(0, parent.spelling)
            parent = parent.semantic_parent
        name = '::'.join(scopes)
        piece = self._offsets(cursor)
        before_body = self.text[piece[0]:piece[1]].split('{')[0]
        constant = re.search(r'\bconstexpr\b', before_body)
        if constant:
            if cursor.kind != Kind.CONSTRUCTOR:
                return
            begin = piece[0] + constant.start()
            self.constexpr_constructors.add((begin, begin + len('constexpr')))
        for child in cursor.get_children():
            if child.kind == Kind.COMPOUND_STMT:
                self._statement(child, name, False)
            elif child.kind.is_expression():
                self._initializer(child, name)

    def _initializer(self, cursor, name):
        piece = self._offsets(cursor)
        if piece and cursor.type.kind in POINTERS and self._raw(*piece) != 'nullptr':
            self._replace(piece, name, 'null instead', 'nullptr')
        self._expression(cursor, name)

    # ---- Statements

    def _statement(self, cursor, name, goes_on):
        """`goes_on` tells whether another statement follows if this one does not return."""
        kind = cursor.kind
        children = list(cursor.get_children())
        if kind == Kind.COMPOUND_STMT:
            self._block(children, name, goes_on)
            return
        macro = self._macro(cursor)
        if macro == 'assert':
            # Not mutated, because the condition is also the text that the assertion prints.
            return
        if macro:
            for child in children:
                self._expression(child, name)
        elif kind == Kind.DECL_STMT:
            for child in children:
                self._local_variable(child, name)
        elif kind == Kind.RETURN_STMT:
            for child in children:
                self._returned(child, name)
        elif kind in (Kind.IF_STMT, Kind.WHILE_STMT):
            self._condition(children[0], name, kind in LOOPS)
            for child in children[1:]:
                self._statement(child, name, goes_on)
        elif kind == Kind.SWITCH_STMT:
            self._expression(children[0], name)
            self._cases(children[0], children[1], name)
            self._block(list(children[1].get_children()), name, goes_on, is_switch=True)
        elif kind == Kind.FOR_STMT:
            self._for(cursor, children, name, goes_on)
        elif kind.is_expression():
            self._expression(cursor, name)
        else:
            for child in children:
                self._statement(child, name, goes_on)

    def _for(self, cursor, children, name, goes_on):
        piece = self._offsets(cursor)
        semicolons = semicolons_of_for(self.text, piece[0])
        for child in children[:-1]:
            inside = self._offsets(child)
            if inside and semicolons[0] < inside[0] < semicolons[1]:
                self._condition(child, name, True)
            elif child.kind == Kind.DECL_STMT:
                self._statement(child, name, goes_on)
            else:
                self._expression(child, name)
        self._statement(children[-1], name, goes_on)

    def _block(self, children, name, goes_on, is_switch=False):
        previous = None
        way_out = len(children)
        while is_switch and way_out > 0 and is_break(children[way_out - 1]):
            way_out -= 1
        for index, child in enumerate(children):
            is_last = index == len(children) - 1
            while child.kind in (Kind.CASE_STMT, Kind.DEFAULT_STMT):
                *_, child = child.get_children()
            piece = self._whole_statement(child)
            # Dropping the last break of a switch, or the one before it, changes nothing.
            leads_on = not is_switch or not is_break(child) or index + 1 < way_out
            if piece and leads_on and self._can_be_dropped(child, goes_on or not is_last):
                self._add(piece, name, 'dropped',
                          lambda number, inner: f'if (!Mutated({number})) {{ {inner} }}', ';')
            is_plain = piece and child.kind != Kind.CXX_STATIC_CAST_EXPR and \
                (child.kind.is_expression() or self._macro(child))
            if is_plain and previous and not self._commute(previous, piece):
                self._swap_statements(previous, piece, name)
            previous = piece if is_plain else None
            self._statement(child, name, goes_on or not is_last)
            self._trace_level(child, piece, name)

    def _macro(self, cursor):
        """The name of the macro that a statement consists of."""
        begin = file_location(cursor.extent.start)
        return self._macro_at(begin[1]) if begin[0] == self.path else None

    def _macro_at(self, begin):
        found = re.compile(r'(GUILOG\w*|assert)\(').match(self.text, begin)
        return found and found.group(1)

    def _whole_statement(self, cursor):
        """Where a statement begins and ends, with its semicolon."""
        begin = file_location(cursor.extent.start)[1]
        if self._macro(cursor):
            end = closing(self.text, self.text.index('(', begin)) + 1
        else:
            piece = self._offsets(cursor)
            if not piece:
                return None
            end = piece[1]
        while self.text[end].isspace():
            end += 1
        return (begin, end + 1) if self.text[end] == ';' else None

    def _can_be_dropped(self, cursor, goes_on):
        if self._macro(cursor):
            return True
        if cursor.kind == Kind.RETURN_STMT:
            return goes_on or not list(cursor.get_children())
        if cursor.kind == Kind.CXX_STATIC_CAST_EXPR:
            return False
        return cursor.kind.is_expression() or cursor.kind in (Kind.BREAK_STMT, Kind.CONTINUE_STMT)

    def _commute(self, first, second):
        """True for two changes of variables, without calls, where neither names what the other changes:
        swapping them would have no effect."""
        changed, named = zip(*(what_changes(self._raw(*piece)) for piece in (first, second)))
        return all(changed) and not changed[0] & named[1] and not changed[1] & named[0]

    def _swap_statements(self, first, second, name):
        swapped = f'{self._raw(*second)} {self._raw(*first)}'
        mutant = self._add(first, name, f'swapped with {self._raw(*second)}',
                           lambda number, inner: f'if (Mutated({number})) {{ {swapped} }} else {{ {inner} }}')
        mutant.wraps.append((*second, lambda number, inner: f'if (!Mutated({number})) {{ {inner} }}'))
        mutant.edits = [(*first, swapped), (*second, ';')]

    def _trace_level(self, cursor, piece, name):
        if not piece or self._macro(cursor) != 'GUILOG':
            return
        level = re.match(r'GUILOG\(\s*(\w+)', self.text[piece[0]:]).group(1)
        if level in OTHER_LEVEL:
            other = self._raw(*piece).replace(level, OTHER_LEVEL[level], 1)
            self._add(piece, name, f'{OTHER_LEVEL[level]} instead',
                      lambda number, inner: f'if (Mutated({number})) {{ {other} }} else {{ {inner} }}', other)

    def _local_variable(self, cursor, name):
        piece = self._offsets(cursor)
        safe = piece and re.match(r'(const )?CSafeGUIObjectPtr (?!&)', self.text[piece[0]:])
        if safe:
            ordinary = 'CGUIObject* const ' if safe.group(1) else 'CGUIObject* '
            self._add((piece[0], piece[0] + safe.end()), name, 'an ordinary pointer instead', edit=ordinary,
                      text_piece=piece)
        for child in cursor.get_children():
            if child.kind.is_expression():
                self._expression(child, name)

    def _returned(self, cursor, name):
        piece = self._offsets(cursor)
        if piece:
            text = self._raw(*piece)
            if cursor.type.kind in POINTERS and text != 'nullptr' and text != 'NULL':
                self._replace(piece, name, 'null returned', 'nullptr')
            elif cursor.type.kind == TypeKind.BOOL and text not in ('true', 'false'):
                self._negate(cursor, piece, name)
        self._expression(cursor, name)

    # ---- Expressions

    def _condition(self, cursor, name, is_loop):
        piece = self._offsets(cursor)
        if not piece or self._raw(*piece) in ('true', 'false'):
            return
        self._negate(cursor, piece, name)
        self._add(piece, name, 'false', lambda number, inner: f'(!Mutated({number}) && ({inner}))', 'false')
        if not is_loop:
            # Without a condition a loop would never end, which is sure to be noticed.
            self._add(piece, name, 'true', lambda number, inner: f'(Mutated({number}) || ({inner}))', 'true')
        self._expression(cursor, name)

    def _negate(self, cursor, piece, name):
        if any(mutant.change == 'negated' and mutant.wraps[0][:2] == piece for mutant in self.mutants):
            return
        self._add(piece, name, 'negated',
                  lambda number, inner: f'(Mutated({number}) != static_cast<bool>({inner}))',
                  f'!({self._raw(*piece)})')

    def _cases(self, operand, body, name):
        """Removes a case: its value is treated like one without a case."""
        piece = self._offsets(operand)
        for case in walk(body):
            label = self._offsets(next(case.get_children())) if case.kind == Kind.CASE_STMT else None
            if label:
                text = self._raw(*piece)
                value = self._raw(*label)
                self._add(piece, name, 'no such case',
                          lambda number, inner, text=text, value=value:
                          f'(Mutated({number}) && ({text}) == {value} ? '
                          f'static_cast<decltype({value})>(127) : ({inner}))', text_piece=label)

    def _expression(self, cursor, name):
        kind = cursor.kind
        if kind in (Kind.LAMBDA_EXPR, Kind.SIZE_OF_PACK_EXPR, Kind.CXX_UNARY_EXPR):
            return
        piece = self._offsets(cursor)
        children = list(cursor.get_children())
        if piece:
            if kind == Kind.BINARY_OPERATOR and len(children) == 2:
                self._binary(cursor, piece, children, name)
            elif kind == Kind.COMPOUND_ASSIGNMENT_OPERATOR:
                self._compound_assignment(piece, children, name)
            elif kind == Kind.UNARY_OPERATOR:
                self._unary(piece, children[0], name)
            elif kind == Kind.CALL_EXPR:
                self._call(cursor, piece, name)
            elif kind == Kind.CONDITIONAL_OPERATOR:
                condition = self._offsets(children[0])
                if condition:
                    self._negate(children[0], condition, name)
            elif kind == Kind.INTEGER_LITERAL:
                self._integer(piece, name)
            elif kind == Kind.CXX_BOOL_LITERAL_EXPR:
                other = {'true': 'false', 'false': 'true'}.get(self._raw(*piece))
                if other:
                    self._replace(piece, name, f'{other} instead', other)
            elif kind == Kind.STRING_LITERAL:
                self._add(piece, name, 'another text',
                          lambda number, inner: f'(Mutated({number}) ? "~" {inner} : {inner})')
                self.mutants[-1].edits = [(*piece, '"~" ' + self._raw(*piece))]
            elif kind == Kind.DECL_REF_EXPR and cursor.referenced and \
                    cursor.referenced.kind == Kind.ENUM_CONSTANT_DECL:
                text = self._raw(*piece)
                self._replace(piece, name, 'another enumerator',
                              f'static_cast<decltype({text})>({text} + 1)')
        for child in children:
            if child.kind.is_expression() or child.kind.is_unexposed():
                self._expression(child, name)
            elif child.kind.is_statement():
                self._statement(child, name, True)

    def _binary(self, cursor, piece, children, name):
        left, right = (self._offsets(child) for child in children)
        if not left or not right:
            return
        operator = self.text[left[1]:right[0]].strip(' ()\n')
        one, other = self._raw(*left), self._raw(*right)
        if operator in ('&&', '||'):
            swapped = {'&&': '||', '||': '&&'}[operator]
            for side, name_of_side in ((left, 'left'), (right, 'right')):
                drop = (lambda number, inner: f'(Mutated({number}) || ({inner}))') if operator == '&&' else \
                    (lambda number, inner: f'(!Mutated({number}) && ({inner}))')
                self._add(side, name, f'{name_of_side} of {operator} removed', drop,
                          'true' if operator == '&&' else 'false')
            self._replace(piece, name, f'{swapped} instead', f'({one}) {swapped} ({other})')
        elif operator in ('==', '!='):
            self._negate(cursor, piece, name)
        elif operator in OFF_BY_ONE:
            # In this form, because the elements of a list need not have the other operator.
            self._replace(piece, name, f'{OFF_BY_ONE[operator]} instead', f'!(({other}) {operator} ({one}))')
            self._negate(cursor, piece, name)
        elif operator in OTHER_OPERATOR:
            swapped = OTHER_OPERATOR[operator]
            self._replace(piece, name, f'{swapped} instead', f'({one}) {swapped} ({other})')

    def _compound_assignment(self, piece, children, name):
        left, right = (self._offsets(child) for child in children)
        operator = self.text[left[1]:right[0]].strip(' ()\n') if left and right else None
        if operator in OTHER_ASSIGNMENT:
            swapped = OTHER_ASSIGNMENT[operator]
            self._replace(piece, name, f'{swapped} instead',
                          f'{self._raw(*left)} {swapped} {self._raw(*right)}')

    def _unary(self, piece, operand, name):
        text = self._raw(*piece)
        if text.startswith('!'):
            self._negate(None, piece, name)
        else:
            self._step(piece, name)

    def _step(self, piece, name):
        text = self._raw(*piece)
        for operator, other in (('++', '--'), ('--', '++')):
            if text.startswith(operator):
                self._replace(piece, name, f'{other} instead', other + text[2:])
            elif text.endswith(operator):
                self._replace(piece, name, f'{other} instead', text[:-2] + other)

    def _call(self, cursor, piece, name):
        spelling = cursor.spelling
        if spelling in ('operator++', 'operator--'):
            self._step(piece, name)
            return
        arguments = list(cursor.get_arguments())
        if spelling in ('operator==', 'operator!=', 'operator>', 'operator<'):
            if len(arguments) == 2:
                self._negate(cursor, piece, name)
            return
        is_equality = spelling in ('memcmp', 'strcmp') and re.match(r'\s*[!=]= 0\b', self.text[piece[1]:])
        if spelling.startswith('operator') or spelling in ('min', 'max') or is_equality:
            return
        for one, other in zip(arguments, arguments[1:]):
            first, second = self._offsets(one), self._offsets(other)
            if first and second and plain_type(one) == plain_type(other) and first[1] <= second[0]:
                is_object = one.type.get_canonical().kind == TypeKind.RECORD
                self._swap_arguments(first, second, name, piece, is_object)

    def _swap_arguments(self, first, second, name, call, is_object):
        one, other = self._raw(*first), self._raw(*second)
        if one == other:
            return
        mutant = self._add(first, name, f'swapped with {other} in {self._raw(*call)[:60]}',
                           lambda number, inner: f'(Mutated({number}) ? ({other}) : ({inner}))')
        mutant.wraps.append((*second, lambda number, inner: f'(Mutated({number}) ? ({one}) : ({inner}))'))
        mutant.edits = [(*first, other), (*second, one)]
        if is_object and '(' in one + other:
            # Choosing between a temporary object and another one would copy the other one.
            mutant.wraps = []
            mutant.is_alone = True

    def _integer(self, piece, name):
        text = self._raw(*piece)
        if not text[0].isdigit():
            return
        step = '-' if text.upper().startswith('0X7FFFFFFF') else '+'
        self._replace(piece, name, 'plus one' if step == '+' else 'minus one', f'{text} {step} 1')

    # ---- Texts with mutants

    def instrumented(self):
        """The source with all mutants that can be switched on."""
        wraps = [(begin, end, order, wrap, mutant.number)
                 for mutant in self.mutants if not mutant.is_alone
                 for order, (begin, end, wrap) in enumerate(mutant.wraps)]
        wraps += [(*piece, 0, lambda number, inner: '', 0) for piece in self.constexpr_constructors]
        wraps.sort(key=lambda wrap: (wrap[0], -wrap[1], wrap[4]))
        return self._render(0, len(self.text), wraps)

    def _render(self, begin, end, wraps):
        parts = []
        position = begin
        index = 0
        while index < len(wraps):
            first = wraps[index]
            inner = []
            index += 1
            while index < len(wraps) and wraps[index][0] < first[1]:
                assert wraps[index][1] <= first[1], f'{self.name}: {self._raw(*first[:2])} overlaps'
                inner.append(wraps[index])
                index += 1
            parts.append(self.text[position:first[0]])
            parts.append(first[3](first[4], self._render(first[0], first[1], inner)))
            position = first[1]
        parts.append(self.text[position:end])
        return ''.join(parts)

    def alone(self, mutant):
        """The source with a single mutant in it."""
        text = self.text
        for begin, end, replacement in sorted(mutant.edits, reverse=True):
            lines = '\n' * self.text.count('\n', begin, end)
            text = text[:begin] + replacement + lines + text[end:]
        return text

    def compile_alone_what_cannot_be_switched(self, unit_path, arguments, memory):
        """Mutants that do not compile together with the others are compiled separately. `unit_path` compiles this
        source, written there with all its mutants; `memory` is a file for those that an earlier run has found."""
        digest = hashlib.sha256(self.instrumented().encode()).hexdigest()
        known = memory.read_text(encoding='utf-8').split() if memory.exists() else []
        if known and known[0] == digest:
            for mutant in self.mutants:
                mutant.is_alone |= str(mutant.number) in known[1:]
        self._set_aside_what_fails(unit_path, arguments)
        memory.parent.mkdir(parents=True, exist_ok=True)
        memory.write_text(' '.join([digest] + [str(mutant.number) for mutant in self.mutants if mutant.is_alone]),
                          encoding='utf-8')

    def _set_aside_what_fails(self, unit_path, arguments):
        while True:
            unit = cindex.Index.create().parse(unit_path, arguments,
                                               unsaved_files=[(self.path, self.instrumented())])
            errors = [error for error in unit.diagnostics if error.severity >= cindex.Diagnostic.Error]
            if not errors:
                return
            self._set_aside(errors[0])

    def _set_aside(self, error):
        text = self.instrumented()
        places = [(error.location.file.name, error.location.offset)]
        places += [(child.location.file.name, child.location.offset) for child in error.children
                   if child.location.file]
        for path, offset in places:
            if path != self.path:
                continue
            before, after = text[:offset], text[offset:].split('\n')[0]
            at_place = re.match(r'.{0,12}?Mutated\((\d+)\)', after)
            candidates = [at_place.group(1)] if at_place else []
            candidates += reversed(re.findall(r'Mutated\((\d+)\)', before.split('\n')[-1]))
            candidates += re.findall(r'Mutated\((\d+)\)', after)
            candidates += reversed(re.findall(r'Mutated\((\d+)\)', before))
            for number in candidates:
                for mutant in self.mutants:
                    if mutant.number == int(number) and not mutant.is_alone:
                        mutant.is_alone = True
                        return
        raise RuntimeError(f'{self.name} does not compile with its mutants: {error}')


def check(unit):
    errors = [str(error) for error in unit.diagnostics if error.severity >= cindex.Diagnostic.Error]
    if errors:
        raise RuntimeError('\n'.join(errors))


def file_location(location):
    """The name of the file and the offset, where the source has it rather than where a macro expands it."""
    file, line, column, offset = cindex.c_object_p(), ctypes.c_uint(), ctypes.c_uint(), ctypes.c_uint()
    function = cindex.conf.lib.clang_getFileLocation
    function.argtypes = [cindex.SourceLocation] + [ctypes.c_void_p] * 4
    function(location, ctypes.byref(file), ctypes.byref(line), ctypes.byref(column), ctypes.byref(offset))
    return (cindex.File(file).name if file else None), offset.value


def is_break(cursor):
    while cursor.kind in (Kind.CASE_STMT, Kind.DEFAULT_STMT):
        *_, cursor = cursor.get_children()
    return cursor.kind == Kind.BREAK_STMT


def walk(cursor):
    for child in cursor.get_children():
        yield child
        yield from walk(child)


def plain_type(cursor):
    spelling = cursor.type.get_canonical().spelling
    return re.sub(r'\bconst\b|&', '', spelling).strip()


def on_one_line(text):
    """The text without comments and line breaks; quoted text is not changed."""
    text = re.sub(r'"(?:\\.|[^"\\])*"|//[^\n]*',
                  lambda found: found.group(0) if found.group(0)[0] == '"' else '', text)
    return re.sub(r'\s*\n\s*', ' ', text).strip()


def closing(text, opening):
    """The position of the parenthesis that closes the one at a position."""
    depth = 0
    for found in re.compile(r'"(?:\\.|[^"\\])*"|[()]').finditer(text, opening):
        depth += {'(': 1, ')': -1}.get(found.group(0), 0)
        if depth == 0:
            return found.start()
    raise ValueError('no closing parenthesis')


def what_changes(statement):
    """The names that a simple change of a variable changes, none for other statements; and all names."""
    named = set(re.findall(r'[A-Za-z_]\w*', statement))
    step = re.fullmatch(r'(?:\+\+|--)([\w.>-]+);', statement)
    assignment = re.fullmatch(r'([^*].*?) (?:[-+*/]|<<|>>)?= (.*);', statement)
    # A structure's default value needs no call.
    called = re.sub(r'\b\w+_t\(\)', '', statement)
    if re.search(r'\w\(|\bthrow\b|\bdelete\b', called) or not (step or assignment):
        return set(), named
    target = step.group(1) if step else assignment.group(1)
    # One of two: (condition ? one : other) = ...
    ways = re.fullmatch(r'\(.*\? (.*) : (.*)\)', target)
    ways = ways.groups() if ways else [target]
    return {re.findall(r'\w+', re.sub(r'\[[^]]*\]', '', way))[-1] for way in ways}, named


def semicolons_of_for(text, begin):
    end = closing(text, text.index('(', begin))
    first = text.index(';', begin)
    return first, text.index(';', first + 1, end)
