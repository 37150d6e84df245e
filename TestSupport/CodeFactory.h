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

/** How something fails when a test tells it to. */
enum EFailure : unsigned char
{
    FAILURE_NULL,     ///< returns null
    FAILURE_INT,      ///< throws the int 7
    FAILURE_EXCEPTION ///< throws std::runtime_error("deliberate failure")
};

/** Throws as requested; FAILURE_NULL returns. */
void ThrowFailure(EFailure eFailure);

/** Reads dialogs by calling the builder functions registered for their paths.
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

    /** Registers a builder for a path, or replaces the one registered there.
     *  @param kPath the whole path, including the prefix
     */
    void RegisterBuilder(const std::string& kPath, Builder_t kBuilder);

    /** Registers a tree for a path, or replaces what is registered there.
     *  @param kPath the whole path, including the prefix
     *  @param kTree its description, see CObjectTree
     *  @throws std::invalid_argument if the description is wrong; nothing is registered then
     */
    void RegisterTree(const std::string& kPath, const std::string& kTree);

    /** Forgets the builder of a path, as if the file were gone. */
    void Unregister(const std::string& kPath);

    /** Makes one of the coming loads fail, before its builder is called.
     *  @param uiLoad which one, 1 for the next
     *  @param eFailure how
     */
    void FailLoad(eC_UInt uiLoad, EFailure eFailure);

    /** Forgets the failures that have not happened yet. */
    void ClearFailures() { m_kFailures.clear(); }

    /** Loads a dialog. For a path without a builder it logs one ERROR entry and returns null. Exceptions from
     *  the builder pass through, so that tests can see how callers handle a reader that throws.
     */
    CGUIObject* Read(const eC_String& kPath) override;

    /** @return how often Read was called, including calls that failed */
    eC_UInt GetLoads() const { return static_cast<eC_UInt>(m_kLoads.size()); }

    /** @return how often Read was called for a path, including calls that failed */
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
