// SPDX-License-Identifier: MIT
#ifndef CORE_GUIFACTORYMANAGER_H
#define CORE_GUIFACTORYMANAGER_H

/** @file
 *  The loader of dialogs: object classes by element name, readers by file type or path prefix.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_TList_doubleLinked.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CGUI;
class CGUICompositeObject;
class CGUIObject;

/** Reads dialog descriptions of one kind. An application derives its own reader or uses one of the library's.
 */
class GUI_API CGUIDialogReader
{
public:
    /** The code that registers a reader owns it. */
    virtual ~CGUIDialogReader() = default;

    /** Builds the object tree that a description describes.
     *
     *  On bad input a reader logs one ERROR entry that names file, line and column and says what was
     *  expected, leaves no object behind and returns null; it does not throw.
     *  @param kPath the path as it was registered with the dialog manager
     *  @return the new top object without a parent, owned by the caller, or null
     */
    virtual CGUIObject* Read(const eC_String& kPath) = 0;
};

/** Loads dialogs by path and makes objects by element name.
 *
 *  Readers and object classes are registered by the application at start-up. The framework's own object
 *  classes, "Object" (CGUIObject) and "Composite" (CGUICompositeObject), are always registered.
 *
 *  The root creates the factory when there is none, and destroys it with itself, after everything below
 *  the root. An application that needs its factory earlier, or for longer than one root, calls
 *  CreateInstance, before or after it makes the root, and DestroyInstance.
 */
class GUI_API CGUIFactoryManager
{
public:
    /** Makes an object of one class, with plain new.
     *  @param pkParent the parent to attach to, or null
     *  @param eID the identifier
     *  @return the object; null when it cannot be made; nothing of it is left then, and a reader refuses the
     *          description with an error that names the element.
     */
    using ObjectCreator_t = CGUIObject* (*)(CGUICompositeObject* pkParent, ObjectHandle_t eID);

    CGUIFactoryManager(const CGUIFactoryManager&) = delete;
    CGUIFactoryManager& operator=(const CGUIFactoryManager&) = delete;

    /** Makes the instance, unless there is one already. From now on the application owns it, even if the
     *  root has created it: it stays, with all registrations, until DestroyInstance.
     *  @return the instance
     *  @throws std::bad_alloc when there is no memory to make it; there is no instance then
     */
    static CGUIFactoryManager& CreateInstance();

    /** Destroys the instance with all registrations, whoever created it. Does nothing if there is none. A
     *  root that exists does not make another one.
     */
    static void DestroyInstance();

    /** @return the instance, which must exist (not checked): it does while there is a root, unless
     *          DestroyInstance was called, and between CreateInstance and DestroyInstance
     */
    static CGUIFactoryManager& GetInstance() { return *ms_pInstance; }

    /** Registers an object class under the name of its element.
     *  @param pcElementName the name, zero-terminated, kept by pointer: it must outlive the factory
     *  @param pfnCreate makes an object of the class
     *  @return false, with nothing changed, when the name is registered already
     */
    eC_Bool RegisterObjectClass(const eC_Char* pcElementName, ObjectCreator_t pfnCreate);

    /** Registers an object class that is built from its parent and its identifier.
     *  @tparam TObject the class, with a constructor from CGUICompositeObject* and ObjectHandle_t
     *  @param pcElementName the name, zero-terminated, kept by pointer: it must outlive the factory
     *  @return false, with nothing changed, when the name is registered already
     */
    template <typename TObject>
    eC_Bool RegisterObjectClass(const eC_Char* pcElementName)
    {
        return RegisterObjectClass(pcElementName, [](CGUICompositeObject* pkParent, ObjectHandle_t eID)
                                   { return static_cast<CGUIObject*>(new TObject(pkParent, eID)); });
    }

    /** Makes an object by the name of its element.
     *  @param pcElementName the name, zero-terminated
     *  @param pkParent the parent to attach to, or null
     *  @param eID the identifier
     *  @return the object, owned by its parent or else by the caller; null when no class of that name is
     *          registered or its creator returns null
     */
    CGUIObject* CreateObject(const eC_Char* pcElementName, CGUICompositeObject* pkParent,
                             ObjectHandle_t eID) const;

    /** Finds the creator of a class. It stays valid until the factory is destroyed.
     *  @param pcElementName the name of the class's element, zero-terminated
     *  @return null when no class of that name is registered
     */
    ObjectCreator_t FindCreator(const eC_Char* pcElementName) const;

    /** @return the registered element names in the order of their registration, joined with ", " */
    eC_String GetElementNames() const;

    /** Registers a reader for all paths that end in a dot and a file type.
     *  @param kFileType the type without its dot, for example "xml"; case counts
     *  @param pkReader the reader, not owned; it must outlive the factory
     *  @return false, with nothing changed, when there is a reader for that type already
     */
    eC_Bool RegisterReaderForFileType(const eC_String& kFileType, CGUIDialogReader* pkReader);

    /** Registers a reader for all paths that begin with a prefix. Prefixes are tried before file types,
     *  the longest one first.
     *  @param kPrefix the prefix, for example "rom:"
     *  @param pkReader the reader, not owned; it must outlive the factory
     *  @return false, with nothing changed, when there is a reader for that prefix already
     */
    eC_Bool RegisterReaderForPathPrefix(const eC_String& kPrefix, CGUIDialogReader* pkReader);

    /** Builds the object tree that a dialog description describes, through the reader for its path.
     *  Without a reader it logs an ERROR that says what to register. Never throws on bad input.
     *  @return the new top object without a parent, owned by the caller, or null
     */
    CGUIObject* LoadDialogFromFile(const eC_String& kPath);

    static CGUIFactoryManager* ms_pInstance; ///< null while there is none

private:
    friend class CGUI;

    struct ObjectClass_t
    {
        const eC_Char* m_pcElementName = nullptr;
        ObjectCreator_t m_pfnCreate = nullptr;
    };

    struct RegisteredReader_t
    {
        eC_String m_kText; ///< the prefix, or the file type with its dot
        eC_Bool m_bIsPrefix = false;
        CGUIDialogReader* m_pkReader = nullptr;
    };

    CGUIFactoryManager();
    ~CGUIFactoryManager() = default;

    static void CreateForRoot();
    static void DestroyWithRoot();

    eC_Bool RegisterReader(const eC_String& kText, eC_Bool bIsPrefix, CGUIDialogReader* pkReader);
    CGUIDialogReader* FindReader(const eC_String& kPath) const;

    eC_TListDoubleLinked<ObjectClass_t> m_kObjectClasses;
    eC_TListDoubleLinked<RegisteredReader_t> m_kReaders;
    eC_Bool m_bGoesWithRoot; ///< created by the root and not kept by CreateInstance
};

#endif
