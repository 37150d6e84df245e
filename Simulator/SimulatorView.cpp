// SPDX-License-Identifier: MIT
#include "Simulator/SimulatorView.h"

#include "Core/GUIEventHandler.h"
#include "Simulator/PanePainter.h"
#include "Simulator/SimulationLayout.h"
#include "Simulator/TextPainter.h"

#include <algorithm>

namespace
{
constexpr eC_Int ciLeastInspector = 32; ///< columns
constexpr eC_Int ciLeastTrace = 5;      ///< rows, with the heading
constexpr eC_Int ciMostCaption = 4;     ///< rows
constexpr eC_Int ciFrameRows = 4;       ///< banner, upper and lower edge, keys
constexpr eC_Int ciMenuColumns = 2;     ///< if the menu fits into two
constexpr eC_Int ciMostBoxWidth = 76;

/** Where everything is. */
struct DeskLayout_t
{
    GUIArea_t m_kScreen; ///< the device's screen, inside its frame
    GUIArea_t m_kKeys;   ///< the keys below it
    GUIArea_t m_kInspector;
    GUIArea_t m_kCaption;
    GUIArea_t m_kTrace;
    GUIArea_t m_kBox; ///< of what is open over everything
};

eC_Int GetColumns(const Device_t& kDevice)
{
    return kDevice.m_iWidth / kDevice.m_iColumnWidth;
}

eC_Int GetRows(const Device_t& kDevice)
{
    return kDevice.m_iHeight / kDevice.m_iRowHeight;
}

eC_Int GetBoxHeight(const CSimulatorDesk& kDesk)
{
    switch (kDesk.GetMode())
    {
    case CSimulatorDesk::MODE_HELP:
        return static_cast<eC_Int>(CSimulatorDesk::GetKeys().size()) + 5;
    case CSimulatorDesk::MODE_MENU:
        return static_cast<eC_Int>(kDesk.GetMenu().size() + 1) / ciMenuColumns + 3;
    case CSimulatorDesk::MODE_FORM:
        return static_cast<eC_Int>(kDesk.GetForm()->GetCount()) + 10;
    default:
        return 0;
    }
}

/** @return whether there is something to say below the device */
eC_Bool HasCaption(const CSimulatorDesk& kDesk)
{
    return kDesk.IsTouring() || !kDesk.GetMistake().empty();
}

/** @return the lines below the device: a mistake, or what the tour says; none without both */
std::vector<std::string> WrapCaption(const CSimulatorDesk& kDesk, eC_Int iWidth)
{
    if (!HasCaption(kDesk))
    {
        return {};
    }
    const std::string kChapter = kDesk.GetTourChapter();
    const std::string kTour = kChapter + (kChapter.empty() ? "" : ". ") + kDesk.GetTourCaption();
    return WrapText(kDesk.GetMistake().empty() ? kTour : "!! " + kDesk.GetMistake(), std::max(iWidth - 2, 1));
}

DeskLayout_t PlaceDesk(const CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight)
{
    const Device_t& kDevice = kDesk.GetDevice();
    const auto iLines = static_cast<eC_Int>(WrapCaption(kDesk, iWidth).size());
    const eC_Int iCaption = HasCaption(kDesk) ? std::clamp(iLines, 2, ciMostCaption) : 0;
    // On a narrow screen the device is worth more than the inspector.
    const eC_Int iBeside = iWidth < ciLeastDeskWidth ? 2 : ciLeastInspector + 3;
    const eC_Int iLeft = std::clamp(iWidth - iBeside, 1, GetColumns(kDevice));
    // The device stays where it is, however much a tour says.
    const eC_Int iBelow = HasCaption(kDesk) ? ciMostCaption + ciLeastTrace - 2 : ciLeastTrace;
    const eC_Int iUpper = std::clamp(iHeight - ciFrameRows - 1 - iBelow, 1, GetRows(kDevice));
    const eC_Int iTop = std::max(iUpper + ciFrameRows, (iHeight - ciMostCaption) * 3 / 5);
    const eC_Int iTrace = std::max(iHeight - 1 - iTop - iCaption, 0);
    const eC_Int iBox = std::min(GetBoxHeight(kDesk), iHeight);
    const eC_Int iBoxWidth = std::min(iWidth, ciMostBoxWidth);

    DeskLayout_t kLayout;
    kLayout.m_kScreen = {1, 2, iLeft, iUpper};
    kLayout.m_kKeys = {0, iUpper + 3, iLeft + 2, 1};
    kLayout.m_kInspector = {iLeft + 3, 1, std::max(iWidth - iLeft - 3, 0), iTop - 1};
    kLayout.m_kCaption = {0, iTop, iWidth, iCaption};
    kLayout.m_kTrace = {0, iTop + iCaption, iWidth, iTrace};
    kLayout.m_kBox = {(iWidth - iBoxWidth) / 2, (iHeight - iBox) / 2, iBoxWidth, iBox};
    return kLayout;
}

eC_Bool Contains(const GUIArea_t& kArea, eC_Int iX, eC_Int iY)
{
    return iX >= kArea.m_iX && iX < kArea.m_iX + kArea.m_iWidth && iY >= kArea.m_iY &&
           iY < kArea.m_iY + kArea.m_iHeight;
}

/** @return where to begin so that a place is shown in the middle of a part */
eC_Int GetOffset(eC_Int iPlace, eC_Int iPart, eC_Int iWhole)
{
    return std::clamp(iPlace - iPart / 2, 0, std::max(iWhole - iPart, 0));
}

/** @return the part of the device's screen that is shown: around what has the focus, if not all fits */
GUIArea_t GetShownPart(const CSimulatorDesk& kDesk, const GUIArea_t& kScreen)
{
    const Device_t& kDevice = kDesk.GetDevice();
    const CGUIObject* const pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    const GUIArea_t kFocus =
        pkFocussed != nullptr ? CSimulationLayout(kDevice).Get().GetArea(*pkFocussed) : GUIArea_t();
    return {GetOffset(kFocus.m_iX / kDevice.m_iColumnWidth, kScreen.m_iWidth, GetColumns(kDevice)),
            GetOffset(kFocus.m_iY / kDevice.m_iRowHeight, kScreen.m_iHeight, GetRows(kDevice)),
            kScreen.m_iWidth, kScreen.m_iHeight};
}

/** Goes from the newest entry of a session to the oldest. */
class CTraceWalk
{
public:
    explicit CTraceWalk(const CSimulation& kSimulation)
        : m_kSimulation(kSimulation),
          m_uiEntry(kSimulation.GetTrace().size()),
          m_uiLine(kSimulation.GetPosition())
    {
    }

