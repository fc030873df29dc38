<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Zavoren!</source>
        <translation>À propos de Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! icon</source>
        <translation>Icône de Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! Kanji Learning Program</source>
        <translation>Zavoren! Programme d’apprentissage des kanji</translation>
    </message>
    <message>
        <source>Copyright © Quelmar Software. Teaches kanji by writing.</source>
        <translation>Copyright © Quelmar Software. Enseigne les kanji par l’écriture.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Stroke data: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Readings and meanings: KANJIDIC2, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
The character database is a derived work shared under CC BY-SA.</source>
        <translation>Données des traits : KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Lectures et sens : KANJIDIC2, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
La base de caractères est une œuvre dérivée partagée sous CC BY-SA.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>version inconnue</translation>
    </message>
    <message>
        <source>Words: EDICT, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; parts: KanjiVG.</source>
        <translation>Mots : EDICT, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0 ; composants : KanjiVG.</translation>
    </message>
    <message>
        <source>Handwriting recognition: Zinnia, © Taku Kudo, BSD; its Japanese model from the Tegaki project, LGPL-2.1+.</source>
        <translation>Reconnaissance de l’écriture : Zinnia, © Taku Kudo, BSD ; son modèle japonais vient du projet Tegaki, LGPL-2.1+.</translation>
    </message>
</context>
<context>
    <name>AddUserDialog</name>
    <message>
        <source>Add New User</source>
        <translation>Ajouter un utilisateur</translation>
    </message>
    <message>
        <source>&amp;Enter user name:</source>
        <translation>&amp;Nom de l’utilisateur :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Can&apos;t create user</source>
        <translation>Impossible de créer l’utilisateur</translation>
    </message>
    <message>
        <source>A user name cannot contain an apostrophe (&apos;). Try another user name</source>
        <translation>Un nom d’utilisateur ne peut pas contenir d’apostrophe (&apos;). Essayez un autre nom</translation>
    </message>
    <message>
        <source>User already exists. Try another user name</source>
        <translation>L’utilisateur existe déjà. Essayez un autre nom</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>All characters of the category: those learned, and those still to be learned. Right-click a character for more.</source>
        <translation>Tous les caractères de la catégorie : ceux appris et ceux à apprendre. Clic droit sur un caractère pour plus d’options.</translation>
    </message>
    <message>
        <source>Untested:</source>
        <translation>Non testés :</translation>
    </message>
    <message>
        <source>Characters met in a lesson and waiting for a test.</source>
        <translation>Caractères vus en leçon et en attente d’un test.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Leçon</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Retest</source>
        <translation>&amp;Retester</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Oublier</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>To learn characters press &apos;Lesson&apos; button and then test learned characters by pressing &apos;Test&apos; button.</source>
        <translation>Pour apprendre des caractères, appuyez sur « Leçon », puis testez les caractères appris avec « Test ».</translation>
    </message>
    <message>
        <source>Category complete</source>
        <translation>Catégorie terminée</translation>
    </message>
    <message>
        <source>Characters of the category</source>
        <translation>Caractères de la catégorie</translation>
    </message>
    <message>
        <source>Untested characters</source>
        <translation>Caractères non testés</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Appris</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Infos</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Réviser</translation>
    </message>
    <message>
        <source>Unlearned</source>
        <translation>Non appris</translation>
    </message>
    <message>
        <source>&amp;Learn</source>
        <translation>&amp;Apprendre</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Non testés</translation>
    </message>
    <message>
        <source>Learned Kanji</source>
        <translation>Kanji appris</translation>
    </message>
    <message>
        <source>Kanji to be Learned</source>
        <translation>Kanji à apprendre</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Mots</translation>
    </message>
    <message>
        <source>Write whole words made of the characters you have learned</source>
        <translation>Écrire des mots entiers faits des caractères appris</translation>
    </message>
    <message>
        <source>&amp;Print practice sheet…</source>
        <translation>Im&amp;primer une feuille d’exercices…</translation>
    </message>
