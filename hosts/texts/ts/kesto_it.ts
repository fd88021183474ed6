<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>deve essere %1 o %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>argomento imprevisto</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opzione sconosciuta %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 richiede un valore</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 non accetta valori</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 non può essere usata con %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Provare «%1 --help».</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 richiede %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>impossibile scrivere sullo standard output</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la riga è troppo lunga</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>la riga non è in UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>la riga è vuota</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>nessun terminale su cui chiedere</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrotto</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>deve essere compreso tra 0.1 e 3600 secondi</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>il numero di copie deve essere compreso tra %1 e %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>la priorità deve essere compresa tra %1 e %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>i secondi devono essere compresi tra %1 e %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 è indicato due volte</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>rinunciare se il server tace per questo tempo (predefinito: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>mostrare questo testo, o la versione</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Uso: %1 [OPZIONE]... [FILE]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>come nel consueto comando di stampa</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Il lavoro non viene trattenuto sulla stampante. Attivare prima «Trattenimento».</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Un’archiviazione rapida non ha un codice di accesso.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Solo una cartella personalizzata richiede un nome. Scegliere prima «Cartella personalizzata».</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Solo una cartella personalizzata o protetta ha un codice di accesso.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Questa stampante riconosce gli utenti dal numero utente, non dal nome di accesso.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Questo dato è bloccato e memorizzato per questa stampante. Aprire il lucchetto per modificarlo.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Nascondi le cifre</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Mostra le cifre</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Scegliere una stampante</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Scegliere una stampante dall’elenco. Se l’elenco è lungo, digitare una parte del nome della stampante e premere Invio. La riga sotto l’elenco indica se la stampante è pronta.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Stampare solo alcune pagine</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Scegliere «Pagine selezionate» e inserire numeri o intervalli di pagine, per esempio 1-3, 5. Un intervallo può essere aperto: 5- stampa la pagina 5 e tutte le successive.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Stampare su entrambi i lati</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Scegliere «Lato lungo» per pagine che si sfogliano come in un libro, oppure «Lato corto» per pagine che si girano come in un blocco note.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Vedere che cosa verrà stampato</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>L’anteprima mostra i fogli di carta come usciranno dalla stampante. Sfogliare le pagine con le frecce sottostanti o con Pag su e Pag giù e ingrandirle con Ctrl e la rotellina del mouse.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Salvare le pagine in un file PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Trattenere un lavoro sulla stampante con un codice di accesso</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>In «Gestione lavori», attivare «Trattenimento» e inserire un codice di accesso di al massimo 8 cifre. Il lavoro attende nella stampante finché qualcuno non vi inserisce il codice. «Trattieni dopo la stampa» conserva il lavoro dopo averlo stampato. «Stampa di prova» stampa una copia e trattiene le altre.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Indicare chi stampa</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Alcune stampanti chiedono chi stampa. In «Utente e account», inserire il numero utente oppure il nome di accesso e la password.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Riutilizzare un dato</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Chiudere il lucchetto accanto a un dato. Il dato viene così memorizzato per questa stampante. Per modificarlo, aprire il lucchetto.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Scegliere una cartella sulla stampante</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Salvare le impostazioni come preimpostazione</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Premere «Preimpostazioni» e scegliere «Salva come preimpostazione». Per usare di nuovo le impostazioni, scegliere lì la preimpostazione. I codici di accesso vengono salvati solo se si sceglie di includerli.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Vedere che cosa gli altri possono vedere di un lavoro</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Annullare un lavoro</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Usare la tastiera</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt e una lettera sottolineata portano a un controllo; Alt, Maiusc e la lettera portano al lucchetto accanto. Invio stampa, Esc annulla e F1 apre questo aiuto. Ctrl+R mostra le cifre di un codice di accesso mentre il cursore si trova al suo interno.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Aiuto per la stampa</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Stampare più pagine su un foglio</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>In «Layout», scegliere il numero di pagine per foglio, il loro ordine e un bordo. Su una stampante che produce opuscoli, «Opuscolo» dispone le pagine in modo che i fogli piegati si leggano come un libro.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Adattare le pagine alla carta</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>In «Layout», «Scala» decide che cosa accade alle pagine più grandi o più piccole della carta. «Adatta alla carta» le mostra intere, «Riempi la carta» non lascia margini e può tagliare i bordi, «Dimensione reale» le lascia come sono. La percentuale di «Personalizzata» vale per le immagini.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Scegliere quando stampare</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>In «Lavoro», «Stampa» trattiene il lavoro sul server di stampa fino a una certa ora oppure, con «In attesa», finché non lo si rilascia nell’elenco dei lavori di stampa del sistema. Dei lavori in attesa viene stampato per primo quello con la priorità più alta.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Aggiungere copertine e informazioni di fatturazione</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>In «Lavoro», scegliere una copertina da stampare prima o dopo il documento. Le informazioni di fatturazione, per esempio il numero di un progetto, vengono conservate con il lavoro nei registri del server di stampa.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Trovare un’altra opzione della stampante</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>«Altre opzioni» contiene tutte le altre opzioni della stampante. Digitare una parte di un nome nel filtro per vedere solo le opzioni che la contengono.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Scegliere «Salva come PDF» nell’elenco delle stampanti e premere «Salva». Il file contiene le pagine selezionate. Si possono salvare solo documenti PDF e scegliere solo le loro pagine e il loro ordine.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Stampare un documento protetto da password</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Quando si preme «Stampa», la finestra chiede la password del documento. Stampa una copia senza password, che solo l’utente può leggere e che viene poi eliminata.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>In «Gestione lavori», attivare «Trattenimento». In «Archiviazione documenti», scegliere «Cartella personalizzata» e inserire il nome di una cartella. «Ottieni i nomi delle cartelle» chiede alla stampante le sue cartelle, così da poterne scegliere una dall’elenco.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Nel riepilogo, premere «Chi può vedere questo lavoro?». La risposta indica quali dettagli di un lavoro il server di stampa mostra agli altri utenti e come nasconderli.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Premere «Annulla» durante l’invio del lavoro. Mentre la finestra segue il lavoro, premere «Annulla lavoro»; «Stampa di nuovo» invia ancora una volta un lavoro non riuscito. Dopo la chiusura della finestra, usare l’elenco dei lavori di stampa del sistema.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Stampa solo</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Formato carta</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origine carta</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo di carta</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Vassoio di uscita</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinzatura</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforazione</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Piegatura</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordine delle pagine</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Informazioni di fatturazione</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Copertine</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lato lungo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Lato corto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Tutte le pagine</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Pagine dispari</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Pagine pari</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Orizzontale invertito</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Verticale invertito</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Da sinistra a destra, dall’alto in basso</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Da sinistra a destra, dal basso in alto</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Da destra a sinistra, dall’alto in basso</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Da destra a sinistra, dal basso in alto</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Dall’alto in basso, da sinistra a destra</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Dall’alto in basso, da destra a sinistra</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Dal basso in alto, da sinistra a destra</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Dal basso in alto, da destra a sinistra</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Linea singola</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Linea singola spessa</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Linea doppia</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Linea doppia spessa</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Adatta alla carta</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensione reale</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Riempi la carta</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classificato</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classificato</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidenziale</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Segreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Segretissimo</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Personalizzato %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Personalizzato %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Alle %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>La stampa fronte-retro non è possibile su %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 «%2» non è possibile con %3 «%4».</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Disattiva fronte-retro</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Imposta %1 su %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Pagine %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copia</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copie</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Inserire numeri o intervalli di pagine, per esempio 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Il documento finisce a pagina %1. Inserire numeri di pagina fino a %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Pagina attuale</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: questa stampante non lo offre</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>questa stampante non chiede chi stampa</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 deve avere %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>al massimo %n cifra</numerusform>
            <numerusform>al massimo %n cifre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>al massimo %n carattere</numerusform>
            <numerusform>al massimo %n caratteri</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 non può essere usata con --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 richiede --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 richiede --folder NAME di una cartella con codice di accesso o di una cartella personalizzata</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 non può essere usata con un numero utente</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Codice di accesso</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>codice di accesso del lavoro trattenuto</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main o il nome di una cartella</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Codice della cartella</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>codice della cartella</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>nome di accesso</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>password del nome di accesso</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>numero utente invece del nome di accesso</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>numero di account</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>nome utente sulla stampante</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>nome del lavoro sulla stampante</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>manca il numero utente; indicarlo con %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>manca il nome di accesso; indicarlo con %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p equivale a -q e -w a -m; le altre non hanno effetto</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>fanno le veci di una coda quando non si invia nulla</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>mostrare le impostazioni del lavoro senza inviare nulla; conservare solo ciò che chiedono --remember, --forget o --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>mostrare il riepilogo del pannello, non le impostazioni</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>elencare le code, o quelle che offrono la gestione lavori, e le stampanti in rete</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>recuperare, memorizzare ed elencare le cartelle della stampante</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>mostrare che cosa vedono altri utenti del server delle opzioni di un lavoro, e come nasconderlo</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>mostrare la sorte del lavoro finché non è stampato o trattenuto sulla stampante; altrimenti termina con 1, o con 4 se attende ancora dopo SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrare JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>la password chiesta dal server o dalla stampante</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>trattenere il lavoro: senza stamparlo, dopo la stampa o dopo una prova</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>non trattenere il lavoro</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>prendere X (pin, folder-pin, password) dalla prima riga di un file o dello standard input, «-», o chiederlo al terminale: altri utenti possono vedere una riga di comando</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>memorizzare i dati X per i prossimi lavori di questa coda</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>non memorizzarli più</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>partire da una preimpostazione di questa coda</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>salvare le impostazioni come preimpostazione; i codici di accesso solo insieme a --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>fare solo questo, per -d o --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Stampa file, o lo standard input, con la gestione lavori di una stampante.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Termina con 0 eseguito, 1 non riuscito, 2 uso errato, 3 rifiutato dal pannello, 4 in attesa.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>attesa terminata: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>in rete</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>pronta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>ferma</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>in stampa</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 lavoro</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n lavoro</numerusform>
            <numerusform>%n lavori</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>questa stampante non ha un elenco di cartelle</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>l’indirizzo della stampante è sconosciuto; indicarlo con --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>«%1» non è un indirizzo</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: gli altri utenti non vedono alcuna opzione di un lavoro.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: gli altri utenti vedono di un lavoro: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Un amministratore le nasconde in cupsd.conf, nel criterio della stampante:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Un amministratore le nasconde in cupsd.conf, in &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloccata</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder non ha effetto: questa stampante non archivia documenti</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>impossibile memorizzare i dati: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>il lavoro è stato inviato, ma: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>un lavoro non elaborato (raw) aggira il driver e con esso la gestione lavori</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>la stampante «%1» non offre la gestione lavori</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m viene ignorata: va con un nuovo lavoro</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>avviso: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i modifica un lavoro già inviato; non indicare file</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i modifica un lavoro là dove si trova; non indicare -d e --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i non può modificare la gestione lavori di un lavoro già inviato</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait richiede un lavoro da stampare</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>un elenco non può essere combinato con le opzioni di un lavoro</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>nessuna stampante indicata; sceglierla con -d o --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd richiede --dry-run o --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>un solo dato può essere letto dallo standard input</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>non deve essere vuoto</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>deve essere un’ora come 18:30 (UTC), hold, immediate, resume, restart o una parola chiave del server di stampa come evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>deve essere un lavoro come 12 o QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 viene ignorata: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS non ha moduli</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS non ha modalità; usare -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>il set di caratteri è sempre UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>il server di stampa riconosce il tipo; usare -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember e --forget non possono indicare entrambe %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>usare solo una tra -i, --dry-run, --list, --folders, --check, --list-presets e --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Password errata. Password di %1 per %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Password di %1 per %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; indicarla con --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>invio del documento %1: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>invio del documento %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>modificare un lavoro già inviato: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>la password nel file non viene inviata a «%1», che è una stampante in rete e non è configurata sul server di stampa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>«%1» non è configurata sul server di stampa; viene usata la stampante in rete: %2</translation>
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
        <translation>nessuna stampante disponibile</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>aprire questa sezione</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>salvare un’immagine della finestra e uscire</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>mostrare la durata dell’avvio e uscire</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Mostra la finestra di stampa per file, o per lo standard input.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Termina con 0 inviato, 1 non inviato, 2 uso errato.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Connessione in corso</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Coperchio aperto</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Driver mancante</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Sviluppatore esaurito</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Sviluppatore in esaurimento</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Sportello aperto</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Troppo calda</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>In riscaldamento</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Trattiene i nuovi lavori</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Vassoio della carta assente</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Inchiostro o toner esaurito</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Inchiostro o toner in esaurimento</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Contenitore del toner di scarto quasi pieno</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Contenitore del toner di scarto pieno</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Carta esaurita</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Carta inceppata</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Carta in esaurimento</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Carta necessaria</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Messa in pausa</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Tamburo esaurito</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Tamburo quasi esaurito</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Richiede attenzione</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Vassoio di uscita quasi pieno</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Vassoio di uscita pieno</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Vassoio di uscita assente</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Spenta</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Memoria della stampante piena</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Parzialmente interrotta</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>In arresto</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Non risponde</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Toner esaurito</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Toner in esaurimento</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>Lettera US</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legale US</translation>
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
        <translation>Mezza lettera</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Cartolina (Giappone)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Cartolina doppia (Giappone)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Busta Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Busta %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Busta n. %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Vassoio principale</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Vassoio alternativo</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Cassetto</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassetto %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Vassoio %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentazione manuale</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Vassoio multiuso</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentatore buste</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Alimentazione manuale buste</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Vassoio ad alta capacità</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Vassoio superiore</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Vassoio intermedio</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Vassoio inferiore</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Vassoio sinistro</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Vassoio destro</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Vassoio laterale</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Vassoio posteriore</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Vassoio centrale</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Vassoio foto</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Vassoio per dischi</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Vassoio cartoline</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rotolo di carta</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Rotolo di carta alternativo</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rotolo %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Carta comune</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Carta intestata</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Carta prestampata</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Carta preforata</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Carta riciclata</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Carta fine da lettera</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Carta pesante</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Carta leggera</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Carta patinata</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Carta per getto d’inchiostro</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Carta di qualità</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Carta colorata</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Carta di cotone</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Cartoncino</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Lucido</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Busta</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Carta fotografica</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Carta fotografica lucida</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Carta fotografica molto lucida</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Carta fotografica semilucida</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Carta fotografica satinata</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Carta fotografica opaca</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Carta continua</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Carta con linguette</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Pellicola</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Vassoio di uscita superiore</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Vassoio di uscita intermedio</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Vassoio di uscita inferiore</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Vassoio di uscita sinistro</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Vassoio di uscita destro</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Vassoio di uscita centrale</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Vassoio di uscita laterale</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Vassoio di uscita posteriore</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Lato stampato in alto</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Lato stampato in basso</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Impilatore %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Impilatore</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Casella %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>La mia casella</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Solo nero, senza grigi</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Bozza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Due punti</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tre punti</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Cucitura sul bordo</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Cucitura a sella</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfora</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Due fori</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Tre fori</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Quattro fori</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Fori multipli</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Rilega</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rifila</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Aggiungi una copertina</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Sfalsa i lavori</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastifica</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Piega</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Piega a metà</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Piega a lettera</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Piega a Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Mezza piega a Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Piega a fisarmonica</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Piega a finestra</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doppia piega a finestra</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Piega parallela</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>in alto a sinistra</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>in basso a sinistra</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>in alto a destra</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>in basso a destra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>a sinistra</translation>
    </message>
    <message>
        <source>top</source>
        <translation>in alto</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a destra</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>in basso</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, senza bordi</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Copertina prima</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Copertina dopo</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Password richiesta</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>La stampante %1 chiede la password.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Il server di stampa %1 chiede la password.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Nome utente o password errati. Riprovare.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Dominio:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Invio del lavoro</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 è una cartella. Scegliere un file.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 supera %2, il massimo che si può stampare.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>Impossibile copiare %1 per la stampa: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 è vuoto. Non c’è niente da stampare.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Il documento</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Il documento non ha pagine. Non c’è niente da stampare.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Nessuna anteprima disponibile. Installare cups per vederla.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Nessuna anteprima disponibile: la conversione del documento richiede troppo tempo.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Nessuna anteprima disponibile per questo tipo di documento.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Il documento è protetto da una password. Inserire la password per stamparlo.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Il documento è danneggiato e non può essere mostrato. La stampante potrebbe non riuscire a stamparlo.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Il documento è danneggiato. Potrebbe mancarne una parte.</translation>
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
        <translation>Scegli…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Scegli un documento</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Impossibile aprire il documento. Installare qpdf per aprirlo.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>L’apertura del documento richiede troppo tempo.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Spazio insufficiente per una copia del documento.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Il documento è danneggiato e non può essere aperto.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Password errata. Resta un tentativo.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Password errata. Resta %n tentativo.</numerusform>
            <numerusform>Password errata. Restano %n tentativi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>la ricerca del server di stampa %1 ha richiesto troppo tempo</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>non esiste un server di stampa di nome %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>impossibile connettersi al server di stampa %1 con cifratura</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>impossibile connettersi al server di stampa %1. È in esecuzione?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>il server di stampa %1 ha smesso di leggere il documento</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>la risposta del server di stampa è incompleta</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>la risposta del server di stampa è troppo grande</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>il server di stampa %1 non ha risposto entro %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>il server di stampa %1 ha chiuso la connessione</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>il server di stampa %1 ha reindirizzato a un altro indirizzo (stato HTTP %2); i reindirizzamenti non vengono seguiti</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>il server di stampa %1 chiede una password</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>il server di stampa %1 ha risposto: %2 (stato HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>impossibile leggere la risposta del server di stampa</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>le opzioni del lavoro</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>il nome utente</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>il nome del lavoro</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>il digest del codice di accesso</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>il codice di accesso</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>l’ora del lavoro</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>il codice di accesso della cartella</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>la cartella</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>il numero utente</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>il numero di account</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>il server di stampa non ha assegnato un numero al lavoro</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>impossibile creare un lavoro su «%1»: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>impossibile annullare il lavoro %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>la risposta del server di stampa non contiene il lavoro</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>impossibile determinare che cosa vedono gli altri utenti: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: riga %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>impossibile ottenere il PPD di %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>impossibile salvare il PPD: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>il PPD di %1 è troppo grande</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>impossibile leggere lo standard input</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: è una cartella</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>il lavoro è stato interrotto</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>il server di stampa ha interrotto il lavoro: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>questa stampante non accetta questo tipo di file</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>questa stampante non accetta questo tipo di file (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>impossibile stampare %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>il server di stampa ha rifiutato il lavoro: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>«%1» non accetta lavori</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>«%1» non accetta lavori: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>non esiste una stampante di nome «%1»</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>impossibile aprire la stampante «%1»: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>l’estensione «Gestione lavori» non ha un pannello per la finestra di stampa</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>il pannello non ha un layout</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>impossibile scrivere la risposta della stampante nella cartella temporanea. Il disco è pieno?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>la risposta della stampante non è un elenco di cartelle</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>impossibile trovare JobHandling.pde accanto al programma o nella cartella delle librerie</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>impossibile memorizzare le cartelle: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Gestione lavori per il modello %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>non è stato ancora stampato nulla</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>una preimpostazione non può contenere il nome di questa cartella</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>la preimpostazione «%1» non esiste; questa stampante non ha preimpostazioni</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>la preimpostazione «%1» non esiste; questa stampante ha: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>la preimpostazione «%1» è danneggiata ed è stata lasciata invariata</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>le preimpostazioni di questa stampante sono danneggiate e sono state lasciate invariate</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>il nome di una preimpostazione deve avere al massimo %1 caratteri; sceglierne uno più breve</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>impossibile leggere le preimpostazioni di questa stampante: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>la preimpostazione «%1» è per un altro modello di stampante, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>il server di stampa non conosce più il lavoro</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>impossibile annullare il lavoro %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>nome utente o password errati per la stampante «%1»</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>nome utente o password errati per il server di stampa %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>la stampante «%1» chiede una password</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>impossibile configurare la stampante «%1»: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la stampante non risponde</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>l’indirizzo è sconosciuto</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>connessione rifiutata</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>la connessione è stata chiusa</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>nessuna risposta in tempo</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>la risposta non è leggibile</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>la stampante non è raggiungibile</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>nessun elenco di cartelle da %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: una cartella, non un file PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>nessuna stampante predefinita; sceglierne una con -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>appartiene a un’altra stampante</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>impossibile riavviare il lavoro %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>impossibile modificare il lavoro %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Inserire un’ora, per esempio 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>In attesa della stampante</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>In attesa di 1 altro lavoro</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>In attesa di %n altro lavoro</numerusform>
            <numerusform>In attesa di altri %n lavori</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Trattenuto: la stampante chiede una password</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Trattenuto fino all’ora di stampa</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Trattenuto finché non viene rilasciato</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Stampa della pagina %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Stampa della pagina %1 di %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Interrotto: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Interrotto: la stampante è in pausa</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Attende su %1 finché non vi si inserisce il codice di accesso</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Attende su %1 finché non viene rilasciato lì</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Stampato</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Stampato e conservato su %1 per ristamparlo</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Una copia è stampata, le altre attendono su %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Annullato da %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Annullato dalla stampante</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Interrotto dal server di stampa</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non stampato</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Non si sa se il lavoro sia stato stampato</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Connessione alla stampante</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>In un file PDF le pagine restano come sono. Si possono scegliere solo le pagine e il loro ordine.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Nessuna anteprima disponibile: il disegno della pagina richiede troppo tempo.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Nessuna anteprima disponibile per questo tipo di documento.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Nessuna anteprima disponibile. Installare poppler-utils per vederla.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Nessuna anteprima disponibile: questo documento PDF non può essere letto.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
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
        <translation>Tutte le pagine</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Pagine selezionate</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Il documento finisce a pagina %1. Pagine che verranno stampate: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Blocca %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Inserire l’indirizzo della stampante per ottenere i nomi delle sue cartelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>«%1» non è un indirizzo. Inserire il nome o l’indirizzo IP della stampante.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Questa stampante non archivia documenti, quindi la scelta di una cartella non ha effetto.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Bloccato: questo dato è memorizzato per questa stampante.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Sbloccato: questo dato vale solo per questo lavoro.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>pollici</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Formato personalizzato</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Inserire una larghezza compresa tra %1 e %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Inserire un’altezza compresa tra %1 e %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Documento protetto</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 è protetto da una password. Inserire la password per stampare il documento.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Il documento</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Nessuna pagina selezionata.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Installare qpdf per salvare file PDF.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Il salvataggio richiede troppo tempo.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Spazio insufficiente.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>Impossibile salvare %1. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Percentuale</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzata</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Inserire una percentuale compresa tra %1 e %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ultime usate</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Nessuna preimpostazione</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Salva come preimpostazione…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificata)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Preimpostazioni: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Salva come preimpostazione</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Includi i codici di accesso</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Sostituire la preimpostazione «%1»?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Solo i documenti PDF possono essere salvati come PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Nessuna pagina selezionata.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Foglio %1 di %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Foglio %1 di %2, fronte</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Foglio %1 di %2, retro</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 pagina</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n pagina</numerusform>
            <numerusform>%1, %n pagine</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Totale: 1 foglio di carta</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Totale: %n foglio di carta</numerusform>
            <numerusform>Totale: %n fogli di carta</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Connessione alla stampante…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Salva le pagine selezionate in un file.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Questa stampante non supporta %1. Il lavoro verrà stampato senza.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Stampa su %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Nessun documento selezionato</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lettura del documento…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Il documento è lungo. Il resto verrà letto al momento della stampa.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Nessuna anteprima disponibile. L’applicazione prepara le pagine dopo che si è premuto «Stampa».</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Nessun documento</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Scegli un documento</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documenti PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Il lavoro %1 è stato inviato a %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Salvato come %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Il lavoro non è stato stampato. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salva…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Scegliere un documento da stampare.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Annullamento del lavoro…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Questa stampante non supporta %1 della preimpostazione. Il resto è impostato.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Non trattenuto</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Lavoro %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Impossibile memorizzare i suoi dati.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Stampa di nuovo</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 cartella da %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n cartella da %1</numerusform>
            <numerusform>%n cartelle da %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Il server di stampa non ha più questa stampante. Potrebbe essere stata rimossa.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modello:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Messaggio:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Livello sconosciuto</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Nessuna stampante</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Ricerca di stampanti…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Inserire il nome di una stampante.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Premere Invio per scegliere %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Più stampanti corrispondono. Sceglierne una.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Non esiste una stampante di nome «%1».</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Dettagli della stampante</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Non accetta lavori: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Non accetta lavori</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>In pausa: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 lavoro in attesa</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n lavoro in attesa</numerusform>
            <numerusform>%n lavori in attesa</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>In rete</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Nessuna stampante accetta lavori. Controllare le stampanti nelle impostazioni di sistema e riprovare.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Chi può vedere questo lavoro?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Gli altri utenti possono vedere che questo lavoro esiste, ma nessun dettaglio.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Gli altri utenti possono vedere: %1. Per nasconderlo, aggiungere queste righe alla politica «%2» del server di stampa:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificata)</translation>
    </message>
</context>
</TS>
