// SPDX-License-Identifier: MIT
// The work of the benchmarks with the StackView and the Popup of Qt Quick Controls.

#include "Benchmarks/Peers/PeerWork.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

namespace
{
const char* const cpcProgram = R"(
import QtQuick
import QtQuick.Controls.Basic

Window {
    width: 320
    height: 240
    visible: true

    component Screen: FocusScope {
        visible: false
        Repeater {
            model: 5
            Item { focus: index === 2 }
        }
        Repeater {
            model: 12
            Item { }
        }
    }

    StackView {
        id: stack
        anchors.fill: parent
    }

    Popup {
        id: popup
        Repeater {
            model: 18
            Item { }
        }
    }

    Component {
        id: maker
        Screen { }
    }

    property var screens: []

    function prepare(count) {
        stack.push(maker.createObject(stack), StackView.Immediate)
        for (let i = 0; i < count; ++i)
            screens.push(maker.createObject(stack))
    }

    function climb(times, count) {
        for (let time = 0; time < times; ++time) {
            for (let i = 0; i < count; ++i)
                stack.push(screens[i], StackView.Immediate)
            for (let i = 0; i < count; ++i)
                stack.pop(StackView.Immediate)
        }
    }

    function rebuild() {
        stack.push(maker, StackView.Immediate)
        stack.pop(StackView.Immediate)
    }

    function showAndClose(times) {
        for (let time = 0; time < times; ++time) {
            popup.open()
            popup.close()
        }
    }
}
)";

/** The window of the program above. */
class CQuickProgram
{
public:
    CQuickProgram() : m_kComponent(&m_kEngine)
    {
        m_kComponent.setData(cpcProgram, QUrl());
        m_pkWindow.reset(m_kComponent.create());
        if (m_pkWindow == nullptr)
        {
            std::fputs(qPrintable(m_kComponent.errorString()), stderr);
            std::abort();
        }
    }

    template <typename... TArguments>
    void Call(const char* pcFunction, TArguments... tArguments)
    {
        Require(QMetaObject::invokeMethod(m_pkWindow.get(), pcFunction,
                                          Q_ARG(QVariant, QVariant::fromValue(tArguments))...));
    }

private:
    QQmlEngine m_kEngine;
    QQmlComponent m_kComponent;
    std::unique_ptr<QObject> m_pkWindow;
};

class CClimb : public CWorkload
{
public:
    explicit CClimb(unsigned uiScreens) : m_uiScreens(uiScreens) { m_kProgram.Call("prepare", m_uiScreens); }

    void Repeat(unsigned uiTimes) override { m_kProgram.Call("climb", uiTimes, m_uiScreens); }

private:
    CQuickProgram m_kProgram;
    unsigned m_uiScreens;
};

/** The view builds a screen when it is pushed, and destroys it when it is popped. */
class CRebuild : public CWorkload
{
public:
    CRebuild() { m_kProgram.Call("prepare", 0U); }

    void Repeat(unsigned uiTimes) override
    {
        for (; uiTimes > 0; --uiTimes)
        {
            m_kProgram.Call("rebuild");
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

private:
    CQuickProgram m_kProgram;
};

class CShowAndClose : public CWorkload
{
public:
    void Repeat(unsigned uiTimes) override { m_kProgram.Call("showAndClose", uiTimes); }

private:
    CQuickProgram m_kProgram;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const QGuiApplication kApplication(iArguments, ppcArguments);
    const char* pcName = "qt-quick";
    std::vector<Measured_t> kMeasured;
    AddPeerWork(kMeasured, pcName, "switch-and-back/kept", [] { return std::make_unique<CClimb>(1U); });
    AddPeerWork(kMeasured, pcName, "switch-and-back/rebuilt-in-code",
                [] { return std::make_unique<CRebuild>(); });
    AddPeerWork(kMeasured, pcName, "through-history/kept/1000",
                [] { return std::make_unique<CClimb>(1000U); });
    AddPeerWork(kMeasured, pcName, "popup/shown-and-closed/0",
                [] { return std::make_unique<CShowAndClose>(); });
    return MeasureAll(iArguments, ppcArguments, kMeasured);
}