</context>
<context>
    <name>CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
</context>
<context>
    <name>CrashHandler</name>
    <message>
        <source>Oops...<byte value="xd"/>
Fatal error in Zavoren.<byte value="xd"/>
<byte value="xd"/>
Do you want to get minidump for it?</source>
        <translation>Oups...<byte value="xd"/>
Erreur fatale dans Zavoren.<byte value="xd"/>
<byte value="xd"/>
Voulez-vous en obtenir un minidump ?</translation>
    </message>
    <message>
        <source>Unhandled Exception</source>
        <translation>Exception non gérée</translation>
    </message>
    <message>
        <source>MiniDump</source>
        <translation>MiniDump</translation>
    </message>
    <message>
        <source>Minidump successfuly created in application folder.</source>
        <translation>Minidump créé dans le dossier de l’application.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Unable to generate minidump.</source>
        <translation>Impossible de générer le minidump.</translation>
    </message>
</context>
<context>
    <name>DisplayCanvas</name>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Cliquez pour voir le caractère tracé trait par trait</translation>
    </message>
</context>
<context>
    <name>DrawingTestPage</name>
    <message>
        <source>Drawing test</source>
        <translation>Test d’écriture</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Cliquez pour voir le caractère tracé trait par trait</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lecture ON :</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lecture KUN :</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Sens :</translation>
    </message>
    <message>
        <source>Write the character from its readings and meaning. Click the box on the left to see it (counts as a mistake before the drawing is complete).</source>
        <translation>Écrivez le caractère d’après ses lectures et son sens. Cliquez sur la case de gauche pour le voir (compte comme une erreur avant la fin du tracé).</translation>
    </message>
</context>
<context>
    <name>FeedbackLine</name>
    <message>
        <source>Stroke feedback</source>
        <translation>Commentaire sur le trait</translation>
    </message>
</context>
<context>
    <name>FindCharacterWindow</name>
    <message>
        <source>Find a character</source>
        <translation>Trouver un caractère</translation>
    </message>
    <message>
        <source>&amp;Type a character, a reading in kana or an English word:</source>
        <translation>&amp;Saisissez un caractère, une lecture en kana ou un mot anglais :</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Or write it:</source>
        <translation>Ou écrivez-le :</translation>
    </message>
    <message>
        <source>Write the character here</source>
        <translation>Écrivez le caractère ici</translation>
    </message>
    <message>
        <source>Reading the handwriting model…</source>
        <translation>Lecture du modèle d’écriture…</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler le trait</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Caractères trouvés</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Lectures</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Writing needs the words and parts file (lexicon) beside the database.</source>
        <translation>L’écriture demande le fichier des mots et des parties (lexicon) à côté de la base.</translation>
    </message>
    <message>
        <source>The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are found from Zavoren!&apos;s own strokes only, written in their stroke order.</source>
        <translation>Le modèle d’écriture n’est pas installé (paquet Debian tegaki-zinnia-japanese) : les caractères sont trouvés d’après les seuls traits de Zavoren!, écrits dans leur ordre.</translation>
    </message>
</context>
<context>
    <name>HistoryNotice</name>
    <message>
        <source>Learning history</source>
        <translation>Historique d’apprentissage</translation>
    </message>
    <message>
        <source>The learning history cannot be kept: %1</source>
        <translation>L’historique d’apprentissage ne peut pas être conservé : %1</translation>
    </message>
    <message>
        <source>The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Le fichier endommagé est conservé sous le nom « %1 ».</translation>
    </message>
    <message>
        <source>Until it can be kept again, your progress and history are saved in config.xml.</source>
        <translation>En attendant qu’il puisse l’être à nouveau, vos progrès et votre historique sont enregistrés dans config.xml.</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utilisateur :</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Catégories :</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source> (%1 of %2)</source>
        <translation> (%1 sur %2)</translation>
    </message>
    <message>
        <source> (%1 of %2, %3 due)</source>
        <translation> (%1 sur %2, %3 à réviser)</translation>
    </message>
    <message>
        <source>Due for review today: %1</source>
        <translation>À réviser aujourd’hui : %1</translation>
    </message>
    <message>
        <source>Nothing is due for review today.</source>
        <translation>Rien à réviser aujourd’hui.</translation>
    </message>
    <message>
        <source>&amp;Review (%1)</source>
        <translation>&amp;Réviser (%1)</translation>
    </message>
    <message>
        <source>Review the characters due (%1)</source>
        <translation>Réviser les caractères à revoir (%1)</translation>
    </message>
