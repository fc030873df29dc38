#include "AboutDialog.h"
#include "HelpActions.h"
#include "HyperlinkLabel.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWhatsThis>

/// Receives what the program asks the desktop to open.
class UrlCatcher : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void Open(const QUrl& url) { opened << url; }
};

class HelpAndAboutTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const char* scheme : {"file", "https", "mailto"})
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), &m_catcher, "Open");
    }

    void contentsOpensTheHelpDocumentOrNothing()
    {
        QTemporaryDir folder;
        const QString previous = QDir::currentPath();
        QDir::setCurrent(folder.path());
        m_catcher.opened.clear();
        QVERIFY(!OpenHelpContents()); // missing: nothing, silently
        QVERIFY(m_catcher.opened.isEmpty());
        QVERIFY(QFile::copy(QStringLiteral(ZAVOREN_HELP_DOCUMENT), QStringLiteral("Zavoren.html")));
        QVERIFY(OpenHelpContents());
        QCOMPARE(m_catcher.opened.size(), 1);
        QCOMPARE(m_catcher.opened.front(), QUrl::fromLocalFile(folder.filePath(QStringLiteral("Zavoren.html"))));
        QDir::setCurrent(previous);
    }

    void helpDocumentCoversTheLearnersPathAndCredits()
    {
        QFile file(QStringLiteral(ZAVOREN_HELP_DOCUMENT));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const char* topic :
            {"Learners", "Categories", "Lessons", "Tests", "Retest", "Forget", "KanjiVG", "KANJIDIC2"})
            QVERIFY2(text.contains(QString::fromLatin1(topic)), topic);
    }

    void linksOpenTheMakersSite()
    {
        m_catcher.opened.clear();
        OpenMakerSite();
        QCOMPARE(m_catcher.opened, QList<QUrl>{QUrl(QString::fromLatin1(MakerSite))});
    }

    void aboutShowsProductVersionLinksAndCredits()
    {
        QMainWindow owner;
        owner.setGeometry(100, 100, 400, 300);
        owner.show();
        AboutDialog about(&owner);
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QVERIFY(about.isModal());
        QCOMPARE(about.VersionLabel()->text(), QStringLiteral("v%1").arg(QStringLiteral(ZAVOREN_VERSION)));
        QVERIFY(QRegularExpression(QStringLiteral("^v\\d+\\.\\d+\\.\\d+$")).match(VersionText()).hasMatch());
        bool product = false, credits = false;
        for (QLabel* label : about.findChildren<QLabel*>()) {
            product |= label->text() == QStringLiteral("Zavoren! Kanji Learning Program");
            credits |= label->text().contains(QStringLiteral("KanjiVG"))
                && label->text().contains(QStringLiteral("KANJIDIC2"));
        }
        QVERIFY(product);
        QVERIFY(credits);
        QVERIFY(!about.findChildren<QLabel*>().isEmpty());
        // Centred over its owner.
        QVERIFY((about.frameGeometry().center() - owner.frameGeometry().center()).manhattanLength() <= 2);
        // The links: hand cursor, target as tooltip, blue; purple once visited, for this dialog only.
        HyperlinkLabel* site = about.SiteLink();
        QCOMPARE(site->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(site->toolTip(), QString::fromLatin1(MakerSite));
        QVERIFY(site->font().underline());
        QCOMPARE(site->CurrentColour(), QColor(0, 0, 255));
        QCOMPARE(about.SupportLink()->Target(), QString::fromLatin1(SupportAddress));
        QVERIFY(about.SupportLink()->Target().startsWith(QStringLiteral("mailto:")));
        m_catcher.opened.clear();
        QTest::mouseClick(site, Qt::LeftButton);
        QCOMPARE(m_catcher.opened.size(), 1);
        QVERIFY(site->Visited());
        QCOMPARE(site->CurrentColour(), QColor(128, 0, 128));
        QTest::mouseClick(site, Qt::LeftButton);
        QCOMPARE(site->CurrentColour(), QColor(128, 0, 128));
        QVERIFY(!about.SupportLink()->Visited());
        AboutDialog another(&owner);
        QVERIFY(!another.SiteLink()->Visited());
        QCOMPARE(another.SiteLink()->CurrentColour(), QColor(0, 0, 255));
        QTest::mouseClick(about.OkButton(), Qt::LeftButton);
        QCOMPARE(about.result(), 1);
    }

    void aFailedOpenLeavesTheLinkUnvisited()
    {
        HyperlinkLabel::SetOpener([](const QUrl&) { return false; });
        HyperlinkLabel link;
        link.SetLink(QStringLiteral("https://example.invalid"));
        link.show();
        QTest::mouseClick(&link, Qt::LeftButton);
        QVERIFY(!link.Visited());
        HyperlinkLabel::SetOpener([](const QUrl& url) { return QDesktopServices::openUrl(url); });
    }

    void controlsWithoutHelpTextShowNothing()
    {
        QWidget window;
        auto* withHelp = new QPushButton(QStringLiteral("A"), &window);
        withHelp->setWhatsThis(QStringLiteral("Explains A."));
        auto* without = new QPushButton(QStringLiteral("B"), &window);
        without->move(0, 40);
        window.show();
        QWhatsThis::hideText();
        QHelpEvent ask(QEvent::WhatsThis, QPoint(5, 5), without->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(without, &ask);
        QVERIFY(!ask.isAccepted() || QApplication::activePopupWidget() == nullptr);
        QHelpEvent askA(QEvent::WhatsThis, QPoint(5, 5), withHelp->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(withHelp, &askA);
        QVERIFY(askA.isAccepted());
        QWhatsThis::hideText();
    }

private:
    UrlCatcher m_catcher;
};

QTEST_MAIN(HelpAndAboutTest)
#include "HelpAndAboutTest.moc"
