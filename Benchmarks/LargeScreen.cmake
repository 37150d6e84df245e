# SPDX-License-Identifier: MIT
# Writes LargeScreen.xml, a dialog of 1,000 objects of which 100 are buttons: cmake -DOUTPUT=<file> -P <this>

set(Text "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Composite>\n")
# 111 composites of 9 objects each and the one around them are 1,000.
foreach(Composite RANGE 1 111)
    string(APPEND Text "  <Composite>\n")
    if(Composite LESS_EQUAL 100)
        math(EXPR ID "2000 + ${Composite}")
        string(APPEND Text "    <Object id=\"${ID}\" focusable=\"true\"/>\n")
    else()
        string(APPEND Text "    <Object invisible=\"true\"/>\n")
    endif()
    foreach(Object RANGE 1 7)
        string(APPEND Text "    <Object/>\n")
    endforeach()
    string(APPEND Text "  </Composite>\n")
endforeach()
string(APPEND Text "</Composite>\n")
file(WRITE "${OUTPUT}" "${Text}")