    eC_Bool GetOlder(TraceItem_t& kItemOUT)
    {
        // What a line has caused is newer than the line.
        if (m_uiEntry > 0 && m_kSimulation.GetTrace()[m_uiEntry - 1].m_uiLine + 1 >= m_uiLine)
        {
            kItemOUT = DescribeEntry(m_kSimulation.GetTrace()[--m_uiEntry]);
            return true;
        }
        if (m_uiLine == 0)
        {
            return false;
        }
        const std::string& kLine = m_kSimulation.GetLines()[--m_uiLine];
        const eC_Bool bIsComment = kLine.find('#') == kLine.find_first_not_of(" \t");
        kItemOUT = {bIsComment ? TraceItem_t::COMMENT : TraceItem_t::INPUT, "", kLine, 0};
        return true;
    }

private:
    static TraceItem_t DescribeEntry(const SimulatedTrace_t& kTrace)
    {
        const std::string& kPrefix = kTrace.m_kEntry.m_kPrefix;
        return {TraceItem_t::ENTRY, kPrefix.substr(0, kPrefix.find(':')), kTrace.m_kEntry.m_kMessage,
                kTrace.m_uiTime};
    }

    const CSimulation& m_kSimulation;
    std::size_t m_uiEntry; ///< how many entries are older
    std::size_t m_uiLine;  ///< how many lines are older
};

/** How the entries of the menu are placed. */
struct MenuGrid_t
{
    std::size_t m_uiRows;
    eC_Int m_iColumnWidth;
};

/** @return two columns, or as many as are needed to fit all entries into the box */
MenuGrid_t PlaceMenu(const CSimulatorDesk& kDesk, const GUIArea_t& kBox)
{
    const std::size_t uiEntries = kDesk.GetMenu().size();
    const auto uiMost = static_cast<std::size_t>(std::max(kBox.m_iHeight - 2, 1));
    const std::size_t uiColumns =
        std::max((uiEntries + uiMost - 1) / uiMost, static_cast<std::size_t>(ciMenuColumns));
    return {(uiEntries + uiColumns - 1) / uiColumns, (kBox.m_iWidth - 2) / static_cast<eC_Int>(uiColumns)};
}

/** Draws one desk. */
class CDeskPainter
{
public:
    CDeskPainter(const CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight)
        : m_kDesk(kDesk),
          m_kSimulation(kDesk.GetSimulation()),
          m_kLayout(PlaceDesk(kDesk, iWidth, iHeight)),
          m_kScreen(iWidth, iHeight)
    {
    }

