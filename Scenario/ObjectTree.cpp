// SPDX-License-Identifier: MIT
#include "Scenario/ObjectTree.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIFactoryManager.h"

#include <memory>
#include <stdexcept>
#include <utility>

/** Reads the text word by word. Each of the characters { } ; = is a word, unless it is quoted. */
class CObjectTree::CReader
{
public:
    explicit CReader(const std::string& kText) : m_kText(kText), m_uiPosition(0), m_bIsQuoted(false)
    {
        Advance();
    }

    Node_t ReadTop()
    {
        Node_t kTop = ReadNode("Composite");
        if (!IsEnd())
        {
            Fail("the end");
        }
        return kTop;
    }

private:
    Node_t ReadNode(const char* pcDefaultClass)
    {
        Node_t kNode;
        if (!TakeIdentifier(kNode.m_eID))
        {
            kNode.m_kClass = TakeName("an object class or an identifier");
            if (!TakeIdentifier(kNode.m_eID))
            {
                Fail("an identifier");
            }
        }
        while (!IsEnd() && !IsSign("{") && !IsSign("}") && !IsSign(";"))
        {
            kNode.m_kAttributes.push_back(ReadAttribute());
        }
        const bool bHasChildren = IsSign("{");
        if (bHasChildren)
        {
            ReadChildren(kNode);
        }
        if (kNode.m_kClass.empty())
        {
            kNode.m_kClass = bHasChildren ? "Composite" : pcDefaultClass;
        }
        return kNode;
    }

    void ReadChildren(Node_t& kNode)
    {
        Advance();
        while (!IsSign("}"))
        {
            kNode.m_kChildren.push_back(ReadNode("Object"));
            if (IsSign(";"))
            {
                Advance();
            }
            else if (!IsSign("}"))
            {
                Fail("; or }");
            }
        }
        Advance();
    }

    std::pair<std::string, std::string> ReadAttribute()
    {
        std::string kName = TakeName("an attribute");
        if (!IsSign("="))
        {
            return {std::move(kName), "true"};
        }
        Advance();
        if (IsEnd() || IsAnySign())
        {
            Fail("a value for " + kName);
        }
        std::string kValue = m_kWord;
        Advance();
        return {std::move(kName), std::move(kValue)};
    }

    bool TakeIdentifier(ObjectHandle_t& eIDOUT)
    {
        const bool bIsIdentifier =
            !m_bIsQuoted && (m_kWord == "-" || ParseObjectHandle(m_kWord.c_str(), eIDOUT));
        if (bIsIdentifier)
        {
            Advance();
        }
        return bIsIdentifier;
    }

    std::string TakeName(const std::string& kExpected)
    {
        if (IsEnd() || m_bIsQuoted || IsAnySign())
        {
            Fail(kExpected);
        }
        std::string kName = m_kWord;
        Advance();
        return kName;
    }

    void Advance()
    {
        m_uiPosition = m_kText.find_first_not_of(" \t\n", m_uiPosition);
        m_bIsQuoted = false;
        m_kWord.clear();
        if (m_uiPosition == std::string::npos)
        {
            return;
        }
        if (m_kText[m_uiPosition] == '"')
        {
            AdvanceOverQuoted();
            return;
        }
        const std::size_t uiLength = std::string("{};=").find(m_kText[m_uiPosition]) != std::string::npos
                                         ? 1
                                         : m_kText.find_first_of(" \t\n{};=\"", m_uiPosition) - m_uiPosition;
        m_kWord = m_kText.substr(m_uiPosition, uiLength);
        m_uiPosition += m_kWord.size();
    }

    void AdvanceOverQuoted()
    {
        const std::size_t uiEnd = m_kText.find('"', m_uiPosition + 1);
        if (uiEnd == std::string::npos)
        {
            throw std::invalid_argument("expected a closing quote in: " + m_kText);
        }
        m_bIsQuoted = true;
        m_kWord = m_kText.substr(m_uiPosition + 1, uiEnd - m_uiPosition - 1);
        m_uiPosition = uiEnd + 1;
    }

    bool IsEnd() const { return m_kWord.empty() && !m_bIsQuoted; }
    bool IsSign(const char* pcSign) const { return !m_bIsQuoted && m_kWord == pcSign; }
    bool IsAnySign() const { return IsSign("{") || IsSign("}") || IsSign(";") || IsSign("="); }

    [[noreturn]] void Fail(const std::string& kExpected) const
    {
        throw std::invalid_argument("expected " + kExpected + ", found " +
                                    (IsEnd() ? "the end" : "'" + m_kWord + "'") + " in: " + m_kText);
    }

    const std::string& m_kText;
    std::size_t m_uiPosition;
    std::string m_kWord;
    bool m_bIsQuoted;
};

CObjectTree::CObjectTree(const std::string& kText) : m_kTop(CReader(kText).ReadTop()) {}

CGUIObject* CObjectTree::Build(CGUICompositeObject* pkParent) const
{
    return BuildNode(m_kTop, pkParent);
}

CGUIObject* CObjectTree::BuildNode(const Node_t& kNode, CGUICompositeObject* pkParent)
{
    const CGUIFactoryManager& kFactory = CGUIFactoryManager::GetInstance();
    std::unique_ptr<CGUIObject> pkObject(
        kFactory.CreateObject(kNode.m_kClass.c_str(), pkParent, kNode.m_eID));
    if (pkObject == nullptr)
    {
        throw std::invalid_argument("expected an object class (" +
                                    std::string(kFactory.GetElementNames().GetText()) + "), found '" +
                                    kNode.m_kClass + "'");
    }
    SetAttributes(kNode, *pkObject);
    if (!kNode.m_kChildren.empty() && !pkObject->IsCompositeObject())
    {
        throw std::invalid_argument("expected a class that takes children, found '" + kNode.m_kClass + "'");
    }
    for (const Node_t& kChild : kNode.m_kChildren)
    {
        BuildNode(kChild, static_cast<CGUICompositeObject*>(pkObject.get()));
    }
    return pkObject.release();
}

void CObjectTree::SetAttributes(const Node_t& kNode, CGUIObject& kObject)
{
    for (const auto& [kName, kValue] : kNode.m_kAttributes)
    {
        eC_String kExpected;
        if (kObject.SetAttribute(kName.c_str(), kValue.c_str(), kExpected) != ATTRIBUTE_SET)
        {
            std::string kMessage = "expected ";
            kMessage.append(kExpected.GetText()).append(", found '");
            kMessage.append(kName).append("=").append(kValue).append("'");
            throw std::invalid_argument(kMessage);
        }
    }
}
