<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Zavoren!</source>
        <translation>Über Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! icon</source>
        <translation>Zavoren!-Symbol</translation>
    </message>
    <message>
        <source>Zavoren! Kanji Learning Program</source>
        <translation>Zavoren! Kanji-Lernprogramm</translation>
    </message>
    <message>
        <source>Copyright © Quelmar Software. Teaches kanji by writing.</source>
        <translation>Copyright © Quelmar Software. Lehrt Kanji durch Schreiben.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Stroke data: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Readings and meanings: KANJIDIC2, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
The character database is a derived work shared under CC BY-SA.</source>
        <translation>Strichdaten: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Lesungen und Bedeutungen: KANJIDIC2, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
Die Zeichendatenbank ist ein abgeleitetes Werk unter CC BY-SA.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>unbekannte Version</translation>
    </message>
    <message>
        <source>Words: EDICT, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; parts: KanjiVG.</source>
        <translation>Wörter: EDICT, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0; Bestandteile: KanjiVG.</translation>
    </message>
    <message>
        <source>Handwriting recognition: Zinnia, © Taku Kudo, BSD; its Japanese model from the Tegaki project, LGPL-2.1+.</source>
        <translation>Handschrifterkennung: Zinnia, © Taku Kudo, BSD; sein japanisches Modell aus dem Tegaki-Projekt, LGPL-2.1+.</translation>
    </message>
</context>
<context>
    <name>AddUserDialog</name>
    <message>
        <source>Add New User</source>
        <translation>Neuen Benutzer hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Enter user name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Can&apos;t create user</source>
        <translation>Benutzer kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>A user name cannot contain an apostrophe (&apos;). Try another user name</source>
        <translation>Ein Benutzername darf keinen Apostroph (&apos;) enthalten. Versuchen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>User already exists. Try another user name</source>
        <translation>Der Benutzer existiert bereits. Versuchen Sie einen anderen Namen</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>All characters of the category: those learned, and those still to be learned. Right-click a character for more.</source>
        <translation>Alle Zeichen der Kategorie: die gelernten und die noch zu lernenden. Rechtsklick auf ein Zeichen für mehr.</translation>
    </message>
    <message>
        <source>Untested:</source>
        <translation>Ungetestet:</translation>
    </message>
    <message>
        <source>Characters met in a lesson and waiting for a test.</source>
        <translation>In einer Lektion gesehene Zeichen, die auf einen Test warten.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Lektion</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Retest</source>
        <translation>&amp;Erneut testen</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>To learn characters press &apos;Lesson&apos; button and then test learned characters by pressing &apos;Test&apos; button.</source>
        <translation>Um Zeichen zu lernen, drücken Sie „Lektion“ und testen Sie die gelernten Zeichen dann mit „Test“.</translation>
    </message>
    <message>
        <source>Category complete</source>
        <translation>Kategorie abgeschlossen</translation>
    </message>
    <message>
        <source>Characters of the category</source>
        <translation>Zeichen der Kategorie</translation>
    </message>
    <message>
        <source>Untested characters</source>
        <translation>Ungetestete Zeichen</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Gelernt</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Unlearned</source>
        <translation>Nicht gelernt</translation>
    </message>
    <message>
        <source>&amp;Learn</source>
        <translation>&amp;Lernen</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Ungetestet</translation>
    </message>
    <message>
        <source>Learned Kanji</source>
        <translation>Gelernte Kanji</translation>
    </message>
    <message>
        <source>Kanji to be Learned</source>
        <translation>Noch zu lernende Kanji</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Wörter</translation>
    </message>
    <message>
        <source>Write whole words made of the characters you have learned</source>
        <translation>Ganze Wörter aus den gelernten Zeichen schreiben</translation>
    </message>
    <message>
        <source>&amp;Print practice sheet…</source>
        <translation>&amp;Übungsblatt drucken…</translation>
    </message>
</context>
<context>
    <name>CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
</context>
<context>
    <name>CrashHandler</name>
    <message>
        <source>Oops...<byte value="xd"/>
Fatal error in Zavoren.<byte value="xd"/>
<byte value="xd"/>
Do you want to get minidump for it?</source>
        <translation>Hoppla...<byte value="xd"/>
