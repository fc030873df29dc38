// The settings file: the window placement value, written only when it changes, and the
// coaching aids kept for the next start.

#include "ProgramSettings.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>

class ProgramSettingsTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->path());
    }

    void thePlacementIsSixteenLittleEndianBytes()
    {
        // Left 10, top 20, right 10 + 300, bottom 20 + 200, each as 4 bytes, lowest first.
        const QByteArray bytes = ProgramSettings::EncodePlacement(QRect(10, 20, 300, 200));
        QCOMPARE(bytes, QByteArray::fromHex("0a000000" "14000000" "36010000" "dc000000"));
        QCOMPARE(ProgramSettings::DecodePlacement(bytes, QRect(0, 0, 300, 200)), std::optional<QPoint>(QPoint(10, 20)));
        // Negative places (a screen to the left) survive.
        const QByteArray left = ProgramSettings::EncodePlacement(QRect(-1500, 5, 300, 200));
        QCOMPARE(left.left(4), QByteArray::fromHex("24faffff"));
        QCOMPARE(ProgramSettings::DecodePlacement(left, QRect()), std::optional<QPoint>(QPoint(-1500, 5)));
    }

    void aShortValueReplacesOnlyItsLeadingFieldsAndALongOneNothing()
    {
        const QRect frame(50, 60, 300, 200);
        QCOMPARE(ProgramSettings::DecodePlacement(QByteArray::fromHex("07000000"), frame),
            std::optional<QPoint>(QPoint(7, 60)));
        QCOMPARE(ProgramSettings::DecodePlacement(QByteArray::fromHex("0700"), frame), std::optional<QPoint>(QPoint(50, 60)));
        QCOMPARE(ProgramSettings::DecodePlacement(QByteArray(), frame), std::nullopt);
        QCOMPARE(ProgramSettings::DecodePlacement(QByteArray(17, '\1'), frame), std::nullopt);
    }

    void thePlacementIsStoredAndWrittenOnlyWhenItChanges()
    {
        ProgramSettings settings;
        QCOMPARE(settings.StoredPosition(QRect(0, 0, 10, 10)), std::nullopt);
        settings.StorePlacement(QRect(123, 45, 300, 200));
        QCOMPARE(settings.StoredPosition(QRect(0, 0, 300, 200)), std::optional<QPoint>(QPoint(123, 45)));
        const QString file = QSettings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren")).fileName();
        const auto inode = [&file] {
            struct stat status {};
            return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : ino_t(0);
        };
        const ino_t before = inode();
        QVERIFY(before != 0);
        settings.StorePlacement(QRect(123, 45, 300, 200)); // the same: not written
        QCOMPARE(inode(), before);
        settings.StorePlacement(QRect(124, 45, 300, 200)); // moved: written (a new file)
        QVERIFY(inode() != before);
    }

    void theCoachingAidsAreAllOnAtFirstAndKept()
    {
        ProgramSettings settings;
        QCOMPARE(settings.Coaching(), CoachingPreferences{});
        CoachingPreferences some = CoachingPreferences::AllOff();
        some.practiceGrid = true;
        settings.StoreCoaching(some);
        QCOMPARE(ProgramSettings().Coaching(), some);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(ProgramSettingsTest)
#include "ProgramSettingsTest.moc"
