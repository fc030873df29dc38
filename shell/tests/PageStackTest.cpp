// The main window's pages: one shown at a time, the area the size of the page shown, each page
// measured the first time it shows and again when its content changes.

#include "Page.h"
#include "PageStack.h"

#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A page holding one fixed-size box, so that its size is known.
Page* PageOf(int width, int height)
{
    auto* page = new Page;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* box = new QLabel(page);
    box->setObjectName(QStringLiteral("box"));
    box->setFixedSize(width, height);
    layout->addWidget(box);
    return page;
}

} // namespace

class PageStackTest : public QObject {
    Q_OBJECT

private slots:
    void onePageIsShownAndTheStackTakesItsSize()
    {
        PageStack stack;
        Page* small = PageOf(100, 80);
        Page* large = PageOf(300, 200);
        stack.Add(small);
        stack.Add(large);
        stack.show();
        QCOMPARE(stack.Shown(), nullptr);
        QVERIFY(!small->isVisible());
        stack.Show(small);
        QCOMPARE(stack.Shown(), small);
        QVERIFY(small->isVisible());
        QCOMPARE(stack.size(), QSize(100, 80));
        stack.Show(large);
        QVERIFY(!small->isVisible());
        QVERIFY(large->isVisible());
        QCOMPARE(stack.size(), QSize(300, 200));
        QCOMPARE(large->size(), QSize(300, 200));
    }

    void aPageIsMeasuredOnceUntilItIsRefitted()
    {
        PageStack stack;
        Page* page = PageOf(100, 80);
        stack.Add(page);
        stack.show();
        stack.Show(page);
        // Its content grows: the page keeps its fixed size until it is measured again.
        page->findChild<QLabel*>(QStringLiteral("box"))->setFixedSize(150, 90);
        QCOMPARE(page->size(), QSize(100, 80));
        stack.Refit(page);
        QCOMPARE(page->size(), QSize(150, 90));
        QCOMPARE(stack.size(), QSize(150, 90));
        QCOMPARE(stack.Shown(), page);
    }
};

QTEST_MAIN(PageStackTest)
#include "PageStackTest.moc"