Schwerer Fehler in Zavoren.<byte value="xd"/>
<byte value="xd"/>
Möchten Sie einen Minidump davon erhalten?</translation>
    </message>
    <message>
        <source>Unhandled Exception</source>
        <translation>Unbehandelte Ausnahme</translation>
    </message>
    <message>
        <source>MiniDump</source>
        <translation>MiniDump</translation>
    </message>
    <message>
        <source>Minidump successfuly created in application folder.</source>
        <translation>Minidump im Programmordner erstellt.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unable to generate minidump.</source>
        <translation>Minidump kann nicht erstellt werden.</translation>
    </message>
</context>
<context>
    <name>DisplayCanvas</name>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Klicken, um das Zeichen Strich für Strich geschrieben zu sehen</translation>
    </message>
</context>
<context>
    <name>DrawingTestPage</name>
    <message>
        <source>Drawing test</source>
        <translation>Schreibtest</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Klicken, um das Zeichen Strich für Strich geschrieben zu sehen</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>ON-Lesung:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>KUN-Lesung:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Bedeutung:</translation>
    </message>
    <message>
        <source>Write the character from its readings and meaning. Click the box on the left to see it (counts as a mistake before the drawing is complete).</source>
        <translation>Schreiben Sie das Zeichen nach seinen Lesungen und seiner Bedeutung. Ein Klick auf das linke Feld zeigt es (zählt als Fehler, bevor die Zeichnung fertig ist).</translation>
    </message>
</context>
<context>
    <name>FeedbackLine</name>
    <message>
        <source>Stroke feedback</source>
        <translation>Rückmeldung zum Strich</translation>
    </message>
</context>
<context>
    <name>FindCharacterWindow</name>
    <message>
        <source>Find a character</source>
        <translation>Zeichen finden</translation>
    </message>
    <message>
        <source>&amp;Type a character, a reading in kana or an English word:</source>
        <translation>&amp;Tippen Sie ein Zeichen, eine Lesung in Kana oder ein englisches Wort:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Or write it:</source>
        <translation>Oder schreiben Sie es:</translation>
    </message>
    <message>
        <source>Write the character here</source>
        <translation>Schreiben Sie das Zeichen hier</translation>
    </message>
    <message>
        <source>Reading the handwriting model…</source>
        <translation>Das Handschriftmodell wird gelesen…</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Gefundene Zeichen</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Lesungen</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Writing needs the words and parts file (lexicon) beside the database.</source>
        <translation>Zum Schreiben wird die Datei der Wörter und Bestandteile (lexicon) neben der Datenbank gebraucht.</translation>
    </message>
    <message>
        <source>The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are found from Zavoren!&apos;s own strokes only, written in their stroke order.</source>
        <translation>Das Handschriftmodell ist nicht installiert (Debian-Paket tegaki-zinnia-japanese): Zeichen werden nur aus Zavoren!s eigenen Strichen gefunden, in ihrer Strichfolge geschrieben.</translation>
    </message>
</context>
<context>
    <name>HistoryNotice</name>
    <message>
        <source>Learning history</source>
        <translation>Lernverlauf</translation>
    </message>
    <message>
        <source>The learning history cannot be kept: %1</source>
        <translation>Der Lernverlauf kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Die beschädigte Datei wird als „%1“ aufbewahrt.</translation>
    </message>
    <message>
        <source>Until it can be kept again, your progress and history are saved in config.xml.</source>
        <translation>Bis er wieder gespeichert werden kann, werden Ihr Fortschritt und Ihr Verlauf in config.xml gesichert.</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Kategorien:</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source> (%1 of %2)</source>
        <translation> (%1 von %2)</translation>
    </message>
    <message>
        <source> (%1 of %2, %3 due)</source>
        <translation> (%1 von %2, %3 fällig)</translation>
    </message>
    <message>
        <source>Due for review today: %1</source>
        <translation>Heute zur Wiederholung fällig: %1</translation>
    </message>
    <message>
        <source>Nothing is due for review today.</source>
        <translation>Heute ist nichts zur Wiederholung fällig.</translation>
    </message>
    <message>
        <source>&amp;Review (%1)</source>
        <translation>&amp;Wiederholen (%1)</translation>
    </message>
    <message>
        <source>Review the characters due (%1)</source>
        <translation>Die fälligen Zeichen wiederholen (%1)</translation>
    </message>