    const CTextScreen& Draw()
    {
        DrawBanner();
        DrawDevice();
        DrawKeys();
        DrawInspector();
        DrawCaption();
        DrawTrace();
        DrawStatus();
        switch (m_kDesk.GetMode())
        {
        case CSimulatorDesk::MODE_HELP:
            DrawHelp();
            break;
        case CSimulatorDesk::MODE_MENU:
            DrawMenu();
            break;
        case CSimulatorDesk::MODE_FORM:
            DrawForm();
            break;
        default:
            break;
        }
        return m_kScreen;
    }

private:
    void DrawBanner()
    {
        const eC_Int iWidth = m_kScreen.GetWidth();
        m_kScreen.Fill({0, 0, iWidth, 1}, ' ', STYLE_BANNER);
        const eC_Bool bIsSmall = iWidth < ciLeastDeskWidth || m_kScreen.GetHeight() < ciLeastDeskHeight;
        const std::string kName = bIsSmall ? "80x24 shows all" : m_kDesk.GetDevice().m_pcName;
        const eC_Int iName = m_kScreen.Write(0, 0, (" SIMULATOR: " + kName).c_str(), STYLE_BANNER);
        const std::string kState = GetState() + "   " + FormatSeconds(m_kSimulation.GetTime()) + " s " +
                                   m_kDesk.GetSpeed() + "   ? help ";
        const eC_Int iColumns = CountColumns(kState.c_str());
        m_kScreen.Write(std::max(iWidth - iColumns, iName + 1), 0, kState.c_str(), STYLE_BANNER);
    }

    std::string GetState() const
    {
        const std::size_t uiPosition = m_kSimulation.GetPosition();
        const std::size_t uiLines = m_kSimulation.GetLines().size();
        const std::string kPaused = m_kDesk.IsPaused() ? ", paused" : "";
        if (m_kDesk.IsTouring())
        {
            return m_kDesk.IsPaused() ? "tour paused: p goes on" : "tour: keys of the device take over";
        }
        if (uiPosition < uiLines)
        {
            return "line " + std::to_string(uiPosition) + " of " + std::to_string(uiLines) + kPaused;
        }
        return m_kDesk.IsPaused() ? "paused" : "live";
    }

    void DrawDevice()
    {
        const GUIArea_t& kPlace = m_kLayout.m_kScreen;
        const GUIArea_t kPart = GetShownPart(m_kDesk, kPlace);
        const CTextScreen kDevice = PaintDevice(m_kDesk.GetDevice());
        const eC_Bool bIsWhole =
            kPart.m_iWidth == kDevice.GetWidth() && kPart.m_iHeight == kDevice.GetHeight();
        DrawFrame(m_kScreen, kPlace,
                  bIsWhole ? "simulated screen"
                           : "part of the simulated screen, " + std::to_string(kDevice.GetWidth()) + "x" +
                                 std::to_string(kDevice.GetHeight()));
        m_kScreen.Copy(kDevice, kPart, kPlace.m_iX, kPlace.m_iY);
    }

