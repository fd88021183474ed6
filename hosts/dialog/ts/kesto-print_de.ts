<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer: turn that on first.</source>
        <translation>Der Auftrag wird nicht auf dem Drucker zurückgehalten: Schalten Sie zuerst „Zurückhalten“ ein.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Die Schnellablage hat keine PIN.</translation>
    </message>
    <message>
        <source>Only a custom folder has a name to type.</source>
        <translation>Nur für einen eigenen Ordner lässt sich ein Name eingeben.</translation>
    </message>
    <message>
        <source>Only a custom folder, or one that is guarded, has a pass code.</source>
        <translation>Nur ein eigener oder ein geschützter Ordner hat eine PIN.</translation>
    </message>
    <message>
        <source>The user is told by the user number, not by the login name.</source>
        <translation>Der Benutzer wird über die Benutzernummer angegeben, nicht über den Anmeldenamen.</translation>
    </message>
    <message>
        <source>Locked and remembered for this printer: open the padlock to change it.</source>
        <translation>Gesperrt und für diesen Drucker gemerkt: Öffnen Sie zum Ändern das Schloss.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Ziffern verbergen</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Ziffern anzeigen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Hold a job on the printer</source>
        <translation>Einen Auftrag auf dem Drucker speichern</translation>
    </message>
    <message>
        <source>Turn on Retention on the pane Job Handling and give a pass code of up to 8 digits. The job waits in the printer until you enter the code there.</source>
        <translation>Schalten Sie auf der Registerkarte „Auftragssteuerung“ die Option „Zurückhalten“ ein und geben Sie eine PIN mit bis zu 8 Ziffern an. Der Auftrag wartet im Drucker, bis Sie dort die PIN eingeben.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Angeben, wer Sie sind</translation>
    </message>
    <message>
        <source>Where the printer counts pages, give your user number or your login name on the page User and Account.</source>
        <translation>Wenn der Drucker die Seiten zählt, geben Sie auf der Registerkarte „Benutzer und Konto“ Ihre Benutzernummer oder Ihren Anmeldenamen an.</translation>
    </message>
    <message>
        <source>Have an entry remembered</source>
        <translation>Einen Eintrag merken lassen</translation>
    </message>
    <message>
        <source>Close the padlock beside an entry. It is offered again for this printer; open the padlock to change it.</source>
        <translation>Schließen Sie das Schloss neben einem Eintrag. Er wird dann für diesen Drucker wieder angeboten; zum Ändern öffnen Sie das Schloss.</translation>
    </message>
    <message>
        <source>Choose a folder of the printer</source>
        <translation>Einen Ordner des Druckers wählen</translation>
    </message>
    <message>
        <source>Get Folder Names asks the printer at the address above for its folders.</source>
        <translation>„Ordnernamen abrufen“ fragt den Drucker unter der darüber angegebenen Adresse nach seinen Ordnern.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Alt and the underlined letter go to an entry, with Shift to its padlock. Enter prints, Escape cancels, Ctrl+R shows a pass code while the cursor is in it.</source>
        <translation>Alt und der unterstrichene Buchstabe führen zu einem Eintrag, mit Umschalt zu seinem Schloss. Eingabe druckt, Esc bricht ab, Strg+R zeigt eine PIN an, solange der Cursor darin steht.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Hilfe zum Drucken</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Eigene Größe %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Eigener Wert %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Seitenreihenfolge</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papiersorte</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Halbes US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Postkarte (Japan)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Doppelpostkarte (Japan)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Umschlag Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Umschlag %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Umschlag Nr. %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Alternatives Fach</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kassette</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kassette %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fach %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manueller Einzug</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Mehrzweckfach</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Umschlageinzug</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Manueller Umschlageinzug</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Großraumfach</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Oberes Fach</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mittleres Fach</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Unteres Fach</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Linkes Fach</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Rechtes Fach</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Seitliches Fach</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Hinteres Fach</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Zentrales Fach</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofach</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>CD-/DVD-Fach</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Postkartenfach</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Papierrolle</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Alternative Papierrolle</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefkopf</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Vorgedruckt</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Vorgelocht</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Recyclingpapier</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bankpostpapier</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Schweres Papier</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Leichtes Papier</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Gestrichenes Papier</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Tintenstrahlpapier</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Feinpapier</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Farbiges Papier</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Baumwollpapier</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparentfolie</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Fotopapier, glänzend</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Fotopapier, hochglänzend</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Fotopapier, halbglänzend</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Fotopapier, seidenmatt</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Fotopapier, matt</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Endlospapier</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Registerpapier</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>CD/DVD</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Oberes Ausgabefach</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Mittleres Ausgabefach</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Unteres Ausgabefach</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Linkes Ausgabefach</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Rechtes Ausgabefach</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Zentrales Ausgabefach</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Seitliches Ausgabefach</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Hinteres Ausgabefach</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stapler %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Stapler</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Postfach %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Mein Postfach</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Nur Schwarz, ohne Graustufen</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Zwei Heftklammern</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Drei Heftklammern</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Kantenheftung</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Rückenheftung</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Zwei Löcher</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Drei Löcher</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Vier Löcher</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Viele Löcher</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Deckblatt hinzufügen</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Aufträge versetzen</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminieren</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>In der Mitte falzen</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Wickelfalz</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-Falz</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Halber Z-Falz</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Leporellofalz</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Fensterfalz</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doppelter Fensterfalz</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Parallelfalz</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, randlos</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Auftrag wird gesendet</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere Datei</numerusform>
            <numerusform>%1 und %n weitere Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that is read.</source>
        <translation>%1 ist größer als %2; mehr wird nicht gelesen.</translation>
    </message>
    <message>
        <source>%1 cannot be stored: %2</source>
        <translation>%1 kann nicht zwischengespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 ist leer. Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Das Dokument</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Das Dokument hat keine Seiten. Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>The document is protected by a password and cannot be printed. Save a copy without the password and print that.</source>
        <translation>Das Dokument ist durch ein Kennwort geschützt und kann nicht gedruckt werden. Speichern Sie eine Kopie ohne Kennwort und drucken Sie diese.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>Dokument auswählen</translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>the digest of the pass code</source>
        <translation>die Prüfsumme der PIN</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>die PIN</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>der Zeitpunkt des Auftrags</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>die PIN des Ordners</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>der Ordner</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>die Benutzernummer</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>die Kontonummer</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>der Benutzername</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>der Auftragsname</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>was andere Benutzer sehen, lässt sich nicht ermitteln: %1</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>die Erweiterung „Auftragssteuerung“ hat kein Bedienfeld für den Druckdialog</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>das Bedienfeld hat kein Layout</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>JobHandling.pde wurde weder neben dem Programm noch im Bibliotheksordner gefunden</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: Zeile %2: %3</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>die PPD lässt sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>die PPD von %1 lässt sich nicht abrufen: %2</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>eine Voreinstellung kann den Namen dieses Ordners nicht aufnehmen</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>es gibt keine Voreinstellung „%1“; dieser Drucker hat keine Voreinstellungen</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>es gibt keine Voreinstellung „%1“; dieser Drucker hat: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>die Voreinstellung „%1“ ist beschädigt und bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>die Voreinstellungen dieses Druckers sind beschädigt und wurden nicht verändert</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>die Voreinstellung „%1“ gehört zu einem anderen Druckermodell, %2</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>die Standardeingabe lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: ist ein Ordner</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>der Auftrag wurde abgebrochen</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>die Antwort des Druckservers ist unvollständig</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>die Antwort des Druckservers ist nicht lesbar</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>die Antwort des Druckservers ist zu groß</translation>
    </message>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>die Suche nach dem Druckserver %1 hat zu lange gedauert</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>es gibt keinen Druckserver namens %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>keine verschlüsselte Verbindung zum Druckserver %1 möglich</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>keine Verbindung zum Druckserver %1. Läuft er?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>der Druckserver %1 hat das Dokument nicht zu Ende gelesen</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>der Druckserver %1 hat nicht innerhalb von %2 s geantwortet</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>der Druckserver %1 hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>der Druckserver %1 hat auf eine andere Adresse umgeleitet (HTTP-Status %2); Umleitungen wird nicht gefolgt</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>der Druckserver %1 verlangt ein Passwort</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>der Druckserver %1 antwortet: %2 (HTTP-Status %3)</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>der Druckserver hat dem Auftrag keine Nummer gegeben</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>auf „%1“ lässt sich kein Auftrag anlegen: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>der Auftrag %1-%2 lässt sich nicht abbrechen: %3</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>die PPD von %1 ist zu groß</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>der Druckserver hat den Auftrag abgelehnt: %1</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1 konnte nicht gedruckt werden: %2</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>der Drucker „%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>der Druckserver hat den Auftrag beendet: %1</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>der Name einer Voreinstellung darf höchstens %1 Zeichen haben; wählen Sie einen kürzeren</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>die Voreinstellungen dieses Druckers lassen sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>die Optionen des Auftrags</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not have the job</source>
        <translation>die Antwort des Druckservers enthält keinen Auftrag</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>die Ordner können nicht gemerkt werden: %1</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>die Antwort des Druckers lässt sich nicht in den temporären Ordner schreiben. Ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>die Antwort des Druckers ist keine Ordnerliste</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>dieser Drucker nimmt diesen Dateityp nicht an (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>„%1“ nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>„%1“ nimmt keine Aufträge an: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>es gibt keinen Drucker namens „%1“</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>dieser Drucker nimmt diesen Dateityp nicht an</translation>
    </message>
</context>
<context>
    <name>kesto::GeneralPane</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>These:</source>
        <translation>Bereich:</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>Pages to print, such as 1-3, 5</source>
        <translation>Zu druckende Seiten, etwa 1-3, 5</translation>
    </message>
    <message>
        <source>The printer cannot do these together: %1.</source>
        <translation>Diese Einstellungen kann der Drucker nicht kombinieren: %1.</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Geben Sie Seitenzahlen oder Bereiche ein, zum Beispiel 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends with page %1. Enter pages up to it.</source>
        <translation>Das Dokument endet mit Seite %1. Geben Sie Seiten bis dahin ein.</translation>
    </message>
    <message>
        <source>The document ends with page %1. Only %2 will be printed.</source>
        <translation>Das Dokument endet mit Seite %1. Nur %2 wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>There is no preview: drawing the page takes too long.</source>
        <translation>Keine Vorschau: Das Zeichnen der Seite dauert zu lange.</translation>
    </message>
    <message>
        <source>There is no preview of this kind of document.</source>
        <translation>Für diese Art von Dokument gibt es keine Vorschau.</translation>
    </message>
    <message>
        <source>There is no preview: the program pdftoppm of poppler-utils is missing.</source>
        <translation>Keine Vorschau: Das Programm pdftoppm aus poppler-utils fehlt.</translation>
    </message>
    <message>
        <source>There is no preview: the document cannot be read as PDF.</source>
        <translation>Keine Vorschau: Das Dokument lässt sich nicht als PDF lesen.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>%1 sperren</translation>
    </message>
    <message>
        <source>On: the entry is locked, and remembered for this printer.</source>
        <translation>Ein: Der Eintrag ist gesperrt und wird für diesen Drucker gemerkt.</translation>
    </message>
    <message>
        <source>Off: the entry is for this job alone.</source>
        <translation>Aus: Der Eintrag gilt nur für diesen Auftrag.</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Geben Sie die Adresse des Druckers ein, um seine Ordnernamen abzurufen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>„%1“ ist keine Adresse. Geben Sie den Namen oder die IP-Adresse des Druckers ein.</translation>
    </message>
    <message>
        <source>This printer does not file documents: the choice of a folder has no effect.</source>
        <translation>Dieser Drucker legt keine Dokumente ab: Die Wahl eines Ordners hat keine Wirkung.</translation>
    </message>
</context>
<context>
    <name>kesto::PortalPrint</name>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>No presets for this printer</source>
        <translation>Keine Voreinstellungen für diesen Drucker</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Als Voreinstellung speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Keep the pass codes, too</source>
        <translation>Auch die PINs speichern</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>No pages are chosen.</source>
        <translation>Es sind keine Seiten ausgewählt.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Blatt %1 von %2, Vorderseite</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Blatt %1 von %2, Rückseite</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Gesamt: 1 Blatt Papier</translation>
    </message>
    <message>
        <source>Total: %1 sheets of paper</source>
        <translation>Gesamt: %1 Blatt Papier</translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>Dokument auswählen</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Druckserver wird abgefragt&#xa0;…</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>keines ausgewählt</translation>
    </message>
    <message>
        <source>The document is being read…</source>
        <translation>Das Dokument wird gelesen&#xa0;…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>Job %1 sent to %2</source>
        <translation>Auftrag %1 an %2 gesendet</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>There is no document to print yet.</source>
        <translation>Es gibt noch kein Dokument zum Drucken.</translation>
    </message>
    <message>
        <source>Stopping the job…</source>
        <translation>Auftrag wird abgebrochen&#xa0;…</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Drucken auf %1</translation>
    </message>
    <message>
        <source>The application draws the pages after the choice.</source>
        <translation>Die Anwendung zeichnet die Seiten nach der Auswahl.</translation>
    </message>
    <message>
        <source>Job %1 sent to %2; its entries cannot be remembered</source>
        <translation>Auftrag %1 an %2 gesendet; die Einträge können nicht gemerkt werden</translation>
    </message>
    <message>
        <source>The document is long. Print reads the rest.</source>
        <translation>Das Dokument ist lang. Beim Drucken wird der Rest gelesen.</translation>
    </message>
    <message>
        <source>This printer cannot do %1. The job is printed without it.</source>
        <translation>Dieser Drucker kann %1 nicht. Der Auftrag wird ohne dies gedruckt.</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Drucker werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Kein Drucker</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Geben Sie den Namen eines Druckers ein.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Mit der Eingabetaste wählen Sie %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Mehrere Drucker passen. Wählen Sie einen davon.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Es gibt keinen Drucker namens „%1“.</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Nimmt keine Aufträge an: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>There is no printer that takes jobs.</source>
        <translation>Es gibt keinen Drucker, der Aufträge annimmt.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Who sees this job?</source>
        <translation>Wer sieht diesen Auftrag?</translation>
    </message>
    <message>
        <source>Other users of the print server see that there is a job, and no more of it.</source>
        <translation>Andere Benutzer des Druckservers sehen, dass es einen Auftrag gibt, und sonst nichts davon.</translation>
    </message>
    <message>
        <source>Other users of the print server see: %1. These lines in its policy %2 hide it:</source>
        <translation>Andere Benutzer des Druckservers sehen: %1. Diese Zeilen in seiner Richtlinie %2 verbergen es:</translation>
    </message>
</context>
</TS>
