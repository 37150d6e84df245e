// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogXMLReader.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUITrace.h"
#include "Loader/DialogDocument.h"
#include "Loader/DialogFileError.h"
#include "Loader/DialogTreeBuilder.h"

#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

namespace
{
/** @return the place of the error that a builder found */
TextPosition_t Locate(const CDialogDocument& kDocument, const CDialogTreeBuilder& kBuilder)
{
    switch (kBuilder.GetPart())
    {
    case CDialogTreeBuilder::ATTRIBUTE_NAME:
        return kDocument.LocateName(*kBuilder.GetAttribute());
    case CDialogTreeBuilder::ATTRIBUTE_VALUE:
        return kDocument.LocateValue(*kBuilder.GetAttribute());
    case CDialogTreeBuilder::ELEMENT:
        break;
    }
    return kDocument.LocateElement(kBuilder.GetElement());
}
} // namespace

CGUIDialogXMLReader::CGUIDialogXMLReader(const eC_String& kBaseDirectory) : m_kBaseDirectory(kBaseDirectory)
{
}

CGUIDialogXMLReader::~CGUIDialogXMLReader() = default;

CGUIObject* CGUIDialogXMLReader::Read(const eC_String& kPath)
{
    DialogFileError_t kError;
    std::unique_ptr<CGUIObject> kObject = Build(kPath, kError);
    if (!kObject)
    {
        GUILOG(GUI_TRACE_ERROR, "CGUIDialogXMLReader::Read: " + FormatDialogFileError(kPath, kError) + ".\n");
    }
    return kObject.release();
}

std::unique_ptr<CGUIObject> CGUIDialogXMLReader::Build(const eC_String& kPath, DialogFileError_t& kErrorOUT)
{
    if (!IsPathOfOneLine(kPath))
    {
        kErrorOUT = MakePathError();
        return nullptr;
    }
    // An object that loads another dialog in its constructor finds no document here and gets its own.
    std::unique_ptr<CDialogDocument> pkDocument = std::move(m_pkDocument);
    if (!pkDocument)
    {
        pkDocument = std::make_unique<CDialogDocument>();
    }
    std::unique_ptr<CGUIObject> kObject;
    const std::filesystem::path kBaseDirectory =
        std::string_view(m_kBaseDirectory.GetText(), m_kBaseDirectory.GetLength());
    if (pkDocument->Load(kBaseDirectory / kPath.GetText(), kErrorOUT))
    {
        const DialogElements_t kElements = pkDocument->GetElements();
        CDialogTreeBuilder kBuilder(kElements);
        kObject = kBuilder.Build();
        if (!kObject)
        {
            kErrorOUT = kBuilder.MakeError(Locate(*pkDocument, kBuilder));
        }
    }
    m_pkDocument = std::move(pkDocument);
    return kObject;
}
