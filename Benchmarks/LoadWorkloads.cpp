// SPDX-License-Identifier: MIT
// Loading dialogs and destroying them.

#include "Benchmarks/Application.h"
#include "Benchmarks/HandWritten.h"
#include "Benchmarks/Workload.h"

#include <pugixml.hpp>

#include <fstream>
#include <iterator>

namespace
{
/** Loads a dialog through the factory. */
class CLoad
{
public:
    CLoad(ESource eSource, const char* pcFile, unsigned uiObjects)
        : m_kFactory(eSource), m_kPath(pcFile), m_uiObjects(uiObjects)
    {
    }

    void Do()
    {
        const std::unique_ptr<CGUIObject> pkDialog(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile(m_kPath));
        Require(CGUIObject::GetNOFObjects() == 1 + m_uiObjects);
    }

private:
    CGUI m_kRoot;
    CBenchmarkFactory m_kFactory;
    eC_String m_kPath;
    unsigned m_uiObjects;
};

/** Parses the bytes of the file with pugixml only. */
class CParseAlone
{
public:
    explicit CParseAlone(const char* pcFile)
    {
        std::ifstream kFile(pcFile, std::ios::binary);
        m_kText.assign(std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>());
    }

    void Do()
    {
        pugi::xml_document kDocument;
        Require(kDocument.load_buffer(m_kText.data(), m_kText.size()));
    }

private:
    std::string m_kText;
};

/** Builds the same number of objects by hand, from a constant instead of a table. */
class CBuildByHand
{
public:
    CBuildByHand(unsigned uiObjects, unsigned uiButtons) : m_uiObjects(uiObjects), m_uiButtons(uiButtons) {}

    void Do()
    {
        m_kScreens.Build(GetScreenID(0), m_uiObjects, m_uiButtons);
        m_kScreens.Destroy(GetScreenID(0));
    }

private:
    CHandWrittenScreens m_kScreens;
    unsigned m_uiObjects;
    unsigned m_uiButtons;
};

struct LoadedFile_t
{
    const char* m_pcFile;
    unsigned m_uiObjects;
    unsigned m_uiButtons;
};
} // namespace

void AddLoadComparisons(Comparisons_t& kComparisons)
{
    for (const LoadedFile_t& kFile :
         {LoadedFile_t{cpcScreenFile, cuiObjectsPerScreen, cuiButtonsPerScreen},
          LoadedFile_t{cpcLargeFile, cuiObjectsOfLargeScreen, cuiButtonsOfLargeScreen}})
    {
        const std::string kSize = std::to_string(kFile.m_uiObjects);
        kComparisons.push_back({"load/from-file/" + kSize, LOGS_NOTHING, 1,
                                MakerOf<CLoad>(FILES, kFile.m_pcFile, kFile.m_uiObjects),
                                MakerOf<CParseAlone>(kFile.m_pcFile)});
        // The floor as work, because only the instructions of work are counted.
        kComparisons.push_back({"load/parsed-by-pugixml/" + kSize, LOGS_NOTHING, 1,
                                MakerOf<CParseAlone>(kFile.m_pcFile), MakerOf<CParseAlone>(kFile.m_pcFile)});
        kComparisons.push_back({"load/from-rom/" + kSize, LOGS_NOTHING, 1,
                                MakerOf<CLoad>(ROM, kFile.m_pcFile, kFile.m_uiObjects),
                                MakerOf<CBuildByHand>(kFile.m_uiObjects, kFile.m_uiButtons)});
    }
}
