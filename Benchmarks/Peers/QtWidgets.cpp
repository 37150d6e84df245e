// SPDX-License-Identifier: MIT
// The work of the benchmarks with Qt Widgets.

#include "Benchmarks/Peers/PeerWork.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace
{
class CQtWidgets
{
public:
    using Screen_t = QWidget;

    static const char* GetName() { return "qt-widgets"; }

    CQtWidgets()
    {
        m_kWindow.resize(320, 240);
        m_kWindow.show();
        m_kWindow.activateWindow();
        QApplication::processEvents();
    }

    QWidget* Build()
    {
        QWidget* pkScreen = new QWidget(&m_kWindow);
        pkScreen->hide();
        pkScreen->setGeometry(0, 0, 320, 240);
        for (unsigned uiObject = 1; uiObject < cuiObjectsPerScreen; ++uiObject)
        {
            QWidget* pkChild = uiObject <= cuiButtonsPerScreen
                                   ? static_cast<QWidget*>(new QPushButton(pkScreen))
                                   : static_cast<QWidget*>(new QLabel(pkScreen));
            pkChild->setGeometry(0, static_cast<int>(uiObject) * 10, 100, 10);
        }
        return pkScreen;
    }

    void Destroy(QWidget* pkScreen) { delete pkScreen; }

    void Show(QWidget* pkScreen)
    {
        pkScreen->raise();
        pkScreen->show();
    }

    void Hide(QWidget* pkScreen) { pkScreen->hide(); }

    void Focus(QWidget* pkScreen, unsigned uiButton)
    {
        static_cast<QWidget*>(pkScreen->children().at(static_cast<int>(uiButton)))->setFocus();
    }

    unsigned GetFocussed(QWidget* pkScreen)
    {
        return static_cast<unsigned>(pkScreen->children().indexOf(m_kWindow.focusWidget()));
    }

private:
    QWidget m_kWindow;
};

/** Finds a widget by its name among many. */
class CFind
{
public:
    explicit CFind(int iObjects)
    {
        QList<QWidget*> kParents = {&m_kWindow};
        for (int i = 0; i < iObjects; ++i)
        {
            QWidget* pkWidget = new QWidget(kParents[i / 10]);
            pkWidget->setObjectName(QString::number(i));
            kParents.push_back(pkWidget);
        }
        m_kSought = QString::number(iObjects / 2);
    }

    void Do() { Require(m_kWindow.findChild<QWidget*>(m_kSought) != nullptr); }

private:
    QWidget m_kWindow;
    QString m_kSought;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const QApplication kApplication(iArguments, ppcArguments);
    std::vector<Measured_t> kMeasured = GetPeerWork<CQtWidgets>();
    AddPeerWork(kMeasured, CQtWidgets::GetName(), "find/hit/100000", MakerOf<CFind>(100000));
    return MeasureAll(iArguments, ppcArguments, kMeasured);
}
