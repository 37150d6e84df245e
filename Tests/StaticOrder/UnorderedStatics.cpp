// SPDX-License-Identifier: MIT
#include "Tests/StaticOrder/StaticObjects.h"

// C++ leaves open in which order objects of these three kinds are constructed and destroyed, both within a
// unit and across units.

template <ObjectHandle_t ePopupID>
class CHasStaticMember
{
public:
    static COneOfEach ms_kMember;
};

template <ObjectHandle_t ePopupID>
COneOfEach CHasStaticMember<ePopupID>::ms_kMember(ePopupID);

template <ObjectHandle_t ePopupID>
COneOfEach kVariableTemplate(ePopupID);

inline COneOfEach kInlineVariable(OBJ_KEYBOARD_LAYOUT_123);

void UseUnorderedStatics()
{
    COneOfEach& kMember = CHasStaticMember<OBJ_MSGBOX_SAVEAS>::ms_kMember;
    kMember.Check("the pointer and the animatable in a class template are registered");
    kMember.Show();
    COneOfEach& kVariable = kVariableTemplate<OBJ_KEYBOARD_LAYOUT_ABC>;
    kVariable.Check("the pointer and the animatable in a variable template are registered");
    kVariable.Show();
    kInlineVariable.Check("the pointer and the animatable in an inline variable are registered");
    kInlineVariable.Show();
}
