#include "Named.h"
#include "AboutDialog.h"
#include "HelpActions.h"
#include "HyperlinkLabel.h"
#include "RecordingOpener.h"

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
        m_urls.opened.clear();
        QVERIFY(!OpenHelpContents(m_urls.Opener())); // missing: nothing, silently
        QVERIFY(m_urls.opened.isEmpty());
        QVERIFY(QFile::copy(QStringLiteral(ZAVOREN_HELP_DOCUMENT), QStringLiteral("Zavoren.html")));
        QVERIFY(OpenHelpContents(m_urls.Opener()));
        QCOMPARE(m_urls.opened.size(), 1);
        QCOMPARE(m_urls.opened.front(), QUrl::fromLocalFile(folder.filePath(QStringLiteral("Zavoren.html"))));
        // Whether it opened is what the opener says.
        QVERIFY(!OpenHelpContents([](const QUrl&) { return false; }));
        QDir::setCurrent(previous);
    }

    void helpDocumentCoversTheLearnersPathAndCredits()
    {
        QFile file(QStringLiteral(ZAVOREN_HELP_DOCUMENT));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const char* topic : {"Learners", "Categories", "Lessons", "Tests", "Retest", "Forget", "Writing aids",
                 "Preferences", "KanjiVG", "KANJIDIC2"})
            QVERIFY2(text.contains(QString::fromLatin1(topic)), topic);
    }

    void linksOpenTheMakersSite()
    {
        m_urls.opened.clear();
        OpenMakerSite(m_urls.Opener());
        QCOMPARE(m_urls.opened, QList<QUrl>{QUrl(QString::fromLatin1(MakerSite))});
    }

    void aboutShowsProductVersionLinksAndCredits()
    {
        QMainWindow owner;
        owner.setGeometry(100, 100, 400, 300);
        owner.show();
        AboutDialog about(m_urls.Opener(), &owner);
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QVERIFY(about.isModal());
        QCOMPARE(about.VersionLabel()->text(), QStringLiteral("v%1").arg(QStringLiteral(ZAVOREN_VERSION)));
        QVERIFY(QRegularExpression(QStringLiteral("^v\\d+\\.\\d+\\.\\d+$")).match(VersionText()).hasMatch());
        bool product = false, credits = false, icon = false;
        for (QLabel* label : about.findChildren<QLabel*>()) {
            if (label->accessibleName() == QStringLiteral("Zavoren! icon"))
                icon = label->pixmap().size() == QSize(64, 64);
            product |= label->text() == QStringLiteral("Zavoren! Kanji Learning Program");
            credits |= label->text().contains(QStringLiteral("KanjiVG"))
                && label->text().contains(QStringLiteral("KANJIDIC2"));
        }
        QVERIFY(product);
        QVERIFY(credits);
        QVERIFY(icon); // the program's picture, 64 by 64
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
        m_urls.opened.clear();
        QTest::mouseClick(site, Qt::LeftButton);
        QCOMPARE(m_urls.opened, QList<QUrl>{QUrl(QString::fromLatin1(MakerSite))});
        QVERIFY(site->Visited());
        QCOMPARE(site->CurrentColour(), QColor(128, 0, 128));
        QTest::mouseClick(site, Qt::LeftButton);
        QCOMPARE(site->CurrentColour(), QColor(128, 0, 128));
        QVERIFY(!about.SupportLink()->Visited());
        AboutDialog another(m_urls.Opener(), &owner);
        QVERIFY(!another.SiteLink()->Visited());
        QCOMPARE(another.SiteLink()->CurrentColour(), QColor(0, 0, 255));
        QTest::mouseClick(Named<QPushButton>(&about, "okButton"), Qt::LeftButton);
        QCOMPARE(about.result(), 1);
    }

    void aFailedOpenLeavesTheLinkUnvisited()
    {
        int tries = 0;
        HyperlinkLabel link([&tries](const QUrl&) {
            ++tries;
            return false;
        });
        link.SetLink(QStringLiteral("https://example.invalid"));
        link.show();
        QTest::mouseClick(&link, Qt::LeftButton);
        QCOMPARE(tries, 1);
        QVERIFY(!link.Visited());
        QCOMPARE(link.CurrentColour(), QColor(0, 0, 255));
        // The keyboard opens it too.
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Space);
        QCOMPARE(tries, 2);
    }

private:
    UrlCatcher m_catcher;
    RecordingOpener m_urls;
};

QTEST_MAIN(HelpAndAboutTest)
#include "HelpAndAboutTest.moc"
