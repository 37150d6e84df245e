// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGTREEBUILDER_H
#define LOADER_DIALOGTREEBUILDER_H

/** @file
 *  From elements to objects.
 */

#include "Core/GUIFactoryManager.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"
#include "Loader/DialogFileError.h"

#include <memory>

class CGUICompositeObject;
class CGUIObject;

/** Builds the objects of one description, once, with the factory's object classes. Unless there is an error,
 *  it allocates nothing but the objects.
 */
class GUI_API CDialogTreeBuilder
{
public:
    /** The part of an element that a message points to. */
    enum EPart : unsigned char
    {
        ELEMENT,         ///< the '<' of the start tag
        ATTRIBUTE_NAME,  ///< its first character
        ATTRIBUTE_VALUE, ///< its first character
    };

    /** @param kElements the elements, kept by reference */
    explicit CDialogTreeBuilder(const DialogElements_t& kElements);
    CDialogTreeBuilder(const CDialogTreeBuilder&) = delete;
    CDialogTreeBuilder& operator=(const CDialogTreeBuilder&) = delete;
    ~CDialogTreeBuilder();

    /** Builds the objects.
     *  @return the top object; null when the description has an error, which the functions below describe
     *  @throw std::bad_alloc, and what an object class throws; the objects made so far are destroyed
     */
    std::unique_ptr<CGUIObject> Build();

    /** After Build returned null: @return the element with the error */
    const DialogElement_t& GetElement() const { return *m_pkElement; }

    /** After Build returned null: @return the attribute with the error; when the element itself has the
     * error, the first attribute that was not read
     */
    const DialogAttribute_t* GetAttribute() const { return m_pkAttribute; }

    /** After Build returned null: @return the part of the element where the error is */
    EPart GetPart() const;

    /** After Build returned null: @return the error. @param kPosition the place of that part of the element
     */
    DialogFileError_t MakeError(const TextPosition_t& kPosition) const;

private:
    enum EFailure : unsigned char
    {
        UNKNOWN_ELEMENT,
        ELEMENT_INSIDE,
        TOO_DEEP,
        NOT_MADE,
        WRONG_HANDLE,
        UNKNOWN_ATTRIBUTE,
        BAD_VALUE
    };

    /** An object class that was found. */
    struct Class_t
    {
        const eC_Char* m_pcName = nullptr;
        CGUIFactoryManager::ObjectCreator_t m_pfnCreate = nullptr; ///< null: there is no such class
    };

    eC_Bool BuildElement();
    void FindCreator(const eC_Char* pcClass);
    eC_Bool ReadIdentifier(ObjectHandle_t& eIDOUT);
    eC_Bool SetAttributes(CGUIObject& kObject);
    eC_Bool Fail(EFailure eFailure);
    const eC_Char* GetOuterElementName() const;

    const DialogElements_t& m_kElements;
    const CGUIFactoryManager& m_kFactory;
    const DialogElement_t* m_pkElement;        ///< the element that is being built
    const DialogAttribute_t* m_pkAttribute;    ///< its first attribute that was not read yet
    CGUIObject* m_apkOpen[cuiMaxElementDepth]; ///< the last object of each level so far
    std::unique_ptr<CGUIObject> m_kTop;
    Class_t m_kClass;      ///< the class of the last object
    Class_t m_kOtherClass; ///< the class before it
    EFailure m_eFailure = UNKNOWN_ELEMENT;
    eC_String m_kExpected; ///< what an object expected of an attribute
};

#endif
