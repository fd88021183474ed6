<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>muss %1 oder %2 sein</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>unerwartetes Argument</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 erfordert einen Wert</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 erlaubt keinen Wert</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 ist nicht zusammen mit %2 möglich</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Hilfe zeigt „%1 --help“.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 erfordert %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>die Standardausgabe lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>die Zeile ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>die Zeile ist leer</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>es gibt kein Terminal für die Abfrage</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>muss zwischen 0.1 und 3600 Sekunden liegen</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>die Zahl der Exemplare muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>die Priorität muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>die Zahl der Sekunden muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>aufgeben, wenn ein Server so lange schweigt (Vorgabe: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>diesen Text oder die Version ausgeben</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Aufruf: %1 [OPTION]... [DATEI]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>wie beim üblichen Druckbefehl</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Die Schnellablage hat keine PIN.</translation>
    </message>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Der Auftrag wird nicht auf dem Drucker zurückgehalten. Schalten Sie zuerst „Zurückhalten“ ein.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Nur ein eigener oder ein geschützter Ordner hat eine PIN.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Dieser Drucker erkennt Sie an der Benutzernummer, nicht am Anmeldenamen.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Dieser Eintrag ist gesperrt und wird für diesen Drucker gemerkt. Öffnen Sie zum Ändern das Schloss.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Nur ein eigener Ordner braucht einen Namen. Wählen Sie zuerst „Eigener Ordner“.</translation>
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
        <source>Say who you are</source>
        <translation>Angeben, wer Sie sind</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Hilfe zum Drucken</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Einen Drucker auswählen</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Wählen Sie einen Drucker aus der Liste. Ist die Liste lang, geben Sie einen Teil des Druckernamens ein und drücken Sie die Eingabetaste. Die Zeile unter der Liste zeigt, ob der Drucker bereit ist.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Einige Seiten drucken</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Wählen Sie „Ausgewählte Seiten“ und geben Sie Seitenzahlen oder Bereiche ein, zum Beispiel 1-3, 5. Ein Bereich darf offen sein: 5- druckt Seite 5 und alle folgenden Seiten.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Beidseitig drucken</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Wählen Sie „Lange Kante“ für Seiten, die wie in einem Buch umgeblättert werden, oder „Kurze Kante“ für Seiten, die wie bei einem Notizblock umgeschlagen werden.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Sehen, was gedruckt wird</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Einen Auftrag mit einer PIN auf dem Drucker zurückhalten</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Einen Eintrag wiederverwenden</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Schließen Sie das Schloss neben einem Eintrag. Der Eintrag wird dann für diesen Drucker gemerkt. Öffnen Sie zum Ändern das Schloss.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Einen Ordner auf dem Drucker wählen</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Einstellungen als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Klicken Sie auf „Voreinstellungen“ und wählen Sie „Als Voreinstellung speichern“. Um die Einstellungen wieder zu verwenden, wählen Sie dort die Voreinstellung. PINs werden nur gespeichert, wenn Sie sie einschließen.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Sehen, was andere von einem Auftrag sehen</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Einen Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Die Tastatur verwenden</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt und ein unterstrichener Buchstabe führen zu einem Bedienelement, Alt, Umschalt und der Buchstabe zum Schloss daneben. Die Eingabetaste druckt, Esc bricht ab, und F1 öffnet diese Hilfe. Strg+R zeigt die Ziffern einer PIN, solange der Cursor darin steht.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Schalten Sie unter „Auftragssteuerung“ die Option „Zurückhalten“ ein und geben Sie eine PIN mit bis zu 8 Ziffern ein. Der Auftrag wartet im Drucker, bis jemand dort die PIN eingibt. „Nach dem Druck halten“ behält den Auftrag nach dem Drucken. „Probedruck“ druckt ein Exemplar und hält die übrigen zurück.</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Manche Drucker verlangen eine Angabe, wer druckt. Geben Sie unter „Benutzer und Konto“ Ihre Benutzernummer oder Ihren Anmeldenamen und Ihr Passwort ein.</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Die Vorschau zeigt die Blätter, wie sie aus dem Drucker kommen. Mit den Pfeilen darunter oder mit Bild auf und Bild ab blättern Sie um, mit Strg und dem Mausrad vergrößern Sie die Seiten.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Die Seiten als PDF-Datei speichern</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Mehrere Seiten auf ein Blatt drucken</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Wählen Sie unter „Layout“ die Zahl der Seiten pro Blatt, ihre Reihenfolge und einen Rahmen. „Broschüre“ ordnet die Seiten auf einem Drucker, der Broschüren herstellt, so an, dass die gefalteten Blätter wie ein Buch gelesen werden können.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Die Seiten an das Papier anpassen</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Unter „Layout“ legt „Skalierung“ fest, was mit Seiten geschieht, die größer oder kleiner als das Papier sind. „An Papier anpassen“ zeigt sie ganz, „Papier füllen“ lässt keinen Rand und kann Ränder abschneiden, und „Originalgröße“ lässt sie, wie sie sind. Der Prozentsatz bei „Benutzerdefiniert“ gilt für Bilder.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Den Zeitpunkt des Druckens wählen</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Unter „Auftrag“ hält „Drucken“ den Auftrag auf dem Druckserver bis zu einer Uhrzeit zurück oder, mit „Zurückgehalten“, bis Sie ihn in der Liste der Druckaufträge des Systems freigeben. Von den wartenden Aufträgen wird der mit der höchsten Priorität zuerst gedruckt.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Deckblätter und Abrechnungsinformation hinzufügen</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Wählen Sie unter „Auftrag“ ein Deckblatt, das vor oder nach dem Dokument gedruckt wird. Die Abrechnungsinformation, zum Beispiel eine Projektnummer, wird mit dem Auftrag in den Aufzeichnungen des Druckservers gespeichert.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Eine andere Option des Druckers finden</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>„Weitere Optionen“ enthält alle anderen Optionen des Druckers. Geben Sie im Filter einen Teil eines Namens ein, um nur die Optionen zu sehen, die ihn enthalten.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Wählen Sie in der Druckerliste „Als PDF speichern“ und klicken Sie auf „Speichern“. Die Datei enthält die ausgewählten Seiten. Nur PDF-Dokumente können gespeichert werden, und nur ihre Seiten und deren Reihenfolge können gewählt werden.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Ein durch ein Passwort geschütztes Dokument drucken</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Wenn Sie auf „Drucken“ klicken, fragt der Dialog nach dem Passwort des Dokuments. Er druckt eine Kopie ohne Passwort, die nur Sie lesen können und die danach gelöscht wird.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Schalten Sie unter „Auftragssteuerung“ die Option „Zurückhalten“ ein. Wählen Sie unter „Dokumentenablage“ die Option „Eigener Ordner“ und geben Sie den Namen eines Ordners ein. „Ordnernamen abrufen“ fragt den Drucker nach seinen Ordnern, sodass Sie einen aus der Liste wählen können.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Klicken Sie in der Übersicht auf „Wer kann diesen Auftrag sehen?“. Die Antwort sagt, welche Einzelheiten eines Auftrags der Druckserver anderen Benutzern zeigt und wie Sie sie verbergen.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Klicken Sie auf „Abbrechen“, während der Auftrag gesendet wird. Solange der Dialog den Auftrag verfolgt, klicken Sie auf „Auftrag abbrechen“; „Erneut drucken“ sendet einen fehlgeschlagenen Auftrag noch einmal. Ist der Dialog geschlossen, verwenden Sie die Auftragsliste des Systems.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
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
        <source>Reverse</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Nur drucken</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Abrechnungsinformation</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Deckblätter</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Gerade Seiten</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Umgekehrtes Querformat</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Umgekehrtes Hochformat</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Von links nach rechts, von oben nach unten</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Von links nach rechts, von unten nach oben</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Von rechts nach links, von oben nach unten</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Von rechts nach links, von unten nach oben</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Von oben nach unten, von links nach rechts</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Von oben nach unten, von rechts nach links</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Von unten nach oben, von links nach rechts</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Von unten nach oben, von rechts nach links</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Einfache Linie</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Dicke einfache Linie</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Doppelte Linie</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Dicke doppelte Linie</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>An Papier anpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Papier füllen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Zurückgehalten</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Dringend</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nicht eingestuft</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Eingestuft</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Um %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Beidseitiger Druck ist auf %1 nicht möglich.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 „%2“ ist mit %3 „%4“ nicht möglich.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Beidseitig ausschalten</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 auf %2 setzen</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Seiten %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 Exemplar</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Geben Sie Seitenzahlen oder Bereiche ein, zum Beispiel 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Das Dokument endet auf Seite %1. Geben Sie Seitenzahlen bis %1 ein.</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n Exemplar</numerusform>
            <numerusform>%n Exemplare</numerusform>
        </translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Weiterverarbeitung</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: wird von diesem Drucker nicht angeboten</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>dieser Drucker fragt nicht, wer druckt</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 darf %2 haben</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>höchstens %n Ziffer</numerusform>
            <numerusform>höchstens %n Ziffern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>höchstens %n Zeichen</numerusform>
            <numerusform>höchstens %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 ist nicht zusammen mit --folder quick möglich</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 erfordert --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 erfordert --folder NAME für einen Ordner mit PIN oder einen eigenen Ordner</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 ist nicht zusammen mit einer Benutzernummer möglich</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>PIN des zurückgehaltenen Auftrags</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main oder der Name eines Ordners</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>PIN des Ordners</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>PIN des Ordners</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>Passwort zum Anmeldenamen</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>Benutzernummer statt einer Anmeldung</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>Benutzername am Drucker</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>Auftragsname am Drucker</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>die Benutzernummer fehlt; geben Sie sie mit %1 an</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>der Anmeldename fehlt; geben Sie ihn mit %1 an</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p ist -q, und -w ist -m; die anderen haben keine Wirkung</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>stehen für eine Warteschlange, wo kein Auftrag gesendet wird</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>die Einstellungen des Auftrags ausgeben und nichts senden; nur behalten, was --remember, --forget oder --save-preset verlangen</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>die Übersicht des Bedienfelds statt der Einstellungen ausgeben</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>die Warteschlangen auflisten, oder die mit Auftragssteuerung, und die Drucker im Netzwerk</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>die Ordner des Druckers abrufen, merken und auflisten</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>zeigen, was andere Benutzer des Servers von den Optionen eines Auftrags sehen, und wie man es verbirgt</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>ausgeben, was aus dem Auftrag wird, bis er gedruckt ist oder am Drucker zurückgehalten wird; endet sonst mit 1, oder mit 4, wenn er nach SECONDS noch wartet</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON ausgeben</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>das Passwort, das der Server oder Drucker verlangt</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>den Auftrag zurückhalten: ungedruckt, nach dem Druck oder nach einem Probedruck</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>den Auftrag nicht zurückhalten</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X (pin, folder-pin, password) der ersten Zeile einer Datei oder der Standardeingabe („-“) entnehmen oder am Terminal abfragen: eine Befehlszeile können andere Benutzer sehen</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>die Einträge X für die nächsten Aufträge dieser Warteschlange merken</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>sie nicht länger merken</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>mit einer Voreinstellung dieser Warteschlange beginnen</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>die Einstellungen als Voreinstellung speichern, die PINs nur zusammen mit --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>nur dies tun, für -d oder --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Druckt Dateien oder die Standardeingabe mit der Auftragssteuerung eines Druckers.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Endet mit 0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf, 3 vom Bedienfeld abgelehnt, 4 wartet noch.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>es wird nicht länger gewartet: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>im Netzwerk</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 Auftrag</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n Auftrag</numerusform>
            <numerusform>%n Aufträge</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>dieser Drucker hat keine Ordnerliste</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>die Adresse des Druckers ist unbekannt; geben Sie sie mit --address an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>„%1“ ist keine Adresse</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: Andere Benutzer sehen keine Optionen eines Auftrags.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: Andere Benutzer sehen von einem Auftrag: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Ein Administrator verbirgt sie in cupsd.conf, in der Richtlinie des Druckers:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Ein Administrator verbirgt sie in cupsd.conf, in &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder hat keine Wirkung: dieser Drucker legt keine Dokumente ab</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>die Einträge lassen sich nicht merken: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>der Auftrag wurde gesendet, aber: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>ein unveränderter Auftrag (raw) umgeht den Treiber und mit ihm die Auftragssteuerung</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>der Drucker „%1“ bietet keine Auftragssteuerung</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m wird ignoriert: es gehört zu einem neuen Auftrag</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i ändert einen schon gesendeten Auftrag; lassen Sie die Dateien weg</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i ändert einen Auftrag dort, wo er ist; lassen Sie -d und --ppd weg</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i kann die Auftragssteuerung eines schon gesendeten Auftrags nicht ändern</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait erfordert einen Auftrag, der gedruckt wird</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>eine Liste ist nicht zusammen mit den Optionen eines Auftrags möglich</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>kein Drucker angegeben; wählen Sie einen mit -d oder --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd erfordert --dry-run oder --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>nur ein Eintrag kann aus der Standardeingabe gelesen werden</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>muss eine Zeit wie 18:30 (UTC), hold, immediate, resume, restart oder ein Schlüsselwort des Druckservers wie evening sein</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>muss ein Auftrag wie 12 oder QUEUE-12 sein</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 wird ignoriert: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS kennt keine Formulare</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS kennt keine Modi; verwenden Sie -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>der Zeichensatz ist immer UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>der Druckserver erkennt den Typ; verwenden Sie -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember und --forget dürfen nicht beide %1 nennen</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>nur eines von -i, --dry-run, --list, --folders, --check, --list-presets und --delete-preset ist möglich</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Falsches Passwort. Passwort von %1 für %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Passwort von %1 für %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; geben Sie es mit --server-password-file an</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>Dokument %1 wird gesendet: %2 MiB, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>Dokument %1 wird gesendet: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>einen gesendeten Auftrag ändern: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>das Passwort aus der Datei wird nicht an „%1“ gesendet, einen Drucker im Netzwerk, der nicht auf dem Druckserver eingerichtet ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>„%1“ ist nicht auf dem Druckserver eingerichtet; der Drucker im Netzwerk wird verwendet: %2</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>PrintTexts</name>
    <message>
        <source>no printer is available</source>
        <translation>kein Drucker ist verfügbar</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>diesen Abschnitt öffnen</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>ein Bild des Dialogs speichern und beenden</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>ausgeben, wie lange der Start gedauert hat, und beenden</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Zeigt den Druckdialog für Dateien oder die Standardeingabe.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Endet mit 0 gesendet, 1 nicht gesendet, 2 falscher Aufruf.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Abdeckung offen</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Treiber fehlt</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Entwickler leer</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Wenig Entwickler</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Klappe offen</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Zu heiß</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Wird aufgewärmt</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Papierfach fehlt</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Tinte oder Toner leer</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Wenig Tinte oder Toner</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Resttonerbehälter fast voll</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Resttonerbehälter voll</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Kein Papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Wenig Papier</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papier nachlegen</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Wird angehalten</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Trommel verbraucht</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Trommel fast verbraucht</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Eingriff nötig</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Ausgabefach fast voll</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Ausgabefach voll</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Druckerspeicher voll</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Teilweise angehalten</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Wird gestoppt</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Antwortet nicht</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Toner leer</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Wenig Toner</translation>
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
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Deckblatt vorher</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Deckblatt nachher</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Passwort erforderlich</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Der Drucker %1 verlangt Ihr Passwort.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Der Druckserver %1 verlangt Ihr Passwort.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Benutzername oder Passwort falsch. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domäne:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 ist leer. Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Das Dokument</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 ist ein Ordner. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 ist größer als %2. Mehr kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 kann nicht zum Drucken kopiert werden: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Das Dokument hat keine Seiten. Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Das Dokument ist beschädigt und kann nicht angezeigt werden. Möglicherweise kann der Drucker es nicht drucken.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Das Dokument ist beschädigt. Möglicherweise fehlt etwas.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Das Dokument ist durch ein Passwort geschützt. Geben Sie das Passwort ein, um es zu drucken.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Keine Vorschau verfügbar. Installieren Sie cups, um eine zu sehen.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Keine Vorschau verfügbar, weil das Umwandeln des Dokuments zu lange dauert.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Für diese Art von Dokument ist keine Vorschau verfügbar.</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Dokument auswählen</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Das Öffnen des Dokuments dauert zu lange.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Für eine Kopie des Dokuments ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Das Dokument ist beschädigt und kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Falsches Passwort. Sie haben noch einen Versuch.</translation>
    </message>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Das Dokument kann nicht geöffnet werden. Installieren Sie qpdf, um es zu öffnen.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Falsches Passwort. Sie haben noch %n Versuch.</numerusform>
            <numerusform>Falsches Passwort. Sie haben noch %n Versuche.</numerusform>
        </translation>
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
        <translation>der Auftrag wurde angehalten</translation>
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
        <source>the print server&apos;s answer does not contain the job</source>
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
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Auftragssteuerung für das Modell %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>es wurde noch nichts gedruckt</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>der Druckserver kennt den Auftrag nicht mehr</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>Auftrag %1 lässt sich nicht abbrechen: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>Benutzername oder Passwort für den Drucker „%1“ ist falsch</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>Benutzername oder Passwort für den Druckserver %1 ist falsch</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>der Drucker „%1“ verlangt ein Passwort</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>der Drucker „%1“ kann nicht eingerichtet werden: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>die Adresse ist unbekannt</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>die Verbindung wurde beendet</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>die Antwort ist nicht lesbar</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>der Drucker ist nicht erreichbar</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>keine Ordnerliste von %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: ein Ordner, keine PPD-Datei</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>es ist kein Standarddrucker festgelegt; wählen Sie einen mit -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>er gehört zu einem anderen Drucker</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>der Auftrag %1 lässt sich nicht erneut starten: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>der Auftrag %1 lässt sich nicht ändern: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Um</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Geben Sie eine Uhrzeit ein, zum Beispiel 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Wartet auf den Drucker</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Wartet auf 1 anderen Auftrag</translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Zurückgehalten: Der Drucker verlangt ein Passwort</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Bis zum Druckzeitpunkt zurückgehalten</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Bis zur Freigabe zurückgehalten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Druckt Seite %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Druckt Seite %1 von %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Angehalten: Der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Wartet an %1, bis Sie dort Ihre PIN eingeben</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Wartet an %1, bis Sie ihn dort freigeben</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Gedruckt und an %1 zum erneuten Drucken aufbewahrt</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Ein Exemplar ist gedruckt, die anderen warten an %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Abgebrochen von %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Am Drucker abgebrochen</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Vom Druckserver angehalten</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nicht gedruckt</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Es ist nicht bekannt, ob der Auftrag gedruckt ist</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Wartet auf %n anderen Auftrag</numerusform>
            <numerusform>Wartet auf %n andere Aufträge</numerusform>
        </translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Verbindung zum Drucker wird hergestellt</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>In einer PDF-Datei bleiben die Seiten, wie sie sind. Nur die Seiten und ihre Reihenfolge können gewählt werden.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Keine Vorschau verfügbar, weil das Zeichnen der Seite zu lange dauert.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Für diese Art von Dokument ist keine Vorschau verfügbar.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Keine Vorschau verfügbar. Installieren Sie poppler-utils, um eine zu sehen.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Keine Vorschau verfügbar, weil dieses PDF-Dokument nicht gelesen werden kann.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Ausgewählte Seiten</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Das Dokument endet auf Seite %1. Gedruckt wird: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>%1 sperren</translation>
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
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Dieser Drucker legt keine Dokumente ab. Die Wahl eines Ordners hat deshalb keine Wirkung.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Gesperrt: Dieser Eintrag wird für diesen Drucker gemerkt.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Entsperrt: Dieser Eintrag gilt nur für diesen Auftrag.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Geben Sie eine Breite zwischen %1 und %2 %3 ein.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Geben Sie eine Höhe zwischen %1 und %2 %3 ein.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Geschütztes Dokument</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 ist durch ein Passwort geschützt. Geben Sie das Passwort ein, um das Dokument zu drucken.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Das Dokument</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>Saving takes too long.</source>
        <translation>Das Speichern dauert zu lange.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Es ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Es sind keine Seiten ausgewählt.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Installieren Sie qpdf, um PDF-Dateien zu speichern.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 kann nicht gespeichert werden. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Geben Sie einen Prozentsatz zwischen %1 und %2 ein.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
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
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>PINs mit speichern</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Keine Voreinstellungen</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Voreinstellungen: %1</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Voreinstellung „%1“ ersetzen?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
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
        <source>No pages are selected.</source>
        <translation>Es sind keine Seiten ausgewählt.</translation>
    </message>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Nur PDF-Dokumente können als PDF gespeichert werden.</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 Seite</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n Seite</numerusform>
            <numerusform>%1, %n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Gesamt: %n Blatt Papier</numerusform>
            <numerusform>Gesamt: %n Blatt Papier</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
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
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Drucken auf %1</translation>
    </message>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Verbindung zum Drucker wird hergestellt …</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Dieser Drucker unterstützt %1 nicht. Der Auftrag wird ohne diese Angabe gedruckt.</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Kein Dokument ausgewählt</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Dokument wird gelesen …</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Das Dokument ist lang. Der Rest wird beim Drucken gelesen.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Keine Vorschau verfügbar. Die Anwendung erstellt die Seiten, nachdem Sie auf „Drucken“ geklickt haben.</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Dokument auswählen</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Auftrag %1 wurde an %2 gesendet.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Der Auftrag wurde nicht gedruckt. %1</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Wählen Sie ein Dokument zum Drucken.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Auftrag wird abgebrochen …</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Nicht zurückgehalten</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Speichert die ausgewählten Seiten in einer Datei.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Dieser Drucker unterstützt %1 aus der Voreinstellung nicht. Das Übrige ist eingestellt.</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Auftrag %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Seine Einträge konnten nicht gemerkt werden.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Erneut drucken</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 Ordner von %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n Ordner von %1</numerusform>
            <numerusform>%n Ordner von %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Der Druckserver hat diesen Drucker nicht mehr. Vielleicht wurde er entfernt.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Standort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Meldung:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Füllstand unbekannt</translation>
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
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Druckerdetails</translation>
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
    <message>
        <source>1 job waiting</source>
        <translation>1 Auftrag wartet</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n Auftrag wartet</numerusform>
            <numerusform>%n Aufträge warten</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>Im Netzwerk</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Kein Drucker nimmt Aufträge an. Prüfen Sie die Drucker in den Systemeinstellungen und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Wer kann diesen Auftrag sehen?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Andere Benutzer können sehen, dass es diesen Auftrag gibt, aber keine Einzelheiten.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Andere Benutzer können sehen: %1. Um dies zu verbergen, fügen Sie der Richtlinie „%2“ des Druckservers diese Zeilen hinzu:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
</context>
</TS>