    void DrawKeys()
    {
        const Device_t& kDevice = m_kDesk.GetDevice();
        eC_Int iX = m_kLayout.m_kKeys.m_iX;
        for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
        {
            const std::string kLabel = std::string("[") + kDevice.m_pkKeys[uiKey].m_pcLabel + "]";
            m_kScreen.WriteShort(iX, m_kLayout.m_kKeys.m_iY, m_kLayout.m_kKeys.m_iWidth - iX, kLabel,
                                 STYLE_BUTTON);
            iX += CountColumns(kLabel.c_str()) + 1;
        }
    }

    void DrawInspector()
    {
        DrawLines(m_kScreen, m_kLayout.m_kInspector, "inspector, i I scroll",
                  DescribeState(m_kSimulation.GetInspector()), m_kDesk.GetInspectorScroll());
    }

    void DrawCaption()
    {
        const GUIArea_t& kArea = m_kLayout.m_kCaption;
        const ETextStyle eStyle = m_kDesk.GetMistake().empty() ? STYLE_CAPTION : STYLE_ERROR;
        m_kScreen.Fill(kArea, ' ', eStyle);
        eC_Int iRow = 0;
        for (const std::string& kLine : WrapCaption(m_kDesk, kArea.m_iWidth))
        {
            if (iRow < kArea.m_iHeight)
            {
                m_kScreen.Write(kArea.m_iX + 1, kArea.m_iY + iRow, kLine.c_str(), eStyle);
            }
            ++iRow;
        }
    }

    void DrawTrace()
    {
        CTraceWalk kWalk(m_kSimulation);
        DrawTracePane(m_kScreen, m_kLayout.m_kTrace, m_kDesk.GetTracePane(),
                      [&kWalk](TraceItem_t& kItemOUT) { return kWalk.GetOlder(kItemOUT); });
    }

    void DrawStatus()
    {
        const eC_Int iRow = m_kScreen.GetHeight() - 1;
        const eC_Int iWidth = m_kScreen.GetWidth();
        if (m_kDesk.GetMode() == CSimulatorDesk::MODE_PROMPT)
        {
            static const eC_Char* const s_apcPrompts[] = {
                ":", "show only lines with: ", "record in file: ", "write a picture to file: "};
            const eC_Int iPrompt = m_kScreen.Write(0, iRow, s_apcPrompts[m_kDesk.GetPrompt()], STYLE_STRONG);
            DrawEditor(m_kScreen, m_kDesk.GetEditor(), iPrompt, iRow, iWidth - iPrompt);
            return;
        }
        const std::string kTyping =
            m_kDesk.IsTyping() ? "typing into the text field; Ctrl+T before keys of the simulator" : "";
        const std::string& kMessage = m_kDesk.GetMessage().empty() ? kTyping : m_kDesk.GetMessage();
        const eC_Bool bIsError = m_kDesk.GetMessageStyle() == STYLE_ERROR;
        m_kScreen.WriteShort(0, iRow, iWidth, (bIsError ? "!! " : "") + kMessage, m_kDesk.GetMessageStyle());
    }

    GUIArea_t OpenBox(const std::string& kTitle)
    {
        const GUIArea_t& kBox = m_kLayout.m_kBox;
        const GUIArea_t kInside = {kBox.m_iX + 1, kBox.m_iY + 1, kBox.m_iWidth - 2, kBox.m_iHeight - 2};
        DrawFrame(m_kScreen, kInside, kTitle);
        return kInside;
    }

    void DrawHelp()
    {
        const GUIArea_t kInside = OpenBox("help: any key closes it");
        const Device_t& kDevice = m_kDesk.GetDevice();
        eC_Int iRow = kInside.m_iY;
        const eC_Int iLeft = kInside.m_iX + 1;
        m_kScreen.Write(iLeft, iRow, "Keys of the device", STYLE_STRONG);
        for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
        {
            const DeviceKey_t& kKey = kDevice.m_pkKeys[uiKey];
            ++iRow;
            m_kScreen.Write(iLeft, iRow, kKey.m_pcKeyboard, STYLE_STRONG);
            m_kScreen.WriteShort(iLeft + 10, iRow, 13, kKey.m_pcLabel);
        }
        for (const eC_Char* pcLine :
             {"", "arrows    focus, value", "letters   into text", "mouse     touches", "",
              "Between > and < is", "the focus. !! marks", "an error."})
        {
            ++iRow;
            m_kScreen.Write(iLeft, iRow, pcLine);
        }
        iRow = kInside.m_iY;
        const eC_Int iRight = kInside.m_iX + 24;
        m_kScreen.Write(iRight, iRow, "Keys of the simulator", STYLE_STRONG);
        for (const DeskKey_t& kKey : CSimulatorDesk::GetKeys())
        {
            ++iRow;
            m_kScreen.Write(iRight, iRow, kKey.m_pcKey, STYLE_STRONG);
            m_kScreen.WriteShort(iRight + 10, iRow, kInside.m_iX + kInside.m_iWidth - iRight - 10,
                                 kKey.m_pcText);
        }
    }

