// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_CODEFACTORY_H
#define TESTSUPPORT_CODEFACTORY_H

/** @file
 *  A dialog reader that builds its trees in code.
 */

#include "Core/GUIFactoryManager.h"

#include <functional>
#include <string>
#include <vector>

/** How something fails that a test told to fail. */
enum EFailure : unsigned char
{
    FAILURE_NULL,     ///< gives null
    FAILURE_INT,      ///< throws the int 7
    FAILURE_EXCEPTION ///< throws std::runtime_error("deliberate failure")
};

/** Throws as the failure says; FAILURE_NULL returns. */
void ThrowFailure(EFailure eFailure);

/** Reads dialogs by calling builder functions that were registered for their paths.
 *
 *  Register it with CGUIFactoryManager::RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix, ...).
 */
class CCodeFactory : public CGUIDialogReader
{
public:
    /** Builds a tree without a parent. */
    using Builder_t = std::function<CGUIObject*()>;

    /** What the paths begin with. */
    static constexpr const char* cpcPrefix = "code:";

    /** Registers a builder for a path, or replaces the one registered.
     *  @param kPath the whole path, prefix included
     */
    void RegisterBuilder(const std::string& kPath, Builder_t kBuilder);

    /** Registers a tree for a path, or replaces what is registered.
     *  @param kPath the whole path, prefix included
     *  @param kTree its description, see CObjectTree
     *  @throws std::invalid_argument when the description is wrong; nothing is registered then
     */
    void RegisterTree(const std::string& kPath, const std::string& kTree);

    /** Forgets the builder of a path: the file is gone. */
    void Unregister(const std::string& kPath);

    /** Lets one of the coming loads fail, before its builder is called.
     *  @param uiLoad which one, 1 for the next
     *  @param eFailure how
     */
    void FailLoad(eC_UInt uiLoad, EFailure eFailure);

    /** Forgets the failures that have not come yet. */
    void ClearFailures() { m_kFailures.clear(); }

    /** Loads a dialog. For a path without builder it logs one ERROR entry and returns null. What the
     *  builder throws passes through, so that tests can see what callers make of a reader that throws.
     */
    CGUIObject* Read(const eC_String& kPath) override;

    /** @return how often Read was called, failing calls included */
    eC_UInt GetLoads() const { return static_cast<eC_UInt>(m_kLoads.size()); }

    /** @return how often Read was called for a path, failing calls included */
    eC_UInt GetLoads(const std::string& kPath) const;

private:
    struct NamedBuilder_t
    {
        std::string m_kPath;
        Builder_t m_kBuilder;
    };

    struct Failure_t
    {
        eC_UInt m_uiLoad; ///< counted from the first load
        EFailure m_eFailure;
    };

    const Builder_t* FindBuilder(const std::string& kPath) const;

    std::vector<NamedBuilder_t> m_kBuilders;
    std::vector<Failure_t> m_kFailures;
    std::vector<std::string> m_kLoads;
};

#endif