</context>
<context>
    <name>InputCanvas</name>
    <message>
        <source>Writing canvas</source>
        <translation>Schreibfläche</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, one stroke at a time</source>
        <translation>Schreiben Sie das Zeichen hier mit der Maus, einen Strich nach dem anderen</translation>
    </message>
</context>
<context>
    <name>KanjiInfoDialog</name>
    <message>
        <source> Kanji Info</source>
        <translation> Kanji-Info</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Klicken, um das Zeichen Strich für Strich geschrieben zu sehen</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>ON-Lesung:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>KUN-Lesung:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Bedeutung:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Next review: due now</source>
        <translation>Nächste Wiederholung: jetzt</translation>
    </message>
    <message>
        <source>Next review: %1</source>
        <translation>Nächste Wiederholung: %1</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Words (meanings in English)</source>
        <translation>Wörter (Bedeutungen auf Englisch)</translation>
    </message>
    <message>
        <source>Not learned yet: %1</source>
        <translation>Noch nicht gelernt: %1</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Bestandteile</translation>
    </message>
    <message>
        <source>Open the Kanji Info of %1</source>
        <translation>Die Kanji-Info von %1 öffnen</translation>
    </message>
    <message>
        <source>Part %1, opens its Kanji Info</source>
        <translation>Bestandteil %1, öffnet seine Kanji-Info</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Bestandteil %1</translation>
    </message>
    <message>
        <source>Other order</source>
        <translation>Andere Strichfolge</translation>
    </message>
    <message>
        <source>Another stroke order, shown stroke by stroke</source>
        <translation>Eine andere Strichfolge, Strich für Strich gezeigt</translation>
    </message>
    <message>
        <source>&amp;Show in its category</source>
        <translation>In der Kategorie &amp;zeigen</translation>
    </message>