</context>
<context>
    <name>InputCanvas</name>
    <message>
        <source>Writing canvas</source>
        <translation>Zone d’écriture</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, one stroke at a time</source>
        <translation>Écrivez le caractère ici à la souris, un trait à la fois</translation>
    </message>
</context>
<context>
    <name>KanjiInfoDialog</name>
    <message>
        <source> Kanji Info</source>
        <translation> Infos sur le kanji</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Cliquez pour voir le caractère tracé trait par trait</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lecture ON :</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lecture KUN :</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Sens :</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Next review: due now</source>
        <translation>Prochaine révision : maintenant</translation>
    </message>
    <message>
        <source>Next review: %1</source>
        <translation>Prochaine révision : %1</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Words (meanings in English)</source>
        <translation>Mots (sens en anglais)</translation>
    </message>
    <message>
        <source>Not learned yet: %1</source>
        <translation>Pas encore appris : %1</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Open the Kanji Info of %1</source>
        <translation>Ouvrir les infos sur le kanji %1</translation>
    </message>
    <message>
        <source>Part %1, opens its Kanji Info</source>
        <translation>Composant %1, ouvre ses infos sur le kanji</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Composant %1</translation>
    </message>
    <message>
        <source>Other order</source>
        <translation>Autre ordre</translation>
    </message>
    <message>
        <source>Another stroke order, shown stroke by stroke</source>
        <translation>Un autre ordre des traits, montré trait par trait</translation>
    </message>
    <message>
        <source>&amp;Show in its category</source>
        <translation>&amp;Voir dans sa catégorie</translation>
    </message>
