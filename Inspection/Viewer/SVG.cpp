// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/SVG.h"

#include <initializer_list>
#include <utility>

namespace
{
constexpr const char* cpcStyle = R"(
text { font: 12px ui-monospace, 'DejaVu Sans Mono', Menlo, Consolas, monospace }
.page { fill: #ffffff; stroke: #d0d7de }
.frame { fill: none; stroke: #8c959f }
.grid { stroke: #d8dee4 }
.text { fill: #1f2328 }
.quiet { fill: #59636e }
.inverse { fill: #ffffff }
.row { fill: #f3f5f7 }
.strong { fill: #0969da }
.medium { fill: #80b7f5 }
.weak { fill: #d3e5fb; stroke: #80b7f5 }
.outline { fill: none; stroke: #80b7f5; stroke-dasharray: 4 3 }
.popup { fill: #bc4c00 }
.waiting { fill: #fbe3d0; stroke: #bc4c00; stroke-dasharray: 2 2 }
.good { fill: #1a7f37; stroke: #1a7f37 }
.bad { fill: #cf222e; stroke: #cf222e }
@media (prefers-color-scheme: dark) {
.page { fill: #0d1117; stroke: #3d444d }
.frame { stroke: #6e7681 }
.grid { stroke: #262c36 }
.text { fill: #f0f6fc }
.quiet { fill: #9198a1 }
.inverse { fill: #0d1117 }
.row { fill: #151b23 }
.strong { fill: #4493f8 }
.medium { fill: #24548f }
.weak { fill: #132339; stroke: #24548f }
.outline { stroke: #24548f }
.popup { fill: #f0883e }
.waiting { fill: #33200f; stroke: #f0883e }
.good { fill: #3fb950; stroke: #3fb950 }
.bad { fill: #f85149; stroke: #f85149 }
}
)";

std::string PrintAttributes(std::initializer_list<std::pair<const char*, std::uint64_t>> kAttributes)
{
    std::string kText;
    for (const auto& kAttribute : kAttributes)
    {
        kText += std::string(" ") + kAttribute.first + "=\"" + std::to_string(kAttribute.second) + "\"";
    }
    return kText;
}

std::string Open(const char* pcElement, const char* pcClass)
{
    return std::string("<") + pcElement + " class=\"" + pcClass + "\"";
}

std::string CloseWithTitle(const char* pcElement, const std::string& kTitle)
{
    return kTitle.empty() ? "/>\n" : "><title>" + CSVG::Escape(kTitle) + "</title></" + pcElement + ">\n";
}

/** Blanks that follow each other would be shown as one, and not everybody knows how to ask for more. */
std::string KeepBlanks(const std::string& kText)
{
    std::string kKept;
    for (const char cByte : kText)
    {
        kKept += cByte == ' ' ? std::string("\xC2\xA0") : std::string(1, cByte);
    }
    return kKept;
}

std::size_t CountCharacters(const std::string& kText)
{
    std::size_t uiCharacters = 0;
    for (const char cByte : kText)
    {
        uiCharacters += (static_cast<unsigned char>(cByte) & 0xC0U) != 0x80U ? 1U : 0U;
    }
    return uiCharacters;
}
} // namespace

void CSVG::Box(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, std::uint64_t uiWidth,
               std::uint64_t uiHeight, std::uint64_t uiRadius, const std::string& kTitle)
{
    m_kElements += Open("rect", pcClass) +
                   PrintAttributes(
                       {{"x", uiX}, {"y", uiY}, {"width", uiWidth}, {"height", uiHeight}, {"rx", uiRadius}}) +
                   CloseWithTitle("rect", kTitle);
}

void CSVG::Line(const char* pcClass, std::uint64_t uiX1, std::uint64_t uiY1, std::uint64_t uiX2,
                std::uint64_t uiY2)
{
    m_kElements += Open("line", pcClass) +
                   PrintAttributes({{"x1", uiX1}, {"y1", uiY1}, {"x2", uiX2}, {"y2", uiY2}}) + "/>\n";
}

void CSVG::Text(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, const std::string& kText)
{
    // Not everybody keeps blanks at the beginning, whatever they are.
    const std::size_t uiBegin = kText.find_first_not_of(' ');
    if (uiBegin != std::string::npos)
    {
        const std::string kShown = kText.substr(uiBegin, kText.find_last_not_of(' ') + 1 - uiBegin);
        m_kElements += Open("text", pcClass) +
                       PrintAttributes({{"x", uiX + uiBegin * cuiCharacterWidth},
                                        {"y", uiY},
                                        {"textLength", CountCharacters(kShown) * cuiCharacterWidth}}) +
                       ">" + KeepBlanks(Escape(kShown)) + "</text>\n";
    }
}

void CSVG::Dot(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, std::uint64_t uiRadius,
               const std::string& kTitle)
{
    m_kElements += Open("circle", pcClass) + PrintAttributes({{"cx", uiX}, {"cy", uiY}, {"r", uiRadius}}) +
                   CloseWithTitle("circle", kTitle);
}

std::string CSVG::Finish(std::uint64_t uiHeight, const std::string& kLabel, const std::string& kStyle) const
{
    const std::string kSize = std::to_string(m_uiWidth) + " " + std::to_string(uiHeight);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + kSize + "\"" +
           PrintAttributes({{"width", m_uiWidth}, {"height", uiHeight}}) + " role=\"img\" aria-label=\"" +
           Escape(kLabel) + "\">\n<style>" + cpcStyle + kStyle + "</style>\n" +
           "<rect class=\"page\" x=\"0.5\" y=\"0.5\" width=\"" + std::to_string(m_uiWidth - 1) +
           "\" height=\"" + std::to_string(uiHeight - 1) + "\" rx=\"6\"/>\n" + m_kElements + "</svg>\n";
}

std::string CSVG::Escape(const std::string& kText)
{
    std::string kEscaped;
    for (const char cByte : kText)
    {
        switch (cByte)
        {
        case '&':
            kEscaped += "&amp;";
            break;
        case '<':
            kEscaped += "&lt;";
            break;
        case '>':
            kEscaped += "&gt;";
            break;
        case '"':
            kEscaped += "&quot;";
            break;
        default:
            if (static_cast<unsigned char>(cByte) < ' ' && cByte != '\n' && cByte != '\t')
            {
                kEscaped += "\xEF\xBF\xBD";
            }
            else
            {
                kEscaped += cByte;
            }
        }
    }
    return kEscaped;
}
