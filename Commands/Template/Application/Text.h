#ifndef APPLICATION_TEXT_H
#define APPLICATION_TEXT_H

#include "Core/Control/GUIObject.h"

#include <string>

/** An object class of the application: a line of text. In a dialog file it is
 *
 *      <Text id="BTN_DONE" text="Done" focusable="true"/>
 *
 *  with the attribute text and those of every object. A focusable one is a button.
 */
class CText : public CGUIObject
{
public:
    using CGUIObject::CGUIObject;

    void SetText(const std::string& kText) { m_kText = kText; }
    const std::string& GetText() const { return m_kText; }

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override;

private:
    std::string m_kText;
};

#endif