</context>
<context>
    <name>LearnerTransfer</name>
    <message>
        <source>Export learner</source>
        <translation>Exporter l’apprenant</translation>
    </message>
    <message>
        <source>Zavoren! learners (*.xml);;All files (*)</source>
        <translation>Apprenants Zavoren! (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import learner</source>
        <translation>Importer un apprenant</translation>
    </message>
    <message>
        <source>The learner could not be written to &quot;%1&quot;. Nothing was changed.</source>
        <translation>L’apprenant n’a pas pu être écrit dans « %1 ». Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Le fichier « %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a learner exported by Zavoren!.</source>
        <translation>« %1 » n’est pas un apprenant exporté par Zavoren!.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; is damaged.</source>
        <translation>Le fichier d’apprenant « %1 » est endommagé.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; was written with a character database of %2 categories; this one has %3.</source>
        <translation>Le fichier d’apprenant « %1 » a été écrit avec une base de caractères de %2 catégories ; celle-ci en a %3.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Rien n’a été importé.</translation>
    </message>
    <message>
        <source>A learner named &quot;%1&quot; already exists. Replace their record with the imported one?

Yes replaces it; No imports the learner under another name.</source>
        <translation>Un apprenant nommé « %1 » existe déjà. Remplacer son dossier par celui importé ?

Oui le remplace ; Non importe l’apprenant sous un autre nom.</translation>
    </message>
</context>
<context>
    <name>LessonPage</name>
    <message>
        <source>Lesson</source>
        <translation>Leçon</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Cliquez pour voir le caractère tracé trait par trait</translation>
    </message>
    <message>
        <source>The character to learn. Click it to watch it being written stroke by stroke.</source>
        <translation>Le caractère à apprendre. Cliquez dessus pour le voir tracé trait par trait.</translation>
    </message>
    <message>
        <source>ON reading</source>
        <translation>Lecture ON</translation>
    </message>
    <message>
        <source>KUN reading</source>
        <translation>Lecture KUN</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, stroke by stroke in the right order. A stroke that does not match is wiped.</source>
        <translation>Écrivez le caractère ici à la souris, trait par trait dans le bon ordre. Un trait qui ne correspond pas est effacé.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler le trait</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Indice</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
</context>
<context>
    <name>LexiconAccess</name>
    <message>
        <source>Words and parts</source>
        <translation>Mots et composants</translation>
    </message>
    <message>
        <source>Words and parts cannot be shown: %1</source>
        <translation>Les mots et les composants ne peuvent pas être affichés : %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Utilisateurs</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Progress…</source>
        <translation>Progrès…</translation>
    </message>
    <message>
        <source>Export learner…</source>
        <translation>Exporter l’apprenant…</translation>
    </message>
    <message>
        <source>Import learner…</source>
        <translation>Importer un apprenant…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Quelmar Software site</source>
        <translation>Site de Quelmar Software</translation>
    </message>
    <message>
        <source>Open Quelmar Software web site</source>
        <translation>Ouvrir le site de Quelmar Software</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About Zavoren</source>
        <translation>À propos de Zavoren</translation>
    </message>
    <message>
        <source>Print practice sheet…</source>
        <translation>Imprimer une feuille d’exercices…</translation>
    </message>
    <message>
        <source>Find a character…</source>
        <translation>Trouver un caractère…</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>PracticeSheetDialog</name>
    <message>
        <source>Print practice sheet</source>
        <translation>Imprimer une feuille d’exercices</translation>
    </message>
    <message>
        <source>Preview of the first page</source>
        <translation>Aperçu de la première page</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>Boxes per row</source>
        <translation>Cases par ligne</translation>
    </message>
    <message>
        <source>&amp;Boxes per row:</source>
        <translation>&amp;Cases par ligne :</translation>
    </message>
    <message>
        <source>Boxes to trace</source>
        <translation>Cases à repasser</translation>
    </message>
    <message>
        <source>Boxes to &amp;trace:</source>
        <translation>Cases à &amp;repasser :</translation>
    </message>
    <message>
        <source>Stroke &amp;order</source>
        <translation>&amp;Ordre des traits</translation>
    </message>
    <message>
        <source>Stroke order</source>
        <translation>Ordre des traits</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Mots</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>Practice sheet</source>
        <translation>Feuille d’exercices</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>practice-sheet</source>
        <translation>feuille-exercices</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The sheet could not be written to &quot;%1&quot;: %2</source>
        <translation>La feuille n’a pas pu être écrite dans « %1 » : %2</translation>
    </message>
    <message>
        <source>Select the characters first: on a category page, or a category on the home page for the characters of its next lesson.</source>
        <translation>Choisissez d’abord les caractères : sur une page de catégorie, ou une catégorie sur la page d’accueil pour les caractères de sa prochaine leçon.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Pages : %1</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Explain refused strokes</source>
        <translation>Expliquer les traits refusés</translation>
    </message>
    <message>
        <source>Practice grid</source>
        <translation>Grille d’entraînement</translation>
    </message>
    <message>
        <source>Show where a stroke starts after three misses</source>
        <translation>Montrer où commence un trait après trois échecs</translation>
    </message>
    <message>
        <source>Bring the window onto the screen at start</source>
        <translation>Ramener la fenêtre sur l’écran au démarrage</translation>
    </message>
    <message>
        <source>Judge place by my own character</source>
        <translation>Juger la place d’après mon propre caractère</translation>
    </message>
    <message>
        <source>A character written a little off-centre, smaller or larger is fine: each stroke is placed against the strokes you have already written</source>
        <translation>Un caractère écrit un peu décentré, plus petit ou plus grand convient : chaque trait est placé par rapport aux traits déjà écrits</translation>
    </message>
    <message>
        <source>Review characters when they are due</source>
        <translation>Réviser les caractères quand il le faut</translation>
    </message>
    <message>
        <source>Each learned character comes back for a test when you are about to forget it</source>
        <translation>Chaque caractère appris revient en test quand vous êtes sur le point de l’oublier</translation>
    </message>
    <message>
        <source>Desired retention</source>
        <translation>Rétention souhaitée</translation>
    </message>
    <message>
        <source>Desired &amp;retention:</source>
        <translation>&amp;Rétention souhaitée :</translation>
    </message>
    <message>
        <source>higher: more reviews, fewer characters forgotten</source>
        <translation>plus haut : plus de révisions, moins de caractères oubliés</translation>
    </message>
    <message>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source>Maximum interval</source>
        <translation>Intervalle maximal</translation>
    </message>
    <message>
        <source>&amp;Maximum interval:</source>
        <translation>Intervalle &amp;maximal :</translation>
    </message>
    <message>
        <source>Show words and parts in Kanji Info</source>
        <translation>Afficher les mots et les composants dans les infos sur le kanji</translation>
    </message>
    <message>
        <source>Common words that use the character, and the parts it is built from</source>
        <translation>Des mots courants qui emploient le caractère, et les composants dont il est fait</translation>
    </message>
    <message>
        <source>Show a word after each answer</source>
        <translation>Afficher un mot après chaque réponse</translation>
    </message>
    <message>
        <source>In the reading test, a common word that uses the character with the reading you have just chosen</source>
        <translation>Dans le test de lecture, un mot courant qui emploie le caractère avec la lecture que vous venez de choisir</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Révisions</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Accept other stroke orders</source>
        <translation>Accepter les autres ordres des traits</translation>
    </message>
    <message>
        <source>A stroke order taught in other schools, which KanjiVG records, is correct too</source>
        <translation>Un ordre des traits enseigné dans d’autres écoles, que KanjiVG répertorie, est correct aussi</translation>
    </message>
    <message>
        <source>Steady my ink</source>
        <translation>Stabiliser mon tracé</translation>
    </message>
    <message>
        <source>A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged</source>
        <translation>Une main qui tremble, un doigt ou un stylet bon marché : chaque trait est lissé avant d’être jugé</translation>
    </message>
    <message>
        <source>Review by writing only</source>
        <translation>Réviser seulement en écrivant</translation>
    </message>
    <message>
        <source>A review asks you to write each character, not to choose its readings</source>
        <translation>Une révision vous fait écrire chaque caractère, sans choisir ses lectures</translation>
    </message>
    <message>
        <source>Reviews in one sitting</source>
        <translation>Révisions par séance</translation>
    </message>
    <message>
        <source>Reviews in one &amp;sitting:</source>
        <translation>Révisions par &amp;séance :</translation>
    </message>
    <message>
        <source>Words test</source>
        <translation>Test de mots</translation>
    </message>
    <message>
        <source>A Words button on the category page: write whole words made of the characters you have learned</source>
        <translation>Un bouton Mots sur la page de catégorie : écrire des mots entiers faits des caractères appris</translation>
    </message>
    <message>
        <source>Print practice sheets</source>
        <translation>Imprimer des feuilles d’exercices</translation>
    </message>
    <message>
        <source>&quot;Print practice sheet…&quot; in the File menu and in the category page&apos;s menus</source>
        <translation>« Imprimer une feuille d’exercices… » dans le menu Fichier et dans les menus de la page de catégorie</translation>
    </message>
</context>
<context>
    <name>ProgressViewer</name>
    <message>
        <source>Progress</source>
        <translation>Progrès</translation>
    </message>
    <message>
        <source>The progress window cannot be opened: %1</source>
        <translation>La fenêtre des progrès ne peut pas s’ouvrir : %1</translation>
    </message>
    <message>
        <source>%1 is not the progress module</source>
        <translation>%1 n’est pas le module des progrès</translation>
    </message>
</context>
<context>
    <name>ProgressWindow</name>
    <message>
        <source>Progress of %1</source>
        <translation>Progrès de %1</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Catégorie %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progrès</translation>
    </message>
    <message>
        <source>&amp;Learned</source>
        <translation>&amp;Appris</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Tests</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Catégories</translation>
    </message>
    <message>
        <source>T&amp;rouble characters</source>
        <translation>Caractères &amp;difficiles</translation>
    </message>
    <message>
        <source>Category shown</source>
        <translation>Catégorie affichée</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>C&amp;ategory:</source>
        <translation>C&amp;atégorie :</translation>
    </message>
    <message>
        <source>Characters learned</source>
        <translation>Caractères appris</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>Characters learned over time</source>
        <translation>Caractères appris au fil du temps</translation>
    </message>
    <message>
        <source>Characters learned by %1: %2</source>
        <translation>Caractères appris au %1 : %2</translation>
    </message>
    <message>
        <source>Tests per week</source>
        <translation>Tests par semaine</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Réussis</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échoués</translation>
    </message>
    <message>
        <source>Week beginning</source>
        <translation>Semaine du</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Tests passed and failed per week</source>
        <translation>Tests réussis et échoués par semaine</translation>
    </message>
    <message>
        <source>Progress in each category</source>
        <translation>Progrès dans chaque catégorie</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Appris</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Non testés</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fait</translation>
    </message>
    <message>
        <source>%1: %2 of %3 learned</source>
        <translation>%1 : %2 sur %3 appris</translation>
    </message>
    <message>
        <source>Trouble characters, the most troubled first</source>
        <translation>Caractères difficiles, les plus difficiles d’abord</translation>
    </message>
    <message>
        <source>1 mistake</source>
        <translation>1 erreur</translation>
    </message>
    <message>
        <source>%1 mistakes</source>
        <translation>%1 erreurs</translation>
    </message>
    <message>
        <source>1 test failed</source>
        <translation>1 test échoué</translation>
    </message>
    <message>
        <source>%1 tests failed</source>
        <translation>%1 tests échoués</translation>
    </message>
    <message>
        <source>Re&amp;views</source>
        <translation>Ré&amp;visions</translation>
    </message>
    <message>
        <source>recall %1 %</source>
        <translation>rappel %1 %</translation>
    </message>
    <message>
        <source>Reviews due on each of the next 30 days</source>
        <translation>Révisions prévues chacun des 30 prochains jours</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>À réviser</translation>
    </message>
    <message>
        <source>Due today: %1; in the next 30 days: %2</source>
        <translation>À réviser aujourd’hui : %1 ; dans les 30 prochains jours : %2</translation>
    </message>
    <message>
        <source>Learned characters and their reviews</source>
        <translation>Caractères appris et leurs révisions</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Recall today</source>
        <translation>Rappel aujourd’hui</translation>
    </message>
    <message>
        <source>Next review</source>
        <translation>Prochaine révision</translation>
    </message>
    <message>
        <source>due now</source>
        <translation>maintenant</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
</context>
<context>
    <name>ReadingTestPage</name>
    <message>
        <source>Reading test</source>
        <translation>Test de lecture</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Cliquez pour voir le caractère tracé trait par trait</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lecture ON :</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lecture KUN :</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Sens :</translation>
    </message>
    <message>
        <source>Select ON reading</source>
        <translation>Choisissez la lecture ON</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Select KUN reading</source>
        <translation>Choisissez la lecture KUN</translation>
    </message>
    <message>
        <source>A word with this ON reading</source>
        <translation>Un mot avec cette lecture ON</translation>
    </message>
    <message>
        <source>A word with this KUN reading</source>
        <translation>Un mot avec cette lecture KUN</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Révision</translation>
    </message>
    <message>
        <source>Reviews answered</source>
        <translation>Révisions faites</translation>
    </message>
    <message>
        <source>The reviews are over.</source>
        <translation>Les révisions sont terminées.</translation>
    </message>
    <message>
        <source>Forgotten, to be learned again:</source>
        <translation>Oubliés, à réapprendre :</translation>
    </message>
    <message>
        <source>Forgotten characters</source>
        <translation>Caractères oubliés</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Infos</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>Review %1 of %2</source>
        <translation>Révision %1 sur %2</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Catégorie : %1</translation>
    </message>
    <message>
        <source>Reviewed %1 of %2</source>
        <translation>%1 sur %2 révisés</translation>
    </message>
    <message>
        <source>Reviewed: %1
Remembered without mistakes: %2
Remembered with mistakes: %3
Forgotten: %4</source>
        <translation>Révisés : %1
Retenus sans faute : %2
Retenus avec des fautes : %3
Oubliés : %4</translation>
    </message>
    <message>
        <source>Next reviews: tomorrow %1, this week %2</source>
        <translation>Prochaines révisions : demain %1, cette semaine %2</translation>
    </message>
</context>
<context>
    <name>SplashWindow</name>
    <message>
        <source>Zavoren! is starting</source>
        <translation>Zavoren! démarre</translation>
    </message>
    <message>
        <source>Loading the characters</source>
        <translation>Chargement des caractères</translation>
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
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
</context>
<context>
    <name>UserManagerDialog</name>
    <message>
        <source>User Manager</source>
        <translation>Gestion des utilisateurs</translation>
    </message>
    <message>
        <source>&amp;Users:</source>
        <translation>&amp;Utilisateurs :</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Utilisateurs</translation>
    </message>
    <message>
        <source>Delete User</source>
        <translation>Supprimer l’utilisateur</translation>
    </message>
    <message>
        <source>Delete current user?</source>
        <translation>Supprimer l’utilisateur actuel ?</translation>
    </message>
    <message>
        <source>Delete user?</source>
        <translation>Supprimer l’utilisateur ?</translation>
    </message>
</context>
<context>
    <name>WordsTestPage</name>
    <message>
        <source>Words test</source>
        <translation>Test de mots</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Indice</translation>
    </message>
    <message>
        <source>I &amp;don&apos;t know</source>
        <translation>Je ne sais &amp;pas</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Word %1 of %2</source>
        <translation>Mot %1 sur %2</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Lecture : %1</translation>
    </message>
    <message>
        <source>Meaning: %1</source>
        <translation>Sens : %1</translation>
    </message>
    <message>
        <source>Square %1 of the word</source>
        <translation>Case %1 du mot</translation>
    </message>
    <message>
        <source>Click for Kanji Info</source>
        <translation>Cliquer pour les infos du kanji</translation>
    </message>
    <message>
        <source>The word: %1, read %2</source>
        <translation>Le mot : %1, lu %2</translation>
    </message>
</context>
<context>
    <name>WritingCoach</name>
    <message>
        <source>Wrong order: that is stroke %1. Write stroke %2 first.</source>
        <translation>Mauvais ordre : c’est le trait %1. Écrivez d’abord le trait %2.</translation>
    </message>
    <message>
        <source>Wrong direction: start this stroke from the other end.</source>
        <translation>Mauvais sens : commencez ce trait par l’autre bout.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up.</source>
        <translation>Mauvais endroit : ce trait va plus haut.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down.</source>
        <translation>Mauvais endroit : ce trait va plus bas.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further left.</source>
        <translation>Mauvais endroit : ce trait va plus à gauche.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further right.</source>
        <translation>Mauvais endroit : ce trait va plus à droite.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the left.</source>
        <translation>Mauvais endroit : ce trait va plus haut et plus à gauche.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the right.</source>
        <translation>Mauvais endroit : ce trait va plus haut et plus à droite.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the left.</source>
        <translation>Mauvais endroit : ce trait va plus bas et plus à gauche.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the right.</source>
        <translation>Mauvais endroit : ce trait va plus bas et plus à droite.</translation>
    </message>
    <message>
        <source>Wrong place.</source>
        <translation>Mauvais endroit.</translation>
    </message>
    <message>
        <source>Too short: this stroke is longer.</source>
        <translation>Trop court : ce trait est plus long.</translation>
    </message>
    <message>
        <source>Too long: this stroke is shorter.</source>
        <translation>Trop long : ce trait est plus court.</translation>
    </message>
    <message>
        <source>Wrong shape: compare it with the model.</source>
        <translation>Mauvaise forme : comparez avec le modèle.</translation>
    </message>
    <message>
        <source>The character is already complete.</source>
        <translation>Le caractère est déjà complet.</translation>
    </message>
    <message>
        <source>Also correct: the order taught in other schools.</source>
        <translation>Correct aussi : l’ordre enseigné dans d’autres écoles.</translation>
    </message>
</context>
<context>
    <name>ZavorenCommon</name>
    <message>
        <source>Zavoren Database Error</source>
        <translation>Erreur de base de données de Zavoren</translation>
    </message>
    <message>
        <source>Zavoren Configuration Error</source>
        <translation>Erreur de configuration de Zavoren</translation>
    </message>
    <message>
        <source>Unable to open database</source>
        <translation>Impossible d’ouvrir la base de données</translation>
    </message>
    <message>
        <source>Unable to read database header</source>
        <translation>Impossible de lire l’en-tête de la base de données</translation>
    </message>
    <message>
        <source>Unable to read dictionary</source>
        <translation>Impossible de lire le dictionnaire</translation>
    </message>
    <message>
        <source>Character id out of range</source>
        <translation>Identifiant de caractère hors limites</translation>
    </message>
    <message>
        <source>Character does not exist</source>
        <translation>Le caractère n’existe pas</translation>
    </message>
    <message>
        <source>Unable to load character</source>
        <translation>Impossible de charger le caractère</translation>
    </message>
    <message>
        <source>Element id out of range</source>
        <translation>Identifiant d’élément hors limites</translation>
    </message>
    <message>
        <source>Element does not exist</source>
        <translation>L’élément n’existe pas</translation>
    </message>
    <message>
        <source>Unable to load element</source>
        <translation>Impossible de charger l’élément</translation>
    </message>
    <message>
        <source>No such category</source>
        <translation>Catégorie inexistante</translation>
    </message>
    <message>
        <source>Unable to load category</source>
        <translation>Impossible de charger la catégorie</translation>
    </message>
    <message>
        <source>Config file does not exist. Try to reinstall Zavoren.</source>
        <translation>Le fichier de configuration n’existe pas. Essayez de réinstaller Zavoren.</translation>
    </message>
    <message>
        <source>Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.</source>
        <translation>Le fichier de configuration est en lecture seule. Vérifiez ses attributs ou réinstallez Zavoren.</translation>
    </message>
    <message>
        <source>Unable to load config</source>
        <translation>Impossible de charger la configuration</translation>
    </message>
    <message>
        <source>Unable to save config</source>
        <translation>Impossible d’enregistrer la configuration</translation>
    </message>
    <message>
        <source>Unable to open lexicon</source>
        <translation>Impossible d&apos;ouvrir le lexique</translation>
    </message>
    <message>
        <source>The lexicon file is damaged</source>
        <translation>Le fichier du lexique est endommagé</translation>
    </message>
    <message>
        <source>The lexicon was made for another database</source>
        <translation>Le lexique a été fait pour une autre base de données</translation>
    </message>
</context>
</TS>
