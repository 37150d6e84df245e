#include "Application/Text.h"

#include "Core/Utils/eC_String.h"

EAttributeResult CText::SetAttribute(const eC_Char* pcName, const eC_Char* pcValue, eC_String& kExpectedOUT)
{
    if (std::string(pcName) == "text")
    {
        m_kText = pcValue;
        return ATTRIBUTE_SET;
    }
    const EAttributeResult eResult = CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
    if (eResult == ATTRIBUTE_UNKNOWN)
    {
        // A message about a wrong attribute names all attributes.
        kExpectedOUT = "text, " + kExpectedOUT;
    }
    return eResult;
}