</context>
<context>
    <name>LearnerTransfer</name>
    <message>
        <source>Export learner</source>
        <translation>Lernenden exportieren</translation>
    </message>
    <message>
        <source>Zavoren! learners (*.xml);;All files (*)</source>
        <translation>Zavoren!-Lernende (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import learner</source>
        <translation>Lernenden importieren</translation>
    </message>
    <message>
        <source>The learner could not be written to &quot;%1&quot;. Nothing was changed.</source>
        <translation>Der Lernende konnte nicht nach „%1“ geschrieben werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a learner exported by Zavoren!.</source>
        <translation>„%1“ ist kein von Zavoren! exportierter Lernender.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; is damaged.</source>
        <translation>Die Lernenden-Datei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; was written with a character database of %2 categories; this one has %3.</source>
        <translation>Die Lernenden-Datei „%1“ wurde mit einer Zeichendatenbank mit %2 Kategorien geschrieben; diese hat %3.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>A learner named &quot;%1&quot; already exists. Replace their record with the imported one?

Yes replaces it; No imports the learner under another name.</source>
        <translation>Es gibt bereits einen Lernenden namens „%1“. Seinen Stand durch den importierten ersetzen?

Ja ersetzt ihn; Nein importiert den Lernenden unter einem anderen Namen.</translation>
    </message>
</context>
<context>
    <name>LessonPage</name>
    <message>
        <source>Lesson</source>
        <translation>Lektion</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Klicken, um das Zeichen Strich für Strich geschrieben zu sehen</translation>
    </message>
    <message>
        <source>The character to learn. Click it to watch it being written stroke by stroke.</source>
        <translation>Das zu lernende Zeichen. Klicken Sie darauf, um es Strich für Strich geschrieben zu sehen.</translation>
    </message>
    <message>
        <source>ON reading</source>
        <translation>ON-Lesung</translation>
    </message>
    <message>
        <source>KUN reading</source>
        <translation>KUN-Lesung</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, stroke by stroke in the right order. A stroke that does not match is wiped.</source>
        <translation>Schreiben Sie das Zeichen hier mit der Maus, Strich für Strich in der richtigen Reihenfolge. Ein unpassender Strich wird gelöscht.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Hinweis</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
</context>
<context>
    <name>LexiconAccess</name>
    <message>
        <source>Words and parts</source>
        <translation>Wörter und Bestandteile</translation>
    </message>
    <message>
        <source>Words and parts cannot be shown: %1</source>
        <translation>Wörter und Bestandteile können nicht angezeigt werden: %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Progress…</source>
        <translation>Fortschritt…</translation>
    </message>
    <message>
        <source>Export learner…</source>
        <translation>Lernenden exportieren…</translation>
    </message>
    <message>
        <source>Import learner…</source>
        <translation>Lernenden importieren…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Quelmar Software site</source>
        <translation>Website von Quelmar Software</translation>
    </message>
    <message>
        <source>Open Quelmar Software web site</source>
        <translation>Website von Quelmar Software öffnen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>About Zavoren</source>
        <translation>Über Zavoren</translation>
    </message>
    <message>
        <source>Print practice sheet…</source>
        <translation>Übungsblatt drucken…</translation>
    </message>
    <message>
        <source>Find a character…</source>
        <translation>Zeichen finden…</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
</context>
<context>
    <name>PracticeSheetDialog</name>
    <message>
        <source>Print practice sheet</source>
        <translation>Übungsblatt drucken</translation>
    </message>
    <message>
        <source>Preview of the first page</source>
        <translation>Vorschau der ersten Seite</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Boxes per row</source>
        <translation>Kästchen pro Zeile</translation>
    </message>
    <message>
        <source>&amp;Boxes per row:</source>
        <translation>&amp;Kästchen pro Zeile:</translation>
    </message>
    <message>
        <source>Boxes to trace</source>
        <translation>Kästchen zum Nachspuren</translation>
    </message>
    <message>
        <source>Boxes to &amp;trace:</source>
        <translation>Zum &amp;Nachspuren:</translation>
    </message>
    <message>
        <source>Stroke &amp;order</source>
        <translation>&amp;Strichfolge</translation>
    </message>
    <message>
        <source>Stroke order</source>
        <translation>Strichfolge</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Wörter</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Als P&amp;DF speichern…</translation>
    </message>
    <message>
        <source>Practice sheet</source>
        <translation>Übungsblatt</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>practice-sheet</source>
        <translation>uebungsblatt</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The sheet could not be written to &quot;%1&quot;: %2</source>
        <translation>Das Blatt konnte nicht nach „%1“ geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Select the characters first: on a category page, or a category on the home page for the characters of its next lesson.</source>
        <translation>Wählen Sie zuerst die Zeichen: auf einer Kategorieseite, oder eine Kategorie auf der Startseite für die Zeichen ihrer nächsten Lektion.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Seiten: %1</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Explain refused strokes</source>
        <translation>Abgelehnte Striche erklären</translation>
    </message>
    <message>
        <source>Practice grid</source>
        <translation>Übungsraster</translation>
    </message>
    <message>
        <source>Show where a stroke starts after three misses</source>
        <translation>Nach drei Fehlversuchen zeigen, wo ein Strich beginnt</translation>
    </message>
    <message>
        <source>Bring the window onto the screen at start</source>
        <translation>Fenster beim Start auf den Bildschirm holen</translation>
    </message>
    <message>
        <source>Judge place by my own character</source>
        <translation>Lage an meinem eigenen Zeichen messen</translation>
    </message>
    <message>
        <source>A character written a little off-centre, smaller or larger is fine: each stroke is placed against the strokes you have already written</source>
        <translation>Ein etwas außermittig, kleiner oder größer geschriebenes Zeichen ist in Ordnung: Jeder Strich wird an den schon geschriebenen Strichen gemessen</translation>
    </message>
    <message>
        <source>Review characters when they are due</source>
        <translation>Zeichen wiederholen, wenn sie fällig sind</translation>
    </message>
    <message>
        <source>Each learned character comes back for a test when you are about to forget it</source>
        <translation>Jedes gelernte Zeichen kommt wieder zum Test, wenn Sie es bald vergessen würden</translation>
    </message>
    <message>
        <source>Desired retention</source>
        <translation>Gewünschte Behaltensrate</translation>
    </message>
    <message>
        <source>Desired &amp;retention:</source>
        <translation>Gewünschte &amp;Behaltensrate:</translation>
    </message>
    <message>
        <source>higher: more reviews, fewer characters forgotten</source>
        <translation>höher: mehr Wiederholungen, weniger vergessene Zeichen</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>Maximum interval</source>
        <translation>Längster Abstand</translation>
    </message>
    <message>
        <source>&amp;Maximum interval:</source>
        <translation>Längster &amp;Abstand:</translation>
    </message>
    <message>
        <source>Show words and parts in Kanji Info</source>
        <translation>Wörter und Bestandteile in der Kanji-Info zeigen</translation>
    </message>
    <message>
        <source>Common words that use the character, and the parts it is built from</source>
        <translation>Gebräuchliche Wörter mit dem Zeichen und die Bestandteile, aus denen es besteht</translation>
    </message>
    <message>
        <source>Show a word after each answer</source>
        <translation>Nach jeder Antwort ein Wort zeigen</translation>
    </message>
    <message>
        <source>In the reading test, a common word that uses the character with the reading you have just chosen</source>
        <translation>Im Lesetest ein gebräuchliches Wort, das das Zeichen mit der eben gewählten Lesung verwendet</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Accept other stroke orders</source>
        <translation>Andere Strichfolgen annehmen</translation>
    </message>
    <message>
        <source>A stroke order taught in other schools, which KanjiVG records, is correct too</source>
        <translation>Eine Strichfolge, die an anderen Schulen gelehrt wird und die KanjiVG verzeichnet, ist auch richtig</translation>
    </message>
    <message>
        <source>Steady my ink</source>
        <translation>Meine Striche glätten</translation>
    </message>
    <message>
        <source>A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged</source>
        <translation>Eine zitternde Hand, ein Finger oder ein einfacher Stift: Jeder Strich wird vor der Bewertung geglättet</translation>
    </message>
    <message>
        <source>Review by writing only</source>
        <translation>Nur durch Schreiben wiederholen</translation>
    </message>
    <message>
        <source>A review asks you to write each character, not to choose its readings</source>
        <translation>Eine Wiederholung lässt Sie jedes Zeichen schreiben, nicht seine Lesungen wählen</translation>
    </message>
    <message>
        <source>Reviews in one sitting</source>
        <translation>Wiederholungen pro Sitzung</translation>
    </message>
    <message>
        <source>Reviews in one &amp;sitting:</source>
        <translation>Wiederholungen pro &amp;Sitzung:</translation>
    </message>
    <message>
        <source>Words test</source>
        <translation>Wörtertest</translation>
    </message>
    <message>
        <source>A Words button on the category page: write whole words made of the characters you have learned</source>
        <translation>Eine Schaltfläche „Wörter“ auf der Kategorieseite: ganze Wörter aus den gelernten Zeichen schreiben</translation>
    </message>
    <message>
        <source>Print practice sheets</source>
        <translation>Übungsblätter drucken</translation>
    </message>
    <message>
        <source>&quot;Print practice sheet…&quot; in the File menu and in the category page&apos;s menus</source>
        <translation>„Übungsblatt drucken…“ im Menü Datei und in den Menüs der Kategorieseite</translation>
    </message>
</context>
<context>
    <name>ProgressViewer</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The progress window cannot be opened: %1</source>
        <translation>Das Fortschrittsfenster kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>%1 is not the progress module</source>
        <translation>%1 ist nicht das Fortschrittsmodul</translation>
    </message>
</context>
<context>
    <name>ProgressWindow</name>
    <message>
        <source>Progress of %1</source>
        <translation>Fortschritt von %1</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Kategorie %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Learned</source>
        <translation>&amp;Gelernt</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Tests</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Kategorien</translation>
    </message>
    <message>
        <source>T&amp;rouble characters</source>
        <translation>&amp;Schwierige Zeichen</translation>
    </message>
    <message>
        <source>Category shown</source>
        <translation>Angezeigte Kategorie</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>C&amp;ategory:</source>
        <translation>K&amp;ategorie:</translation>
    </message>
    <message>
        <source>Characters learned</source>
        <translation>Gelernte Zeichen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Characters learned over time</source>
        <translation>Gelernte Zeichen im Lauf der Zeit</translation>
    </message>
    <message>
        <source>Characters learned by %1: %2</source>
        <translation>Bis %1 gelernte Zeichen: %2</translation>
    </message>
    <message>
        <source>Tests per week</source>
        <translation>Tests pro Woche</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Week beginning</source>
        <translation>Woche ab</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Tests passed and failed per week</source>
        <translation>Bestandene und nicht bestandene Tests pro Woche</translation>
    </message>
    <message>
        <source>Progress in each category</source>
        <translation>Fortschritt in jeder Kategorie</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Gelernt</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Ungetestet</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>%1: %2 of %3 learned</source>
        <translation>%1: %2 von %3 gelernt</translation>
    </message>
    <message>
        <source>Trouble characters, the most troubled first</source>
        <translation>Schwierige Zeichen, die schwierigsten zuerst</translation>
    </message>
    <message>
        <source>1 mistake</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 mistakes</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 test failed</source>
        <translation>1 Test nicht bestanden</translation>
    </message>
    <message>
        <source>%1 tests failed</source>
        <translation>%1 Tests nicht bestanden</translation>
    </message>
    <message>
        <source>Re&amp;views</source>
        <translation>&amp;Wiederholungen</translation>
    </message>
    <message>
        <source>recall %1 %</source>
        <translation>Erinnerung %1 %</translation>
    </message>
    <message>
        <source>Reviews due on each of the next 30 days</source>
        <translation>Fällige Wiederholungen an jedem der nächsten 30 Tage</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Due today: %1; in the next 30 days: %2</source>
        <translation>Heute fällig: %1; in den nächsten 30 Tagen: %2</translation>
    </message>
    <message>
        <source>Learned characters and their reviews</source>
        <translation>Gelernte Zeichen und ihre Wiederholungen</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Recall today</source>
        <translation>Erinnerung heute</translation>
    </message>
    <message>
        <source>Next review</source>
        <translation>Nächste Wiederholung</translation>
    </message>
    <message>
        <source>due now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
</context>
<context>
    <name>ReadingTestPage</name>
    <message>
        <source>Reading test</source>
        <translation>Lesetest</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Klicken, um das Zeichen Strich für Strich geschrieben zu sehen</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>ON-Lesung:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>KUN-Lesung:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Bedeutung:</translation>
    </message>
    <message>
        <source>Select ON reading</source>
        <translation>ON-Lesung wählen</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Select KUN reading</source>
        <translation>KUN-Lesung wählen</translation>
    </message>
    <message>
        <source>A word with this ON reading</source>
        <translation>Ein Wort mit dieser ON-Lesung</translation>
    </message>
    <message>
        <source>A word with this KUN reading</source>
        <translation>Ein Wort mit dieser KUN-Lesung</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Reviews answered</source>
        <translation>Beantwortete Wiederholungen</translation>
    </message>
    <message>
        <source>The reviews are over.</source>
        <translation>Die Wiederholungen sind beendet.</translation>
    </message>
    <message>
        <source>Forgotten, to be learned again:</source>
        <translation>Vergessen, neu zu lernen:</translation>
    </message>
    <message>
        <source>Forgotten characters</source>
        <translation>Vergessene Zeichen</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Review %1 of %2</source>
        <translation>Wiederholung %1 von %2</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Kategorie: %1</translation>
    </message>
    <message>
        <source>Reviewed %1 of %2</source>
        <translation>%1 von %2 wiederholt</translation>
    </message>
    <message>
        <source>Reviewed: %1
Remembered without mistakes: %2
Remembered with mistakes: %3
Forgotten: %4</source>
        <translation>Wiederholt: %1
Ohne Fehler gewusst: %2
Mit Fehlern gewusst: %3
Vergessen: %4</translation>
    </message>
    <message>
        <source>Next reviews: tomorrow %1, this week %2</source>
        <translation>Nächste Wiederholungen: morgen %1, diese Woche %2</translation>
    </message>
</context>
<context>
    <name>SplashWindow</name>
    <message>
        <source>Zavoren! is starting</source>
        <translation>Zavoren! startet</translation>
    </message>
    <message>
        <source>Loading the characters</source>
        <translation>Die Zeichen werden geladen</translation>
    </message>
</context>
<context>
    <name>TestContainer</name>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
</context>
<context>
    <name>UserManagerDialog</name>
    <message>
        <source>User Manager</source>
        <translation>Benutzerverwaltung</translation>
    </message>
    <message>
        <source>&amp;Users:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Delete User</source>
        <translation>Benutzer entfernen</translation>
    </message>
    <message>
        <source>Delete current user?</source>
        <translation>Aktuellen Benutzer entfernen?</translation>
    </message>
    <message>
        <source>Delete user?</source>
        <translation>Benutzer entfernen?</translation>
    </message>
</context>
<context>
    <name>WordsTestPage</name>
    <message>
        <source>Words test</source>
        <translation>Wörtertest</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Hinweis</translation>
    </message>
    <message>
        <source>I &amp;don&apos;t know</source>
        <translation>Ich weiß es &amp;nicht</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Word %1 of %2</source>
        <translation>Wort %1 von %2</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Lesung: %1</translation>
    </message>
    <message>
        <source>Meaning: %1</source>
        <translation>Bedeutung: %1</translation>
    </message>
    <message>
        <source>Square %1 of the word</source>
        <translation>Feld %1 des Wortes</translation>
    </message>
    <message>
        <source>Click for Kanji Info</source>
        <translation>Klicken für die Kanji-Info</translation>
    </message>
    <message>
        <source>The word: %1, read %2</source>
        <translation>Das Wort: %1, gelesen %2</translation>
    </message>
</context>
<context>
    <name>WritingCoach</name>
    <message>
        <source>Wrong order: that is stroke %1. Write stroke %2 first.</source>
        <translation>Falsche Reihenfolge: das ist Strich %1. Schreiben Sie zuerst Strich %2.</translation>
    </message>
    <message>
        <source>Wrong direction: start this stroke from the other end.</source>
        <translation>Falsche Richtung: beginnen Sie diesen Strich am anderen Ende.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach oben.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach unten.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further left.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach links.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further right.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach rechts.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the left.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach oben links.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the right.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach oben rechts.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the left.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach unten links.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the right.</source>
        <translation>Falsche Stelle: dieser Strich gehört weiter nach unten rechts.</translation>
    </message>
    <message>
        <source>Wrong place.</source>
        <translation>Falsche Stelle.</translation>
    </message>
    <message>
        <source>Too short: this stroke is longer.</source>
        <translation>Zu kurz: dieser Strich ist länger.</translation>
    </message>
    <message>
        <source>Too long: this stroke is shorter.</source>
        <translation>Zu lang: dieser Strich ist kürzer.</translation>
    </message>
    <message>
        <source>Wrong shape: compare it with the model.</source>
        <translation>Falsche Form: vergleichen Sie mit der Vorlage.</translation>
    </message>
    <message>
        <source>The character is already complete.</source>
        <translation>Das Zeichen ist schon vollständig.</translation>
    </message>
    <message>
        <source>Also correct: the order taught in other schools.</source>
        <translation>Auch richtig: die Strichfolge, die an anderen Schulen gelehrt wird.</translation>
    </message>
</context>
<context>
    <name>ZavorenCommon</name>
    <message>
        <source>Zavoren Database Error</source>
        <translation>Zavoren-Datenbankfehler</translation>
    </message>
    <message>
        <source>Zavoren Configuration Error</source>
        <translation>Zavoren-Konfigurationsfehler</translation>
    </message>
    <message>
        <source>Unable to open database</source>
        <translation>Datenbank kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unable to read database header</source>
        <translation>Datenbankkopf kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unable to read dictionary</source>
        <translation>Wörterbuch kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Character id out of range</source>
        <translation>Zeichennummer außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Character does not exist</source>
        <translation>Das Zeichen existiert nicht</translation>
    </message>
    <message>
        <source>Unable to load character</source>
        <translation>Zeichen kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Element id out of range</source>
        <translation>Elementnummer außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Element does not exist</source>
        <translation>Das Element existiert nicht</translation>
    </message>
    <message>
        <source>Unable to load element</source>
        <translation>Element kann nicht geladen werden</translation>
    </message>
    <message>
        <source>No such category</source>
        <translation>Keine solche Kategorie</translation>
    </message>
    <message>
        <source>Unable to load category</source>
        <translation>Kategorie kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Config file does not exist. Try to reinstall Zavoren.</source>
        <translation>Die Konfigurationsdatei existiert nicht. Installieren Sie Zavoren neu.</translation>
    </message>
    <message>
        <source>Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.</source>
        <translation>Die Konfigurationsdatei ist schreibgeschützt. Prüfen Sie die Dateiattribute oder installieren Sie Zavoren neu.</translation>
    </message>
    <message>
        <source>Unable to load config</source>
        <translation>Konfiguration kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Unable to save config</source>
        <translation>Konfiguration kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Unable to open lexicon</source>
        <translation>Das Lexikon kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The lexicon file is damaged</source>
        <translation>Die Lexikondatei ist beschädigt</translation>
    </message>
    <message>
        <source>The lexicon was made for another database</source>
        <translation>Das Lexikon wurde für eine andere Datenbank erstellt</translation>
    </message>
</context>
</TS>