    void DrawMenu()
    {
        const GUIArea_t kInside = OpenBox("commands: letter, or arrows and Enter; Escape closes");
        const std::vector<std::string>& kMenu = m_kDesk.GetMenu();
        const MenuGrid_t kGrid = PlaceMenu(m_kDesk, m_kLayout.m_kBox);
        for (std::size_t uiEntry = 0; uiEntry < kMenu.size(); ++uiEntry)
        {
            const eC_Int iX =
                kInside.m_iX + 1 + static_cast<eC_Int>(uiEntry / kGrid.m_uiRows) * kGrid.m_iColumnWidth;
            const eC_Int iY = kInside.m_iY + static_cast<eC_Int>(uiEntry % kGrid.m_uiRows);
            const eC_Char acLetter[] = {CSimulatorDesk::GetMenuLetter(uiEntry), '\0'};
            const eC_Bool bIsSelected = uiEntry == m_kDesk.GetMenuSelected();
            m_kScreen.Write(iX, iY, bIsSelected ? ">" : " ", STYLE_SELECTED);
            m_kScreen.Write(iX + 1, iY, acLetter, STYLE_STRONG);
            m_kScreen.WriteShort(iX + 3, iY, kGrid.m_iColumnWidth - 4, kMenu[uiEntry],
                                 bIsSelected ? STYLE_SELECTED : STYLE_PLAIN);
        }
        if (static_cast<eC_Int>(kGrid.m_uiRows) < kInside.m_iHeight)
        {
            // The whole of what may be cut off above.
            m_kScreen.WriteShort(kInside.m_iX + 1, kInside.m_iY + kInside.m_iHeight - 1, kInside.m_iWidth - 2,
                                 kMenu[m_kDesk.GetMenuSelected()], STYLE_DIM);
        }
    }

    void DrawForm()
    {
        const COperationForm& kForm = *m_kDesk.GetForm();
        const GUIArea_t kInside = OpenBox(kForm.GetCommand());
        const eC_Int iLeft = kInside.m_iX + 1;
        const eC_Int iValue = iLeft + 20;
        const eC_Int iColumns = kInside.m_iX + kInside.m_iWidth - iValue - 1;
        eC_Int iRow = kInside.m_iY;
        for (std::size_t uiField = 0; uiField < kForm.GetCount(); ++uiField)
        {
            ++iRow;
            const eC_Bool bIsSelected = uiField == kForm.GetSelected();
            m_kScreen.WriteShort(iLeft, iRow, 18, (bIsSelected ? "> " : "  ") + kForm.GetLabel(uiField),
                                 bIsSelected ? STYLE_STRONG : STYLE_PLAIN);
            if (bIsSelected)
            {
                DrawEditor(m_kScreen, kForm.GetEditor(uiField), iValue, iRow, iColumns);
            }
            else
            {
                m_kScreen.WriteShort(iValue, iRow, iColumns, kForm.GetEditor(uiField).GetText());
            }
        }
        m_kScreen.WriteShort(iLeft, iRow + 2, kInside.m_iWidth - 2,
                             "up, down choose   Tab next   Enter goes on, and does it   Escape closes",
                             STYLE_DIM);
        std::string kChoices;
        for (const std::string& kChoice : kForm.GetChoices())
        {
            kChoices += (kChoices.empty() ? "choices: " : " ") + kChoice;
        }
        const eC_Bool bIsError = m_kDesk.GetMessageStyle() == STYLE_ERROR;
        WriteLines(iLeft, iRow + 3, 4, bIsError ? "!! " + m_kDesk.GetMessage() : kChoices,
                   bIsError ? STYLE_ERROR : STYLE_DIM);
    }

