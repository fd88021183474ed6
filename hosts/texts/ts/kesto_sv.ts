<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>måste vara %1 eller %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>oväntat argument</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>okänt alternativ %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 kräver ett värde</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 tar inget värde</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 kan inte användas med %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Prova ”%1 --help”.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 kräver %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>kan inte skriva till standard ut</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>raden är för lång</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>raden är inte i UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>raden är tom</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>det finns ingen terminal att fråga vid</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>avbrutet</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>måste vara mellan 0.1 och 3600 sekunder</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>antalet kopior måste vara mellan %1 och %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>prioriteten måste vara mellan %1 och %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>antalet sekunder måste vara mellan %1 och %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 har angetts två gånger</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>ge upp om en server är tyst så länge (standard: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>visa den här texten, eller versionen</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Användning: %1 [ALTERNATIV]... [FIL]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>som i det vanliga utskriftskommandot</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Jobbet hålls inte kvar på skrivaren. Slå först på ”Kvarhållning”.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>En snabbfil har ingen PIN-kod.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Bara en egen mapp behöver ett namn. Välj först ”Egen mapp”.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Bara en egen mapp eller en skyddad mapp har en PIN-kod.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Den här skrivaren känner igen dig på användarnumret, inte på inloggningsnamnet.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Den här uppgiften är låst och sparas för den här skrivaren. Öppna hänglåset för att ändra den.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Dölj siffrorna</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Visa siffrorna</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Välj en skrivare</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Välj en skrivare i listan. Om listan är lång kan du skriva en del av skrivarens namn och trycka på Retur. Raden under listan visar om skrivaren är redo.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Skriv ut en del av sidorna</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Välj ”Valda sidor” och ange sidnummer eller intervall, till exempel 1-3, 5. Ett intervall kan vara öppet: 5- skriver ut sidan 5 och alla sidor efter den.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Skriv ut på båda sidor</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Välj ”Långsida” för sidor som vänds som i en bok eller ”Kortsida” för sidor som vänds som i ett anteckningsblock.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Se vad som kommer att skrivas ut</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Förhandsvisningen visar pappersarken som de kommer ut ur skrivaren. Bläddra med pilarna under den eller med Page Up och Page Down och förstora sidorna med Ctrl och mushjulet.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Spara sidorna som en PDF-fil</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Håll kvar ett jobb på skrivaren med en PIN-kod</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Slå på ”Kvarhållning” under ”Jobbhantering” och ange en PIN-kod med högst 8 siffror. Jobbet väntar i skrivaren tills någon anger PIN-koden där. ”Håll kvar efter utskrift” behåller jobbet efter att det har skrivits ut. ”Provutskrift” skriver ut en kopia och håller kvar de övriga.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Ange vem du är</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>En del skrivare frågar vem som skriver ut. Ange ditt användarnummer eller ditt inloggningsnamn och lösenord under ”Användare och konto”.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Använd en uppgift igen</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Stäng hänglåset bredvid en uppgift. Uppgiften sparas då för den här skrivaren. Öppna hänglåset för att ändra den.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Välj en mapp på skrivaren</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Spara dina inställningar som en förinställning</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Tryck på ”Förinställningar” och välj ”Spara som förinställning”. Välj förinställningen där när du vill använda inställningarna igen. PIN-koderna sparas bara om du tar med dem.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Se vad andra kan se av ett jobb</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Avbryt ett jobb</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Använd tangentbordet</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt och en understruken bokstav går till ett reglage; Alt, Skift och bokstaven går till hänglåset bredvid. Retur skriver ut, Escape avbryter och F1 öppnar den här hjälpen. Ctrl+R visar siffrorna i en PIN-kod medan markören står i den.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Hjälp med utskrift</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Skriv ut flera sidor på ett ark</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Välj antalet sidor per ark, deras ordning och en kantlinje under ”Layout”. På en skrivare som gör häften ordnar ”Häfte” sidorna så att de vikta arken kan läsas som en bok.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Anpassa sidorna till papperet</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Under ”Layout” avgör ”Skalning” vad som händer med sidor som är större eller mindre än papperet. ”Anpassa till papperet” visar dem hela, ”Fyll papperet” lämnar ingen marginal och kan skära av kanter och ”Verklig storlek” lämnar dem som de är. Procenttalet för ”Anpassad” gäller bilder.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Välj när utskriften ska ske</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Under ”Jobb” håller ”Utskrift” kvar jobbet på utskriftsservern till en viss tid eller, med ”Väntande”, tills du släpper det i systemets lista över utskriftsjobb. Av de jobb som väntar skrivs det med högst prioritet ut först.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Lägg till försättsblad och faktureringsinformation</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Välj ett försättsblad som skrivs ut före eller efter dokumentet under ”Jobb”. Faktureringsinformation, till exempel ett projektnummer, sparas med jobbet i utskriftsserverns loggar.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Hitta ett annat alternativ för skrivaren</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>”Fler alternativ” har alla andra alternativ för skrivaren. Skriv en del av ett namn i filtret för att bara se de alternativ som innehåller den.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Välj ”Spara som PDF” i listan över skrivare och tryck på ”Spara”. Filen innehåller de sidor som du har valt. Bara PDF-dokument kan sparas, och bara deras sidor och sidornas ordning kan väljas.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Skriv ut ett lösenordsskyddat dokument</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>När du trycker på ”Skriv ut” frågar dialogrutan efter dokumentets lösenord. Den skriver ut en kopia utan lösenord, som bara du kan läsa och som tas bort efteråt.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Slå på ”Kvarhållning” under ”Jobbhantering”. Välj ”Egen mapp” under ”Dokumentarkivering” och ange namnet på en mapp. ”Hämta mappnamn” frågar skrivaren efter dess mappar så att du kan välja en i listan.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Tryck på ”Vem kan se det här jobbet?” i sammanfattningen. Svaret visar vilka detaljer om ett jobb som utskriftsservern visar för andra användare och hur du döljer dem.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Tryck på ”Avbryt” medan jobbet skickas. Så länge dialogen följer jobbet trycker du på ”Avbryt jobbet”; ”Skriv ut igen” skickar ett misslyckat jobb en gång till. När dialogen har stängts använder du systemets lista över utskriftsjobb.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Kopior</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortera</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omvänd</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sidor</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Skriv bara ut</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Pappersstorlek</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Dubbelsidig</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papperskälla</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papperstyp</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Utmatningsfack</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Häftning</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Hålslag</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Vikning</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientering</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Sidor per ark</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Häfte</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Sidordning</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Kantlinje</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalning</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Utskrift</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioritet</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Faktureringsinformation</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Försättsblad</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Långsida</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kortsida</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alla sidor</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Udda sidor</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Jämna sidor</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Stående</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggande</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Omvänt liggande</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Omvänt stående</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Vänster till höger, uppifrån och ned</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Vänster till höger, nedifrån och upp</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Höger till vänster, uppifrån och ned</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Höger till vänster, nedifrån och upp</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Uppifrån och ned, vänster till höger</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Uppifrån och ned, höger till vänster</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Nedifrån och upp, vänster till höger</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Nedifrån och upp, höger till vänster</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Enkel linje</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Tjock enkel linje</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Dubbel linje</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Tjock dubbel linje</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Anpassa till papperet</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Verklig storlek</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Fyll papperet</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Väntande</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Låg</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hög</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Brådskande</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Ej sekretess</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Sekretess</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Konfidentiell</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Hemlig</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Kvalificerat hemlig</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Anpassad %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Anpassad %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Klockan %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Dubbelsidig utskrift är inte möjlig på %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 ”%2” är inte möjligt med %3 ”%4”.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Stäng av dubbelsidig</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Sätt %1 till %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Sidorna %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 kopia</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n kopia</numerusform>
            <numerusform>%n kopior</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Ange sidnummer eller intervall, till exempel 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Dokumentet slutar på sidan %1. Ange sidnummer upp till %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuell sida</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Markering</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Efterbehandling</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: den här skrivaren erbjuder inte det</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>den här skrivaren frågar inte vem som skriver ut</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 får ha %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>högst %n siffra</numerusform>
            <numerusform>högst %n siffror</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>högst %n tecken</numerusform>
            <numerusform>högst %n tecken</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 kan inte användas med --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 kräver --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 kräver --folder NAME för en mapp med PIN-kod eller en egen mapp</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 kan inte användas med ett användarnummer</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN-kod</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>PIN-kod för jobbet som hålls kvar</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main eller namnet på en mapp</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Mappens PIN-kod</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>mappens PIN-kod</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>inloggningsnamn</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>lösenord för inloggningsnamnet</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>användarnummer i stället för inloggning</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>kontonummer</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>användarnamn på skrivaren</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>jobbnamn på skrivaren</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>användarnumret saknas; ange det med %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>inloggningsnamnet saknas; ange det med %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p är -q och -w är -m; de andra har ingen verkan</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>står för en kö när inget jobb skickas</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>visa jobbets inställningar och skicka inget; spara bara det som --remember, --forget eller --save-preset begär</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>visa panelens sammanfattning i stället för inställningarna</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>lista köerna, eller de som erbjuder jobbhantering, och skrivarna i nätverket</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>hämta, spara och lista skrivarens mappar</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>visa vad andra användare av servern ser av ett jobbs alternativ, och hur det döljs</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>visa vad som händer med jobbet tills det är utskrivet eller hålls kvar på skrivaren; avslutar annars med 1, eller med 4 om det ännu väntar efter SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>visa JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>lösenordet som servern eller skrivaren begär</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>håll kvar jobbet: utan utskrift, efter utskriften eller efter ett prov</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>håll inte kvar jobbet</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>ta X (pin, folder-pin, password) från första raden i en fil eller standard in, ”-”, eller fråga vid terminalen: andra användare kan se en kommandorad</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>spara uppgifterna X för köns nästa jobb</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>spara dem inte längre</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>utgå från en förinställning för kön</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>spara inställningarna som en förinställning; PIN-koderna bara tillsammans med --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>gör bara detta, för -d eller --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Skriver ut filer, eller standard in, med en skrivares jobbhantering.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Avslutar med 0 klart, 1 misslyckades, 2 felaktig användning, 3 nekat av panelen, 4 väntar.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>väntar inte längre: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>i nätverket</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>redo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>stoppad</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>skriver ut</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>tar inte emot jobb</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 jobb</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n jobb</numerusform>
            <numerusform>%n jobb</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>den här skrivaren har ingen mapplista</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>skrivarens adress är okänd; ange den med --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>”%1” är inte en adress</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: andra användare ser inga alternativ för ett jobb.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: andra användare ser av ett jobb: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>En administratör döljer dem i cupsd.conf, i skrivarens policy:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>En administratör döljer dem i cupsd.conf, i &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>låst</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder har ingen verkan: den här skrivaren arkiverar inga dokument</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>kan inte spara uppgifterna: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>jobbet skickades, men: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>ett rått jobb (raw) går förbi drivrutinen, och därmed jobbhanteringen</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>skrivaren ”%1” erbjuder inte jobbhantering</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m ignoreras: det hör till ett nytt jobb</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>varning: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i ändrar ett jobb som redan har skickats; utelämna filerna</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i ändrar ett jobb där det är; utelämna -d och --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i kan inte ändra jobbhanteringen för ett jobb som redan har skickats</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait kräver ett jobb att skriva ut</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>en lista kan inte kombineras med ett jobbs alternativ</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>ingen skrivare är angiven; ange den med -d eller --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd kräver --dry-run eller --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>bara en uppgift kan läsas från standard in</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>får inte vara tomt</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>måste vara en tid som 18:30 (UTC), hold, immediate, resume, restart eller ett av utskriftsserverns nyckelord som evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>måste vara ett jobb som 12 eller QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 ignoreras: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS har inga formulär</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS har inga lägen; använd -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>teckenkodningen är alltid UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>utskriftsservern känner igen typen; använd -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember och --forget kan inte båda ange %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>använd bara ett av -i, --dry-run, --list, --folders, --check, --list-presets och --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Fel lösenord. Lösenord för %1 till %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Lösenord för %1 till %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; ange det med --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>skickar dokument %1: %2 MiB, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>skickar dokument %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>ändra ett skickat jobb: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>lösenordet i filen skickas inte till ”%1”, som är en skrivare i nätverket och inte är inställd på utskriftsservern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>”%1” är inte inställd på utskriftsservern; skrivaren i nätverket används: %2</translation>
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
        <translation>ingen skrivare är tillgänglig</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kan inte skrivas</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>öppna det här avsnittet</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>spara en bild av dialogen och avsluta</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>visa hur lång tid starten tog och avsluta</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Visar utskriftsdialogen för filer, eller för standard in.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Avslutar med 0 skickat, 1 inte skickat, 2 felaktig användning.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Ansluter</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Luckan öppen</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Drivrutin saknas</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Slut på framkallare</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Lite framkallare kvar</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Lucka öppen</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>För varm</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Värms upp</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Håller kvar nya jobb</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Pappersfack saknas</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Slut på bläck eller toner</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Lite bläck eller toner kvar</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Resttonerbehållare nästan full</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Resttonerbehållare full</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Slut på papper</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papperstrassel</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Lite papper kvar</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papper behövs</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Pausas</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Frånkopplad</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Trumman utsliten</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Trumman nästan utsliten</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Kräver tillsyn</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Utmatningsfack nästan fullt</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Utmatningsfack fullt</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Utmatningsfack saknas</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Avstängd</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Skrivarminnet fullt</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Delvis stoppad</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Stoppas</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Svarar inte</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Slut på toner</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Lite toner kvar</translation>
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
        <translation>Halv US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Vykort (Japan)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Dubbelt vykort (Japan)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Kuvert Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Kuvert %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Kuvert nr %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Huvudfack</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Alternativt fack</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kassett</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kassett %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fack %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manuell matning</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Universalfack</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Kuvertmatare</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Manuell kuvertmatning</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Storkapacitetsfack</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Övre fack</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mellanfack</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Nedre fack</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Vänster fack</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Höger fack</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Sidofack</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bakre fack</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Mittfack</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofack</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Skivfack</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Vykortsfack</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Pappersrulle</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Alternativ pappersrulle</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rulle %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Vanligt papper</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Brevhuvud</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Förtryckt papper</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Hålslaget papper</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Återvunnet papper</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bankpostpapper</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Tjockt papper</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Tunt papper</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Bestruket papper</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Bläckstrålepapper</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Finpapper</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Färgat papper</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Bomullspapper</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Kartong</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>OH-film</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Kuvert</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketter</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapper</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Fotopapper, glättat</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Fotopapper, högblankt</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Fotopapper, halvblankt</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Fotopapper, satin</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Fotopapper, matt</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Löpande papper</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Registerpapper</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Skiva</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Övre utmatningsfack</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Mellersta utmatningsfack</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Nedre utmatningsfack</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Vänster utmatningsfack</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Höger utmatningsfack</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Utmatningsfack i mitten</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Utmatningsfack på sidan</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Bakre utmatningsfack</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Trycksidan upp</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Trycksidan ned</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Staplare %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Staplare</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Postfack %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Mitt postfack</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Svartvitt</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Bara svart, inga gråtoner</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Utkast</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hög</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Häfta</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Två klamrar</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tre klamrar</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Kanthäftning</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Sadelhäftning</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Häfte</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Slå hål</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Två hål</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Tre hål</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Fyra hål</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Många hål</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Bind in</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Renskär</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Lägg till omslag</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Förskjut jobben</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminera</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Vik</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Vik på mitten</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Brevvikning</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-vikning</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Halv Z-vikning</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Dragspelsvikning</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Fönstervikning</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Dubbel fönstervikning</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Parallellvikning</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>uppe till vänster</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>nere till vänster</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>uppe till höger</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>nere till höger</translation>
    </message>
    <message>
        <source>left</source>
        <translation>till vänster</translation>
    </message>
    <message>
        <source>top</source>
        <translation>upptill</translation>
    </message>
    <message>
        <source>right</source>
        <translation>till höger</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>nedtill</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, kantlöst</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Försättsblad före</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Försättsblad efter</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Lösenord krävs</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Skrivaren %1 begär ditt lösenord.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Utskriftsservern %1 begär ditt lösenord.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Fel användarnamn eller lösenord. Försök igen.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domän:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Jobbet skickas</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan inte läsas: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 är en mapp. Välj en fil.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 är större än %2, det mesta som kan skrivas ut.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 kan inte kopieras för utskrift: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 är tom. Det finns inget att skriva ut.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokumentet</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 och %n till</numerusform>
            <numerusform>%1 och %n till</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Dokumentet har inga sidor. Det finns inget att skriva ut.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Ingen förhandsvisning är tillgänglig. Installera cups för att se en.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Ingen förhandsvisning är tillgänglig eftersom konverteringen av dokumentet tar för lång tid.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Ingen förhandsvisning är tillgänglig för den här typen av dokument.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Dokumentet är skyddat med ett lösenord. Ange lösenordet för att skriva ut det.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Dokumentet är skadat och kan inte visas. Skrivaren kanske inte kan skriva ut det.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Dokumentet är skadat. En del av det kan saknas.</translation>
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
        <translation>Välj…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Välj ett dokument</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Dokumentet kan inte öppnas. Installera qpdf för att öppna det.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Det tar för lång tid att öppna dokumentet.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Det finns inte plats för en kopia av dokumentet.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Dokumentet är skadat och kan inte öppnas.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Fel lösenord. Du kan försöka en gång till.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Fel lösenord. Du kan försöka %n gång till.</numerusform>
            <numerusform>Fel lösenord. Du kan försöka %n gånger till.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>det tog för lång tid att slå upp utskriftsservern %1</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>det finns ingen utskriftsserver med namnet %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>kan inte ansluta till utskriftsservern %1 med kryptering</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>kan inte ansluta till utskriftsservern %1. Är den igång?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>utskriftsservern %1 slutade läsa dokumentet</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>utskriftsserverns svar är ofullständigt</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>utskriftsserverns svar är för stort</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>utskriftsservern %1 svarade inte inom %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>utskriftsservern %1 stängde anslutningen</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>utskriftsservern %1 hänvisade till en annan adress (HTTP-status %2); hänvisningar följs inte</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>utskriftsservern %1 begär ett lösenord</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>utskriftsservern %1 svarade: %2 (HTTP-status %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>kan inte läsa utskriftsserverns svar</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>jobbets alternativ</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>användarnamnet</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>jobbets namn</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>PIN-kodens kontrollsumma</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>PIN-koden</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>jobbets tidpunkt</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>mappens PIN-kod</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>mappen</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>användarnumret</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>kontonumret</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>utskriftsservern gav inte jobbet något nummer</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>kan inte skapa ett jobb på ”%1”: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>kan inte avbryta jobbet %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>utskriftsserverns svar innehåller inte jobbet</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>kan inte ta reda på vad andra användare ser: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: rad %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>kan inte hämta PPD-filen för %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>kan inte spara PPD-filen: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>PPD-filen för %1 är för stor</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>kan inte läsa standard in</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: är en mapp</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>jobbet stoppades</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>utskriftsservern stoppade jobbet: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>den här skrivaren tar inte emot den här typen av fil</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>den här skrivaren tar inte emot den här typen av fil (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>kunde inte skriva ut %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>utskriftsservern nekade jobbet: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>”%1” tar inte emot jobb</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>”%1” tar inte emot jobb: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>det finns ingen skrivare med namnet ”%1”</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>kan inte öppna skrivaren ”%1”: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>tillägget ”Jobbhantering” har ingen panel för utskriftsdialogen</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>panelen har ingen layout</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>kan inte skriva skrivarens svar till den tillfälliga mappen. Är disken full?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>skrivarens svar är inte en lista över mappar</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>kan inte hitta JobHandling.pde bredvid programmet eller i biblioteksmappen</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>kan inte spara mapparna: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Jobbhantering för modellen %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>inget har skrivits ut tidigare</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>en förinställning kan inte spara den här mappens namn</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>det finns ingen förinställning ”%1”; den här skrivaren har inga förinställningar</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>det finns ingen förinställning ”%1”; den här skrivaren har: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>förinställningen ”%1” är skadad och har lämnats oförändrad</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>den här skrivarens förinställningar är skadade och har lämnats oförändrade</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>namnet på en förinställning får ha högst %1 tecken; välj ett kortare</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>kan inte läsa den här skrivarens förinställningar: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>förinställningen ”%1” är för en annan skrivarmodell, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>utskriftsservern känner inte längre till jobbet</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>kan inte avbryta jobbet %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>fel användarnamn eller lösenord för skrivaren ”%1”</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>fel användarnamn eller lösenord för utskriftsservern %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>skrivaren ”%1” begär ett lösenord</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>det går inte att konfigurera skrivaren ”%1”: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>skrivaren svarar inte</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>adressen är okänd</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>anslutningen nekades</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>anslutningen stängdes</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>inget svar i tid</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>svaret går inte att läsa</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>skrivaren kan inte nås</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>ingen mapplista från %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: en mapp, inte en PPD-fil</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>ingen standardskrivare är inställd; välj en med -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>det hör till en annan skrivare</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>kan inte starta om jobbet %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>kan inte ändra jobbet %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Klockan</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Ange ett klockslag, till exempel 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Väntar på skrivaren</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Väntar på 1 annat jobb</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Väntar på %n annat jobb</numerusform>
            <numerusform>Väntar på %n andra jobb</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Hålls kvar: skrivaren begär ett lösenord</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Hålls kvar till utskriftstiden</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Hålls kvar tills det släpps</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Skriver ut</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Skriver ut sida %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Skriver ut sida %1 av %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Stoppat: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Stoppat: skrivaren är pausad</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppat</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Väntar på %1 tills du anger din PIN-kod där</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Väntar på %1 tills du släpper det där</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Utskrivet</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Utskrivet och sparat på %1 för ny utskrift</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>En kopia är utskriven, de övriga väntar på %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Avbrutet av %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Avbrutet vid skrivaren</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Avbrutet</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Stoppat av utskriftsservern</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Inte utskrivet</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Det är okänt om jobbet är utskrivet</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Ansluter till skrivaren</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Fler alternativ</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrera</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>I en PDF-fil förblir sidorna som de är. Bara sidorna och deras ordning kan väljas.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Ingen förhandsvisning är tillgänglig eftersom det tar för lång tid att rita sidan.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Ingen förhandsvisning är tillgänglig för den här typen av dokument.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Ingen förhandsvisning är tillgänglig. Installera poppler-utils för att se en.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Ingen förhandsvisning är tillgänglig eftersom det här PDF-dokumentet inte kan läsas.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Föregående sida</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nästa sida</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Sida</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Alla sidor</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Valda sidor</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Dokumentet slutar på sidan %1. Sidor som kommer att skrivas ut: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Lås %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Ange skrivarens adress för att hämta namnen på dess mappar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>”%1” är inte en adress. Ange skrivarens namn eller IP-adress.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Den här skrivaren arkiverar inga dokument, så valet av mapp har ingen verkan.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Låst: den här uppgiften sparas för den här skrivaren.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Olåst: den här uppgiften gäller bara det här jobbet.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>tum</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Anpassad storlek</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Ange en bredd mellan %1 och %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Ange en höjd mellan %1 och %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Skyddat dokument</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 är skyddat med ett lösenord. Ange lösenordet för att skriva ut dokumentet.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokumentet</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Inga sidor är valda.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Installera qpdf för att spara PDF-filer.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Det tar för lång tid att spara.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Utrymmet räcker inte.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Stoppad.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 kan inte sparas. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Procent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Ange ett procenttal mellan %1 och %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Förinställningar</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Senast använda</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Inga förinställningar</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Spara som förinställning…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Ta bort förinställning</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (ändrad)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Förinställningar: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Spara som förinställning</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Ta med PIN-koderna</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Ersätta förinställningen ”%1”?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Bara PDF-dokument kan sparas som PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Inga sidor är valda.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Sida %1 av %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Ark %1 av %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Ark %1 av %2, framsida</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Ark %1 av %2, baksida</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 sida</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n sida</numerusform>
            <numerusform>%1, %n sidor</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Totalt: 1 pappersark</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Totalt: %n pappersark</numerusform>
            <numerusform>Totalt: %n pappersark</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Ansluter till skrivaren…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Sparar de valda sidorna i en fil.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Den här skrivaren stöder inte %1. Jobbet skrivs ut utan det.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Spara som PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Skriv ut på %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Inget dokument har valts</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Läser dokumentet…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Dokumentet är långt. Resten läses när du skriver ut.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Ingen förhandsvisning är tillgänglig. Programmet förbereder sidorna när du har tryckt på ”Skriv ut”.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Inget dokument</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Välj ett dokument</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Jobb %1 har skickats till %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Sparad som %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Jobbet skrevs inte ut. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Spara…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Välj ett dokument att skriva ut.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Avbryter jobbet…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Skrivare:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Den här skrivaren stöder inte %1 i förinställningen. Resten är inställt.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Hålls inte kvar</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Jobb %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Dess uppgifter kunde inte sparas.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Skriv ut igen</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Avbryt jobbet</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 mapp från %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n mapp från %1</numerusform>
            <numerusform>%n mappar från %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Utskriftsservern har inte längre den här skrivaren. Den kan ha tagits bort.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Skrivare</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beskrivning:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Plats:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Tillstånd:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Meddelande:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Okänd nivå</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Skrivare</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Ingen skrivare</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Söker efter skrivare…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Ange namnet på en skrivare.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Tryck på Retur för att välja %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Flera skrivare passar. Välj en av dem.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Det finns ingen skrivare med namnet ”%1”.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Skrivardetaljer</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Spara som PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Tar inte emot jobb: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Tar inte emot jobb</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Pausad: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Skriver ut</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 jobb väntar</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n jobb väntar</numerusform>
            <numerusform>%n jobb väntar</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>I nätverket</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Ingen skrivare tar emot jobb. Kontrollera skrivarna i systeminställningarna och försök igen.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisning</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Vem kan se det här jobbet?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Andra användare kan se att jobbet finns, men inga detaljer om det.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Andra användare kan se: %1. Lägg till de här raderna i utskriftsserverns policy ”%2” för att dölja det:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (ändrad)</translation>
    </message>
</context>
</TS>
