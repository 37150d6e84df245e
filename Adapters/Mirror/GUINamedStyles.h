// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUINAMEDSTYLES_H
#define ADAPTERS_MIRROR_GUINAMEDSTYLES_H

/** @file
 *  The styles that an application gives an adapter, by name.
 */

#include "Core/Utils/eC_Types.h"

#include <cstring>
#include <memory>

/** Styles of a toolkit with their names, in the order in which they were added.
 *  @tparam TStyle what the toolkit calls a style; is copied
 */
template <typename TStyle>
class CGUINamedStyles
{
public:
    /** @param pcName not copied. @throws std::bad_alloc with nothing changed */
    void Add(const eC_Char* pcName, const TStyle& tStyle)
    {
        // Styles are added at start-up only.
        std::unique_ptr<Style_t[]> pkStyles(new Style_t[m_uiNOFStyles + 1]);
        for (eC_UInt uiStyle = 0; uiStyle < m_uiNOFStyles; ++uiStyle)
        {
            pkStyles[uiStyle] = m_pkStyles[uiStyle];
        }
        pkStyles[m_uiNOFStyles++] = {pcName, tStyle};
        m_pkStyles.swap(pkStyles);
    }

    /** Calls a function with each style of a name. @param pcName the empty name has none */
    template <typename TFunction>
    void ForEach(const eC_Char* pcName, const TFunction& tFunction) const
    {
        for (eC_UInt uiStyle = 0; *pcName != '\0' && uiStyle < m_uiNOFStyles; ++uiStyle)
        {
            if (std::strcmp(m_pkStyles[uiStyle].m_pcName, pcName) == 0)
            {
                tFunction(m_pkStyles[uiStyle].m_tStyle);
            }
        }
    }

    /** Calls a function with each style. */
    template <typename TFunction>
    void ForAll(const TFunction& tFunction) const
    {
        for (eC_UInt uiStyle = 0; uiStyle < m_uiNOFStyles; ++uiStyle)
        {
            tFunction(m_pkStyles[uiStyle].m_tStyle);
        }
    }

private:
    struct Style_t
    {
        const eC_Char* m_pcName;
        TStyle m_tStyle;
    };

    std::unique_ptr<Style_t[]> m_pkStyles;
    eC_UInt m_uiNOFStyles = 0;
};

#endif