    /** Writes a text in the box, in some rows at most. */
    void WriteLines(eC_Int iX, eC_Int iY, eC_Int iRows, const std::string& kText, ETextStyle eStyle)
    {
        const eC_Int iColumns = m_kLayout.m_kBox.m_iX + m_kLayout.m_kBox.m_iWidth - 2 - iX;
        for (const std::string& kLine : WrapText(kText, std::max(iColumns, 1)))
        {
            if (iRows-- > 0)
            {
                m_kScreen.Write(iX, iY++, kLine.c_str(), eStyle);
            }
        }
    }

    const CSimulatorDesk& m_kDesk;
    const CSimulation& m_kSimulation;
    DeskLayout_t m_kLayout;
    CTextScreen m_kScreen;
};

void ClickKeys(CSimulatorDesk& kDesk, eC_Int iX)
{
    const Device_t& kDevice = kDesk.GetDevice();
    for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
    {
        const eC_Int iWidth = CountColumns(kDevice.m_pkKeys[uiKey].m_pcLabel) + 2;
        if (iX >= 0 && iX < iWidth)
        {
            kDesk.PressDeviceKey(uiKey);
            return;
        }
        iX -= iWidth + 1;
    }
}

void ClickMenu(CSimulatorDesk& kDesk, const GUIArea_t& kBox, eC_Int iX, eC_Int iY)
{
    const MenuGrid_t kGrid = PlaceMenu(kDesk, kBox);
    const eC_Int iColumn = (iX - kBox.m_iX - 1) / std::max(kGrid.m_iColumnWidth, 1);
    const auto uiRow = static_cast<std::size_t>(iY - kBox.m_iY - 1);
    const std::size_t uiEntry = static_cast<std::size_t>(iColumn) * kGrid.m_uiRows + uiRow;
    if (iY > kBox.m_iY && iX > kBox.m_iX && uiRow < kGrid.m_uiRows && uiEntry < kDesk.GetMenu().size())
    {
        kDesk.PressKey(std::string(1, CSimulatorDesk::GetMenuLetter(uiEntry)));
    }
}
} // namespace

CTextScreen DrawDesk(const CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight)
{
    return CDeskPainter(kDesk, iWidth, iHeight).Draw();
}

void ClickDesk(CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight, eC_Int iX, eC_Int iY)
{
    const DeskLayout_t kLayout = PlaceDesk(kDesk, iWidth, iHeight);
    if (kDesk.GetMode() != CSimulatorDesk::MODE_DEVICE)
    {
        if (!Contains(kLayout.m_kBox, iX, iY))
        {
            kDesk.PressKey("Escape");
        }
        else if (kDesk.GetMode() == CSimulatorDesk::MODE_MENU)
        {
            ClickMenu(kDesk, kLayout.m_kBox, iX, iY);
        }
    }
    else if (Contains(kLayout.m_kScreen, iX, iY))
    {
        const Device_t& kDevice = kDesk.GetDevice();
        const GUIArea_t kPart = GetShownPart(kDesk, kLayout.m_kScreen);
        kDesk.TouchDevice((iX - kLayout.m_kScreen.m_iX + kPart.m_iX) * kDevice.m_iColumnWidth,
                          (iY - kLayout.m_kScreen.m_iY + kPart.m_iY) * kDevice.m_iRowHeight);
    }
    else if (Contains(kLayout.m_kKeys, iX, iY))
    {
        ClickKeys(kDesk, iX - kLayout.m_kKeys.m_iX);
    }
}

void ScrollDesk(CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight, eC_Int iX, eC_Int iY, eC_Int iLines)
{
    const DeskLayout_t kLayout = PlaceDesk(kDesk, iWidth, iHeight);
    if (Contains(kLayout.m_kTrace, iX, iY))
    {
        kDesk.ScrollTrace(-iLines);
    }
    else if (Contains(kLayout.m_kInspector, iX, iY))
    {
        kDesk.ScrollInspector(iLines);
    }
}
