<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>moet %1 of %2 zijn</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>onverwacht argument</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>onbekende optie %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 vereist een waarde</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 accepteert geen waarde</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 kan niet samen met %2 worden gebruikt</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Probeer ‘%1 --help’.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 vereist %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>kan niet naar de standaarduitvoer schrijven</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>de regel is te lang</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>de regel is niet in UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>de regel is leeg</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>er is geen terminal om op te vragen</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>onderbroken</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>moet tussen 0.1 en 3600 seconden liggen</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>het aantal exemplaren moet tussen %1 en %2 liggen</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>de prioriteit moet tussen %1 en %2 liggen</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>het aantal seconden moet tussen %1 en %2 liggen</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 is twee keer opgegeven</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>opgeven als een server zo lang zwijgt (standaard: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>deze tekst of de versie tonen</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Gebruik: %1 [OPTIE]... [BESTAND]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>zoals bij de gebruikelijke afdrukopdracht</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>De taak wordt niet op de printer vastgehouden. Schakel eerst ‘Vasthouden’ in.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Snel opslaan heeft geen toegangscode.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Alleen een aangepaste map heeft een naam nodig. Kies eerst ‘Aangepaste map’.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Alleen een aangepaste of beveiligde map heeft een toegangscode.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Deze printer herkent u aan uw gebruikersnummer, niet aan uw aanmeldnaam.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Dit gegeven is vergrendeld en wordt voor deze printer onthouden. Open het slot om het te wijzigen.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Cijfers verbergen</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Cijfers tonen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Een printer kiezen</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Kies een printer uit de lijst. Is de lijst lang, typ dan een deel van de naam van de printer en druk op Enter. De regel onder de lijst geeft aan of de printer gereed is.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Een deel van de pagina’s afdrukken</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Kies ‘Geselecteerde pagina’s’ en voer paginanummers of bereiken in, bijvoorbeeld 1-3, 5. Een bereik mag open zijn: 5- drukt pagina 5 en alle volgende pagina’s af.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Op beide zijden afdrukken</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Kies ‘Lange zijde’ voor pagina’s die omslaan zoals in een boek, of ‘Korte zijde’ voor pagina’s die omslaan zoals in een notitieblok.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Zien wat wordt afgedrukt</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Het voorbeeld toont de vellen papier zoals ze uit de printer komen. Blader met de pijlen eronder of met Page Up en Page Down en vergroot de pagina’s met Ctrl en het muiswiel.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>De pagina’s als pdf-bestand opslaan</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Een taak met een toegangscode op de printer vasthouden</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Schakel onder ‘Taakbeheer’ de optie ‘Vasthouden’ in en voer een toegangscode van maximaal 8 cijfers in. De taak wacht in de printer tot iemand daar de toegangscode invoert. ‘Vasthouden na afdrukken’ bewaart de taak nadat die is afgedrukt. ‘Proefafdruk’ drukt één kopie af en houdt de overige vast.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Opgeven wie u bent</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Sommige printers vragen wie er afdrukt. Voer onder ‘Gebruiker en account’ uw gebruikersnummer in, of uw aanmeldnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Een gegeven opnieuw gebruiken</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Sluit het slot naast een gegeven. Het gegeven wordt dan voor deze printer onthouden. Open het slot om het te wijzigen.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Een map op de printer kiezen</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Uw instellingen als voorinstelling opslaan</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Druk op ‘Voorinstellingen’ en kies ‘Opslaan als voorinstelling’. Kies de voorinstelling daar om de instellingen opnieuw te gebruiken. Toegangscodes worden alleen opgeslagen als u ze meeneemt.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Zien wat anderen van een taak kunnen zien</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Een taak annuleren</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Het toetsenbord gebruiken</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt en een onderstreepte letter gaan naar een element; Alt, Shift en de letter gaan naar het slot ernaast. Enter drukt af, Escape annuleert en F1 opent deze hulp. Ctrl+R toont de cijfers van een toegangscode zolang de cursor erin staat.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Hulp bij afdrukken</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Meerdere pagina’s op een vel afdrukken</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Kies onder ‘Opmaak’ het aantal pagina’s per vel, hun volgorde en een rand. Op een printer die boekjes maakt, rangschikt ‘Boekje’ de pagina’s zo dat de gevouwen vellen als een boek kunnen worden gelezen.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>De pagina’s aan het papier aanpassen</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Onder ‘Opmaak’ bepaalt ‘Schaal’ wat er gebeurt met pagina’s die groter of kleiner zijn dan het papier. ‘Aan papier aanpassen’ toont ze in hun geheel, ‘Papier vullen’ laat geen marge over en kan randen afsnijden, en ‘Werkelijke grootte’ laat ze zoals ze zijn. Het percentage van ‘Aangepast’ geldt voor afbeeldingen.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Kiezen wanneer wordt afgedrukt</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Onder ‘Taak’ houdt ‘Afdrukken’ de taak op de printserver vast tot een tijdstip of, met ‘In de wacht’, tot u die vrijgeeft in de lijst met afdruktaken van het systeem. Van de wachtende taken wordt die met de hoogste prioriteit als eerste afgedrukt.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Voorbladen en factuurgegevens toevoegen</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Kies onder ‘Taak’ een voorblad dat vóór of na het document wordt afgedrukt. Factuurgegevens, zoals een projectnummer, worden met de taak bewaard in de administratie van de printserver.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Een andere optie van de printer vinden</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>‘Meer opties’ bevat alle overige opties van de printer. Typ een deel van een naam in het filter om alleen de opties te zien die het bevatten.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Kies ‘Opslaan als pdf’ in de lijst met printers en druk op ‘Opslaan’. Het bestand bevat de geselecteerde pagina’s. Alleen pdf-documenten kunnen worden opgeslagen, en alleen hun pagina’s en de volgorde ervan zijn te kiezen.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Een met een wachtwoord beveiligd document afdrukken</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Wanneer u op ‘Afdrukken’ drukt, vraagt het dialoogvenster om het wachtwoord van het document. Er wordt een kopie zonder wachtwoord afgedrukt, die alleen u kunt lezen en die daarna wordt verwijderd.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Schakel onder ‘Taakbeheer’ de optie ‘Vasthouden’ in. Kies onder ‘Documentopslag’ de optie ‘Aangepaste map’ en voer de naam van een map in. ‘Mapnamen ophalen’ vraagt de printer naar de mappen, zodat u er een uit de lijst kunt kiezen.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Druk in het overzicht op ‘Wie kan deze taak zien?’. Het antwoord geeft aan welke details van een taak de printserver aan andere gebruikers toont en hoe u ze verbergt.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Druk op ‘Annuleren’ terwijl de taak wordt verzonden. Zolang het venster de taak volgt, drukt u op ‘Taak annuleren’; ‘Opnieuw afdrukken’ verzendt een mislukte taak nog een keer. Nadat het venster is gesloten, gebruikt u de lijst met afdruktaken van het systeem.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Kopieën</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sorteren</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omgekeerd</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Alleen afdrukken</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformaat</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Dubbelzijdig</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierbron</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papiersoort</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Uitvoerlade</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Nieten</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforeren</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Vouwen</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Oriëntatie</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagina’s per vel</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Boekje</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Paginavolgorde</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Schaal</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioriteit</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Factuurgegevens</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Voorbladen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange zijde</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Korte zijde</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle pagina’s</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Oneven pagina’s</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Even pagina’s</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggend</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Liggend omgekeerd</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Staand omgekeerd</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Van links naar rechts, van boven naar beneden</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Van links naar rechts, van beneden naar boven</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Van rechts naar links, van boven naar beneden</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Van rechts naar links, van beneden naar boven</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Van boven naar beneden, van links naar rechts</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Van boven naar beneden, van rechts naar links</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Van beneden naar boven, van links naar rechts</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Van beneden naar boven, van rechts naar links</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Enkele lijn</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Dikke enkele lijn</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Dubbele lijn</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Dikke dubbele lijn</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Aan papier aanpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Werkelijke grootte</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Papier vullen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>In de wacht</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Dringend</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Niet gerubriceerd</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Gerubriceerd</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertrouwelijk</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Zeer geheim</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Aangepast %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Aangepast %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Om %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Dubbelzijdig afdrukken is niet mogelijk op %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 ‘%2’ is niet mogelijk met %3 ‘%4’.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Dubbelzijdig uitschakelen</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 instellen op %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Pagina’s %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 kopie</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n kopie</numerusform>
            <numerusform>%n kopieën</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Voer paginanummers of bereiken in, bijvoorbeeld 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Het document eindigt op pagina %1. Voer paginanummers tot en met %1 in.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Huidige pagina</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selectie</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Afwerking</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: deze printer biedt dit niet</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>deze printer vraagt niet wie er afdrukt</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 mag %2 hebben</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>hoogstens %n cijfer</numerusform>
            <numerusform>hoogstens %n cijfers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>hoogstens %n teken</numerusform>
            <numerusform>hoogstens %n tekens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 kan niet samen met --folder quick worden gebruikt</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 vereist --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 vereist --folder NAME van een map met toegangscode of van een aangepaste map</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 kan niet samen met een gebruikersnummer worden gebruikt</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Toegangscode</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>toegangscode van de vastgehouden taak</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main of de naam van een map</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Code van de map</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>code van de map</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>aanmeldnaam</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>wachtwoord bij de aanmeldnaam</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>gebruikersnummer in plaats van aanmelding</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>accountnummer</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>gebruikersnaam op de printer</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>taaknaam op de printer</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>het gebruikersnummer ontbreekt; geef het op met %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>de aanmeldnaam ontbreekt; geef deze op met %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p is -q en -w is -m; de andere hebben geen effect</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>staan voor een wachtrij waar geen taak wordt verzonden</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>de instellingen van de taak tonen en niets verzenden; alleen bewaren wat --remember, --forget of --save-preset vragen</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>het overzicht van het paneel tonen, niet de instellingen</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>de wachtrijen tonen, of die met taakbeheer, en de printers in het netwerk</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>de mappen van de printer ophalen, onthouden en tonen</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>tonen wat andere gebruikers van de server van de opties van een taak zien, en hoe dat te verbergen is</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>tonen wat er van de taak wordt tot deze is afgedrukt of op de printer wordt vastgehouden; eindigt anders met 1, of met 4 als de taak na SECONDS nog wacht</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON tonen</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>het wachtwoord waar de server of printer om vraagt</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>de taak vasthouden: onafgedrukt, na het afdrukken of na een proefafdruk</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>de taak niet vasthouden</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X (pin, folder-pin, password) uit de eerste regel van een bestand of van de standaardinvoer (‘-’) lezen of op de terminal vragen: andere gebruikers kunnen een opdrachtregel zien</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>de gegevens X voor de volgende taken van deze wachtrij onthouden</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>ze niet langer onthouden</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>met een voorinstelling van deze wachtrij beginnen</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>de instellingen als voorinstelling opslaan, de toegangscodes alleen samen met --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>alleen dit doen, voor -d of --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Drukt bestanden of de standaardinvoer af met het taakbeheer van een printer.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Eindigt met 0 gereed, 1 mislukt, 2 verkeerd gebruik, 3 geweigerd door het paneel, 4 wacht nog.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>er wordt niet langer gewacht: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>in het netwerk</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestopt</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>drukt af</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>accepteert geen taken</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 taak</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n taak</numerusform>
            <numerusform>%n taken</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>deze printer heeft geen mappenlijst</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>het adres van de printer is onbekend; geef het op met --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>‘%1’ is geen adres</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: andere gebruikers zien geen opties van een taak.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: andere gebruikers zien van een taak: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Een beheerder verbergt dit in cupsd.conf, in het beleid van de printer:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Een beheerder verbergt dit in cupsd.conf, in &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>vergrendeld</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder heeft geen effect: deze printer slaat geen documenten op</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>kan de gegevens niet onthouden: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>de taak is verzonden, maar: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>een onbewerkte taak (raw) omzeilt het stuurprogramma en daarmee het taakbeheer</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>de printer ‘%1’ biedt geen taakbeheer</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m wordt genegeerd: het hoort bij een nieuwe taak</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>waarschuwing: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i wijzigt een al verzonden taak; laat de bestanden weg</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i wijzigt een taak waar deze is; laat -d en --ppd weg</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i kan het taakbeheer van een al verzonden taak niet wijzigen</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait vereist een taak om af te drukken</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>een lijst kan niet samen met de opties van een taak worden gebruikt</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>er is geen printer opgegeven; kies er een met -d of --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd vereist --dry-run of --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>slechts één gegeven kan uit de standaardinvoer worden gelezen</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>mag niet leeg zijn</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>moet een tijd zoals 18:30 (UTC), hold, immediate, resume, restart of een sleutelwoord van de printserver zoals evening zijn</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>moet een taak zoals 12 of QUEUE-12 zijn</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 wordt genegeerd: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS heeft geen formulieren</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS heeft geen modi; gebruik -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>de tekenset is altijd UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>de printserver herkent het type; gebruik -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember en --forget kunnen niet allebei %1 noemen</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>gebruik slechts één van -i, --dry-run, --list, --folders, --check, --list-presets en --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Onjuist wachtwoord. Wachtwoord van %1 voor %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Wachtwoord van %1 voor %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; geef het op met --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>document %1 wordt verzonden: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>document %1 wordt verzonden: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>een verzonden taak wijzigen: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>het wachtwoord uit het bestand wordt niet naar ‘%1’ gestuurd, een printer op het netwerk die niet op de printserver is ingesteld</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>‘%1’ is niet op de printserver ingesteld; de printer op het netwerk wordt gebruikt: %2</translation>
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
        <translation>er is geen printer beschikbaar</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kan niet worden geschreven</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>deze sectie openen</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>een afbeelding van het venster opslaan en stoppen</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>tonen hoe lang het starten duurde en stoppen</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Toont het afdrukvenster voor bestanden of de standaardinvoer.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Eindigt met 0 verzonden, 1 niet verzonden, 2 verkeerd gebruik.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Verbinding maken</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Klep open</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Stuurprogramma ontbreekt</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Ontwikkelaar is op</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Ontwikkelaar bijna op</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Deur open</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Te heet</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Warmt op</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Nieuwe taken worden vastgehouden</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Papierlade ontbreekt</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Inkt of toner is op</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Inkt of toner bijna op</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Tonerafvalbak bijna vol</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Tonerafvalbak vol</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Papier is op</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papierstoring</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Papier bijna op</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papier nodig</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Wordt gepauzeerd</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Drum versleten</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Drum bijna versleten</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Heeft aandacht nodig</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Uitvoerlade bijna vol</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Uitvoerlade vol</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Uitvoerlade ontbreekt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Printergeheugen vol</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Gedeeltelijk gestopt</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Wordt gestopt</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Reageert niet</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Toner is op</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Toner bijna op</translation>
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
        <translation>Halve US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Briefkaart (Japan)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Dubbele briefkaart (Japan)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Envelop Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Envelop %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Envelop nr. %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hoofdlade</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Alternatieve lade</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Cassette</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassette %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Lade %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Handmatige invoer</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Multifunctionele lade</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Envelopinvoer</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Handmatige envelopinvoer</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Lade met grote capaciteit</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bovenste lade</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Middelste lade</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Onderste lade</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Linkerlade</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Rechterlade</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Zijlade</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Achterste lade</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Centrale lade</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotolade</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Schijflade</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Briefkaartlade</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Papierrol</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Alternatieve papierrol</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rol %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Normaal papier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefhoofdpapier</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Voorbedrukt papier</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Geperforeerd papier</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Kringlooppapier</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bankpostpapier</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Zwaar papier</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Licht papier</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Gecoat papier</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Inkjetpapier</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Fijn papier</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Gekleurd papier</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Katoenpapier</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparant</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Envelop</translation>
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
        <translation>Fotopapier, glanzend</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Fotopapier, hoogglanzend</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Fotopapier, halfglanzend</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Fotopapier, satijn</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Fotopapier, mat</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Kettingpapier</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Tabbladpapier</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Bovenste uitvoerlade</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Middelste uitvoerlade</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Onderste uitvoerlade</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Linkeruitvoerlade</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Rechteruitvoerlade</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Centrale uitvoerlade</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Uitvoerlade opzij</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Achterste uitvoerlade</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Bedrukte zijde boven</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Bedrukte zijde onder</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stapelaar %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Stapelaar</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Postvak %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Mijn postvak</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Zwart-wit</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Alleen zwart, geen grijs</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Concept</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Nieten</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Twee nietjes</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Drie nietjes</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Randhechting</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Rughechting</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Boekje</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforeren</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Twee gaten</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Drie gaten</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Vier gaten</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Veel gaten</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Inbinden</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Bijsnijden</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Omslag toevoegen</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Taken verspringen</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Lamineren</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Vouwen</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Dubbelvouwen</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Brievenvouw</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-vouw</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Halve Z-vouw</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Harmonicavouw</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Luikvouw</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Dubbele luikvouw</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Parallelvouw</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>linksboven</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>linksonder</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>rechtsboven</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>rechtsonder</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>top</source>
        <translation>boven</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>onder</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, randloos</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Voorblad vooraf</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Voorblad achteraf</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Wachtwoord vereist</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>De printer %1 vraagt om uw wachtwoord.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>De printserver %1 vraagt om uw wachtwoord.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Onjuiste gebruikersnaam of onjuist wachtwoord. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domein:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Taak wordt verzonden</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 is een map. Kies een bestand.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 is groter dan %2. Meer kan niet worden afgedrukt.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 kan niet worden gekopieerd om af te drukken: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 is leeg. Er is niets om af te drukken.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Het document</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 en nog %n</numerusform>
            <numerusform>%1 en nog %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Het document heeft geen pagina’s. Er is niets om af te drukken.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Geen voorbeeld beschikbaar. Installeer cups om er een te zien.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Geen voorbeeld beschikbaar, omdat het omzetten van het document te lang duurt.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Voor dit type document is geen voorbeeld beschikbaar.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Het document is met een wachtwoord beveiligd. Voer het wachtwoord in om het af te drukken.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Het document is beschadigd en kan niet worden getoond. Mogelijk kan de printer het niet afdrukken.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Het document is beschadigd. Mogelijk ontbreekt er iets.</translation>
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
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Een document kiezen</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Het document kan niet worden geopend. Installeer qpdf om het te openen.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Het openen van het document duurt te lang.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Er is niet genoeg ruimte voor een kopie van het document.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Het document is beschadigd en kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Onjuist wachtwoord. U hebt nog één poging.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Onjuist wachtwoord. U hebt nog %n poging.</numerusform>
            <numerusform>Onjuist wachtwoord. U hebt nog %n pogingen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>het opzoeken van de printserver %1 duurde te lang</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>er is geen printserver met de naam %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>kan geen versleutelde verbinding maken met de printserver %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>kan geen verbinding maken met de printserver %1. Is die gestart?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>de printserver %1 las het document niet verder</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>het antwoord van de printserver is onvolledig</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>het antwoord van de printserver is te groot</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>de printserver %1 heeft niet binnen %2 s geantwoord</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>de printserver %1 heeft de verbinding verbroken</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>de printserver %1 verwees naar een ander adres (HTTP-status %2); verwijzingen worden niet gevolgd</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>de printserver %1 vraagt om een wachtwoord</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>de printserver %1 antwoordde: %2 (HTTP-status %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>kan het antwoord van de printserver niet lezen</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>de opties van de taak</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>de gebruikersnaam</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>de naam van de taak</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>de controlesom van de toegangscode</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>de toegangscode</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>het tijdstip van de taak</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>de toegangscode van de map</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>de map</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>het gebruikersnummer</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>het accountnummer</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>de printserver heeft de taak geen nummer gegeven</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>kan geen taak maken op ‘%1’: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>kan taak %1-%2 niet annuleren: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>het antwoord van de printserver bevat de taak niet</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>kan niet achterhalen wat andere gebruikers zien: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: regel %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>kan de PPD van %1 niet ophalen: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>kan de PPD niet opslaan: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>de PPD van %1 is te groot</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>kan de standaardinvoer niet lezen</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: is een map</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>de taak is gestopt</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>de printserver heeft de taak gestopt: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>deze printer accepteert dit type bestand niet</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>deze printer accepteert dit type bestand niet (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>kan %1 niet afdrukken: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>de printserver heeft de taak geweigerd: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>‘%1’ accepteert geen taken</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>‘%1’ accepteert geen taken: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>er is geen printer met de naam ‘%1’</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>kan de printer ‘%1’ niet openen: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>de uitbreiding ‘Taakbeheer’ heeft geen paneel voor het afdrukdialoogvenster</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>het paneel heeft geen indeling</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>kan het antwoord van de printer niet naar de tijdelijke map schrijven. Is de schijf vol?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>het antwoord van de printer is geen lijst met mappen</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>kan JobHandling.pde niet vinden naast het programma of in de bibliotheekmap</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>kan de mappen niet onthouden: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Taakbeheer voor het model %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>er is nog niets afgedrukt</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>een voorinstelling kan de naam van deze map niet opslaan</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>er is geen voorinstelling ‘%1’; deze printer heeft geen voorinstellingen</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>er is geen voorinstelling ‘%1’; deze printer heeft: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>de voorinstelling ‘%1’ is beschadigd en is ongewijzigd gelaten</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>de voorinstellingen van deze printer zijn beschadigd en zijn ongewijzigd gelaten</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>de naam van een voorinstelling mag maximaal %1 tekens hebben; kies een kortere</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>kan de voorinstellingen van deze printer niet lezen: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>de voorinstelling ‘%1’ is voor een ander printermodel, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>de printserver kent de taak niet meer</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>kan taak %1 niet annuleren: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>onjuiste gebruikersnaam of onjuist wachtwoord voor de printer ‘%1’</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>onjuiste gebruikersnaam of onjuist wachtwoord voor de printserver %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>de printer ‘%1’ vraagt om een wachtwoord</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>de printer ‘%1’ kan niet worden ingesteld: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>de printer antwoordt niet</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>het adres is onbekend</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>verbinding geweigerd</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>de verbinding is verbroken</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>geen antwoord op tijd</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>het antwoord is onleesbaar</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>de printer is niet bereikbaar</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>geen mappenlijst van %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: een map, geen PPD-bestand</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>er is geen standaardprinter ingesteld; kies er een met -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>deze hoort bij een andere printer</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>kan taak %1 niet opnieuw starten: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>kan taak %1 niet wijzigen: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Voer een tijdstip in, bijvoorbeeld 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Wacht op de printer</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Wacht op 1 andere taak</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Wacht op %n andere taak</numerusform>
            <numerusform>Wacht op %n andere taken</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Vastgehouden: de printer vraagt om een wachtwoord</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Vastgehouden tot het afdruktijdstip</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Vastgehouden tot de taak wordt vrijgegeven</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukt af</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Drukt pagina %1 af</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Drukt pagina %1 van %2 af</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Gestopt: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Gestopt: de printer is gepauzeerd</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Wacht bij %1 tot u daar uw toegangscode invoert</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Wacht bij %1 tot u de taak daar vrijgeeft</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Afgedrukt</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Afgedrukt en bij %1 bewaard om opnieuw af te drukken</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Eén kopie is afgedrukt, de overige wachten bij %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Geannuleerd door %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Geannuleerd op de printer</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Gestopt door de printserver</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Niet afgedrukt</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Het is niet bekend of de taak is afgedrukt</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Verbinding maken met de printer</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Opmaak</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Taak</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Meer opties</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>In een pdf-bestand blijven de pagina’s zoals ze zijn. U kunt alleen de pagina’s en hun volgorde kiezen.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Geen voorbeeld beschikbaar, omdat het tekenen van de pagina te lang duurt.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Voor dit type document is geen voorbeeld beschikbaar.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Geen voorbeeld beschikbaar. Installeer poppler-utils om er een te zien.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Geen voorbeeld beschikbaar, omdat dit pdf-document niet kan worden gelezen.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Volgende pagina</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Alle pagina’s</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Geselecteerde pagina’s</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Het document eindigt op pagina %1. Deze pagina’s worden afgedrukt: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>%1 vergrendelen</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Voer het adres van de printer in om de namen van de mappen op te halen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>‘%1’ is geen adres. Voer de naam of het IP-adres van de printer in.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Deze printer slaat geen documenten op, dus de keuze van een map heeft geen effect.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Vergrendeld: dit gegeven wordt voor deze printer onthouden.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Ontgrendeld: dit gegeven geldt alleen voor deze taak.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Aangepast formaat</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Voer een breedte tussen %1 en %2 %3 in.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Voer een hoogte tussen %1 en %2 %3 in.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Beveiligd document</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 is met een wachtwoord beveiligd. Voer het wachtwoord in om het document af te drukken.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Het document</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Er zijn geen pagina’s geselecteerd.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Installeer qpdf om pdf-bestanden op te slaan.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Het opslaan duurt te lang.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Er is niet genoeg ruimte.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestopt.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 kan niet worden opgeslagen. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Percentage</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Voer een percentage tussen %1 en %2 in.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Voorinstellingen</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Laatst gebruikt</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Geen voorinstellingen</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Opslaan als voorinstelling…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Voorinstelling verwijderen</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (gewijzigd)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Voorinstellingen: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Opslaan als voorinstelling</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Toegangscodes meenemen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Voorinstelling ‘%1’ vervangen?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Alleen pdf-documenten kunnen als pdf worden opgeslagen.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Er zijn geen pagina’s geselecteerd.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Vel %1 van %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Vel %1 van %2, voorzijde</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Vel %1 van %2, achterzijde</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 pagina</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n pagina</numerusform>
            <numerusform>%1, %n pagina’s</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Totaal: 1 vel papier</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Totaal: %n vel papier</numerusform>
            <numerusform>Totaal: %n vellen papier</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Verbinding maken met de printer…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Slaat de geselecteerde pagina’s op in een bestand.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Deze printer ondersteunt %1 niet. De taak wordt zonder afgedrukt.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Opslaan als pdf</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Afdrukken op %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Geen document geselecteerd</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Document wordt gelezen…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Het document is lang. De rest wordt bij het afdrukken gelezen.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Geen voorbeeld beschikbaar. De toepassing maakt de pagina’s gereed nadat u op ‘Afdrukken’ hebt gedrukt.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Geen document</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Een document kiezen</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Pdf-documenten (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Taak %1 is naar %2 verzonden.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Opgeslagen als %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>De taak is niet afgedrukt. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Opslaan…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Kies een document om af te drukken.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Taak wordt geannuleerd…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Printer:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Deze printer ondersteunt %1 uit de voorinstelling niet. De rest is ingesteld.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Niet vastgehouden</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Taak %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>De gegevens konden niet worden onthouden.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Opnieuw afdrukken</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Taak annuleren</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 map van %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n map van %1</numerusform>
            <numerusform>%n mappen van %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>De printserver heeft deze printer niet meer. Mogelijk is hij verwijderd.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschrijving:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Locatie:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Melding:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Niveau onbekend</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Geen printer</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Printers worden gezocht…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Voer de naam van een printer in.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Druk op Enter om %1 te kiezen.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Meerdere printers komen overeen. Kies er een.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Er is geen printer met de naam ‘%1’.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Printerdetails</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Opslaan als pdf</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Accepteert geen taken: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Accepteert geen taken</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Gepauzeerd: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukt af</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 taak in de wachtrij</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n taak in de wachtrij</numerusform>
            <numerusform>%n taken in de wachtrij</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>In het netwerk</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Geen enkele printer accepteert taken. Controleer de printers in de systeeminstellingen en probeer het opnieuw.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Wie kan deze taak zien?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Andere gebruikers kunnen zien dat deze taak bestaat, maar geen details ervan.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Andere gebruikers kunnen dit zien: %1. Voeg deze regels toe aan het beleid ‘%2’ van de printserver om dit te verbergen:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (gewijzigd)</translation>
    </message>
</context>
</TS>
