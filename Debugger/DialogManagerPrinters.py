# SPDX-License-Identifier: MIT
"""Makes GDB show the dialog manager's values in a readable form: strings as text, lists as their elements,
handles by name, safe pointers as the object that they point to, a manager as its state.

GDB loads this file if it is beside the shared library. Otherwise: source DialogManagerPrinters.py
"""

import gdb
import gdb.printing


def find_symbol_value(name):
    """The value of a global constant, or None."""
    symbol = gdb.lookup_global_symbol(name) or gdb.lookup_static_symbol(name)
    return symbol.value() if symbol else None


def name_of_handle(handle):
    """The name of a handle: the framework's, else the application's from its table, else the number."""
    number = int(handle)
    for field in handle.type.strip_typedefs().fields():
        if field.enumval == number and field.name not in ('NOF_OBJECTHANDLES', 'QUORVANE_INTERNAL_ID', 'OBJ_START_TAG'):
            return field.name
    table, size = find_symbol_value('cpkApplicationHandles'), find_symbol_value('cuiNOFApplicationHandles')
    if table is not None and size is not None and 0 < number <= int(size):
        return table[number - 1]['m_pcName'].string()
    return str(number)


def name_of_enumerator(value):
    """An enumerator without the class around it."""
    return str(value).rsplit('::', 1)[-1]


def describe_object(pointer):
    """What a pointer to an object points to."""
    if int(pointer) == 0:
        return 'null'
    target = pointer.dereference()
    kind = pointer.dynamic_type.target().name
    return f'{kind} {name_of_handle(target["m_eID"])} at {int(pointer):#x}'


def elements_of(kList):
    """The elements of a list, first to last. Stops at the list's own count, in case the list is damaged."""
    list_type = kList.type.strip_typedefs().unqualified()
    node_type = gdb.lookup_type(f'ListNode<{list_type.template_argument(0)}>')
    links = kList['m_pkFront']
    for _ in range(int(kList['m_uiQuantity'])):
        if int(links) == 0:
            return
        yield links.cast(node_type.pointer()).dereference()['m_tValue']
        links = links['m_pkNext']


class StringPrinter:
    """eC_String"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return self.value['m_pcText'].string('utf-8', 'replace', int(self.value['m_uiLength']))

    def display_hint(self):
        return 'string'


class HandlePrinter:
    """ObjectHandle_t"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return name_of_handle(self.value)


class ListPrinter:
    """eC_TListDoubleLinked"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        number = int(self.value['m_uiQuantity'])
        return f'list of {number}' if number else 'empty list'

    def children(self):
        return ((f'[{index}]', element) for index, element in enumerate(elements_of(self.value)))

    def display_hint(self):
        return 'array'


class SafePointerPrinter:
    """CSafeGUIObjectPtr"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return describe_object(self.value['m_ptr'])


class ManagerPrinter:
    """CGUIDialogManager: the current dialog, the way back, the most recent first, and the popups, the topmost last"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return f'dialog manager, current {name_of_handle(self.value["m_CurrentDialog"]["m_eDialogID"])}'

    def children(self):
        for index, entry in enumerate(elements_of(self.value['m_History'])):
            text = f'{name_of_handle(entry["m_Dialog"]["m_eDialogID"])}, then {name_of_enumerator(entry["m_eAction"])}'
            if int(entry['m_eFocussedObject']) != 0:
                text += f', focus {name_of_handle(entry["m_eFocussedObject"])}'
            yield f'history[{index}]', text
        for index, popup in enumerate(elements_of(self.value['m_ActivePopups'])):
            pointer = popup['m_pObject']['m_ptr']
            shown = ''
            if int(pointer) != 0:
                shown = ', hidden' if pointer.dereference()['m_bIsInvisible'] else ', shown'
            time = int(popup['m_uiDisplayTime'])
            limit = f', {time} ms' if time else ''
            yield f'popup[{index}]', f'{describe_object(pointer)}, priority {int(popup["m_ePriority"])}{limit}{shown}'
        yield 'focus of the dialog', describe_object(self.value['m_pCurrentDialogFocus']['m_ptr'])


def build_printers():
    printers = gdb.printing.RegexpCollectionPrettyPrinter('DialogManager')
    printers.add_printer('string', '^eC_String$', StringPrinter)
    printers.add_printer('handle', '^ObjectHandle_t$', HandlePrinter)
    printers.add_printer('list', '^eC_TListDoubleLinked<.*>$', ListPrinter)
    printers.add_printer('safe pointer', '^CSafeGUIObjectPtr$', SafePointerPrinter)
    printers.add_printer('manager', '^CGUIDialogManager$', ManagerPrinter)
    return printers


gdb.printing.register_pretty_printer(gdb.current_objfile(), build_printers(), replace=True)
