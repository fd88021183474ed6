<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>doit être %1 ou %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>argument inattendu</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 nécessite une valeur</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 n’accepte pas de valeur</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 n’est pas compatible avec %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Essayez «&#xa0;%1 --help&#xa0;».</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 nécessite %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la ligne est trop longue</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>la ligne n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>la ligne est vide</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>aucun terminal pour poser la question</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1&#xa0;: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>doit être compris entre 0.1 et 3600 secondes</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>le nombre de copies doit être compris entre %1 et %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>la priorité doit être comprise entre %1 et %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>le nombre de secondes doit être compris entre %1 et %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 est indiqué deux fois</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>abandonner si le serveur reste muet aussi longtemps (5 par défaut)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>afficher ce texte, ou la version</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Utilisation&#xa0;: %1 [OPTION]... [FICHIER]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>comme pour la commande d’impression habituelle</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Le classement rapide n’a pas de code d’accès.</translation>
    </message>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Le travail n’est pas conservé sur l’imprimante. Activez d’abord «&#xa0;Conserver le travail&#xa0;».</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Seul un dossier personnalisé ou protégé a un code d’accès.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Cette imprimante vous identifie par votre numéro d’utilisateur, et non par votre nom de connexion.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Cette saisie est verrouillée et mémorisée pour cette imprimante. Ouvrez le cadenas pour la modifier.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Seul un dossier personnalisé a besoin d’un nom. Choisissez d’abord «&#xa0;Dossier personnalisé&#xa0;».</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Masquer les chiffres</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Afficher les chiffres</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Say who you are</source>
        <translation>Indiquer qui vous êtes</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Aide à l’impression</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Choisir une imprimante</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Choisissez une imprimante dans la liste. Si la liste est longue, saisissez une partie du nom de l’imprimante et appuyez sur Entrée. La ligne sous la liste indique si l’imprimante est prête.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Imprimer une partie des pages</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Choisissez «&#xa0;Pages sélectionnées&#xa0;» et saisissez des numéros ou des plages de pages, par exemple 1-3, 5. Une plage peut être ouverte&#xa0;: 5- imprime la page 5 et toutes les suivantes.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Imprimer en recto verso</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Choisissez «&#xa0;Bord long&#xa0;» pour des pages qui se tournent comme celles d’un livre, ou «&#xa0;Bord court&#xa0;» pour des pages qui se tournent comme celles d’un bloc-notes.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Voir ce qui sera imprimé</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Conserver un travail sur l’imprimante avec un code d’accès</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Réutiliser une saisie</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Fermez le cadenas à côté d’une saisie. La saisie est alors mémorisée pour cette imprimante. Pour la modifier, ouvrez le cadenas.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Choisir un dossier de l’imprimante</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Enregistrer vos réglages comme préréglage</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Cliquez sur «&#xa0;Préréglages&#xa0;» et choisissez «&#xa0;Enregistrer comme préréglage&#xa0;». Pour réutiliser les réglages, choisissez-y le préréglage. Les codes d’accès ne sont enregistrés que si vous les incluez.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Voir ce que les autres peuvent voir d’un travail</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Annuler un travail</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Utiliser le clavier</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt et une lettre soulignée mènent à un élément&#xa0;; Alt, Maj et la lettre mènent au cadenas à côté. Entrée imprime, Échap annule et F1 ouvre cette aide. Ctrl+R affiche les chiffres d’un code d’accès tant que le curseur s’y trouve.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Sous «&#xa0;Gestion des travaux&#xa0;», activez «&#xa0;Conserver le travail&#xa0;» et saisissez un code d’accès de 8 chiffres au plus. Le travail attend dans l’imprimante jusqu’à ce que quelqu’un y saisisse ce code. «&#xa0;Conserver après impression&#xa0;» garde le travail une fois imprimé. «&#xa0;Imprimer une épreuve&#xa0;» imprime un exemplaire et retient les autres.</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Certaines imprimantes demandent qui imprime. Sous «&#xa0;Utilisateur et compte&#xa0;», saisissez votre numéro d’utilisateur, ou votre nom de connexion et votre mot de passe.</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>L’aperçu montre les feuilles de papier telles qu’elles sortiront de l’imprimante. Tournez les pages avec les flèches au-dessous ou avec Page préc. et Page suiv., et agrandissez-les avec Ctrl et la molette de la souris.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Enregistrer les pages dans un fichier PDF</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Imprimer plusieurs pages par feuille</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Sous «&#xa0;Mise en page&#xa0;», choisissez le nombre de pages par feuille, leur ordre et une bordure. Sur une imprimante qui produit des livrets, «&#xa0;Livret&#xa0;» dispose les pages de sorte que les feuilles pliées se lisent comme un livre.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Adapter les pages au papier</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Sous «&#xa0;Mise en page&#xa0;», «&#xa0;Mise à l’échelle&#xa0;» détermine ce qu’il advient des pages plus grandes ou plus petites que le papier. «&#xa0;Ajuster au papier&#xa0;» les montre entières, «&#xa0;Remplir le papier&#xa0;» ne laisse aucune marge et peut couper les bords, et «&#xa0;Taille réelle&#xa0;» les laisse telles quelles. Le pourcentage de «&#xa0;Personnalisée&#xa0;» s’applique aux images.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Choisir quand imprimer</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Sous «&#xa0;Travail&#xa0;», «&#xa0;Imprimer&#xa0;» retient le travail sur le serveur d’impression jusqu’à une heure donnée ou, avec «&#xa0;En attente&#xa0;», jusqu’à ce que vous le libériez dans la liste des travaux d’impression du système. Parmi les travaux qui attendent, celui dont la priorité est la plus élevée est imprimé en premier.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Ajouter des pages de couverture et des informations de facturation</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Sous «&#xa0;Travail&#xa0;», choisissez une page de couverture à imprimer avant ou après le document. Les informations de facturation, par exemple un numéro de projet, sont conservées avec le travail dans les journaux du serveur d’impression.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Trouver une autre option de l’imprimante</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>«&#xa0;Autres options&#xa0;» contient toutes les autres options de l’imprimante. Saisissez une partie d’un nom dans le filtre pour ne voir que les options qui la contiennent.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Choisissez «&#xa0;Enregistrer au format PDF&#xa0;» dans la liste des imprimantes et cliquez sur «&#xa0;Enregistrer&#xa0;». Le fichier contient les pages sélectionnées. Seuls les documents PDF peuvent être enregistrés, et seuls les pages et leur ordre peuvent être choisis.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Imprimer un document protégé par un mot de passe</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Quand vous cliquez sur «&#xa0;Imprimer&#xa0;», la boîte de dialogue demande le mot de passe du document. Elle imprime une copie sans mot de passe, que vous seul pouvez lire et qui est supprimée ensuite.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Sous «&#xa0;Gestion des travaux&#xa0;», activez «&#xa0;Conserver le travail&#xa0;». Sous «&#xa0;Classement du document&#xa0;», choisissez «&#xa0;Dossier personnalisé&#xa0;» et saisissez le nom d’un dossier. «&#xa0;Obtenir les noms des dossiers&#xa0;» demande ses dossiers à l’imprimante, afin que vous puissiez en choisir un dans la liste.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Dans le résumé, cliquez sur «&#xa0;Qui peut voir ce travail&#xa0;?&#xa0;». La réponse indique quels détails d’un travail le serveur d’impression montre aux autres utilisateurs, et comment les masquer.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Cliquez sur «&#xa0;Annuler&#xa0;» pendant l’envoi du travail. Tant que la boîte de dialogue suit le travail, cliquez sur «&#xa0;Annuler le travail&#xa0;»&#xa0;; «&#xa0;Imprimer à nouveau&#xa0;» envoie encore une fois un travail qui a échoué. Une fois la boîte de dialogue fermée, utilisez la liste des travaux d’impression du système.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Current page</source>
        <translation>Page actuelle</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Personnalisé %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Personnalisé %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordre des pages</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafage</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Imprimer seulement</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Pliage</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Informations de facturation</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Pages de couverture</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Pages impaires</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Pages paires</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>De gauche à droite, de haut en bas</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>De gauche à droite, de bas en haut</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>De droite à gauche, de haut en bas</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>De droite à gauche, de bas en haut</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>De haut en bas, de gauche à droite</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>De haut en bas, de droite à gauche</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>De bas en haut, de gauche à droite</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>De bas en haut, de droite à gauche</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Ligne simple</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Ligne simple épaisse</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Ligne double</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Ligne double épaisse</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Ajuster au papier</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Remplir le papier</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
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
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>À %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>L’impression recto verso n’est pas possible sur %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 «&#xa0;%2&#xa0;» n’est pas possible avec %3 «&#xa0;%4&#xa0;».</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Désactiver le recto verso</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Régler %1 sur %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Pages %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copie</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Saisissez des numéros ou des plages de pages, par exemple 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Le document se termine à la page %1. Saisissez des numéros de page jusqu’à %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copie</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1&#xa0;: cette imprimante ne le propose pas</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>cette imprimante ne demande pas qui imprime</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 doit avoir %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>au plus %n chiffre</numerusform>
            <numerusform>au plus %n chiffres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>au plus %n caractère</numerusform>
            <numerusform>au plus %n caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 n’est pas compatible avec --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 nécessite --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 nécessite --folder NAME pour un dossier à code d’accès ou un dossier personnalisé</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 n’est pas compatible avec un numéro d’utilisateur</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Code d’accès</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>code d’accès du travail conservé</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main ou le nom d’un dossier</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Code d’accès du dossier</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>code d’accès du dossier</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>nom de connexion</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>mot de passe du nom de connexion</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>numéro d’utilisateur au lieu d’une connexion</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>numéro de compte</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>nom d’utilisateur sur l’imprimante</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>nom du travail sur l’imprimante</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>le numéro d’utilisateur manque&#xa0;; indiquez-le avec %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>le nom de connexion manque&#xa0;; indiquez-le avec %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p équivaut à -q et -w à -m&#xa0;; les autres sont sans effet</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>tiennent lieu de file quand aucun travail n’est envoyé</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>afficher les réglages du travail sans rien envoyer&#xa0;; ne garder que ce que demandent --remember, --forget ou --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>afficher le résumé du panneau au lieu des réglages</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>lister les files, ou celles qui proposent la gestion des travaux, et les imprimantes du réseau</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>récupérer, mémoriser et lister les dossiers de l’imprimante</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>montrer ce que les autres utilisateurs du serveur voient des options d’un travail, et comment le masquer</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>afficher ce que devient le travail jusqu’à ce qu’il soit imprimé ou conservé sur l’imprimante&#xa0;; se termine sinon par 1, ou par 4 s’il attend encore après SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>afficher du JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>le mot de passe que demande le serveur ou l’imprimante</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>conserver le travail&#xa0;: sans l’imprimer, après l’impression ou après une épreuve</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>ne pas conserver le travail</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>lire X (pin, folder-pin, password) dans la première ligne d’un fichier ou de l’entrée standard, «&#xa0;-&#xa0;», ou le demander au terminal&#xa0;: d’autres utilisateurs peuvent voir une ligne de commande</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>mémoriser les saisies X pour les prochains travaux de cette file</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>ne plus les mémoriser</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>partir d’un préréglage de cette file</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>enregistrer les réglages comme préréglage, les codes d’accès seulement avec --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>ne faire que cela, pour -d ou --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Imprime des fichiers, ou l’entrée standard, avec la gestion des travaux d’une imprimante.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Se termine par 0 réussi, 1 échec, 2 mauvaise utilisation, 3 refusé par le panneau, 4 en attente.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>fin de l’attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>sur le réseau</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>prête</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>impression en cours</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>n’accepte pas de travaux</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 travail</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n travail</numerusform>
            <numerusform>%n travaux</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>cette imprimante n’a pas de liste de dossiers</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>l’adresse de l’imprimante est inconnue&#xa0;; indiquez-la avec --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1&#xa0;: les autres utilisateurs ne voient aucune option d’un travail.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1&#xa0;: les autres utilisateurs voient d’un travail&#xa0;: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Un administrateur les masque dans cupsd.conf, dans la règle de l’imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Un administrateur les masque dans cupsd.conf, dans &lt;Policy %1&gt;&#xa0;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder est sans effet&#xa0;: cette imprimante ne classe pas les documents</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>les saisies ne peuvent pas être mémorisées&#xa0;: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>le travail a été envoyé, mais&#xa0;: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>un travail brut (raw) contourne le pilote, et la gestion des travaux avec lui</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>l’imprimante «&#xa0;%1&#xa0;» ne propose pas la gestion des travaux</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m est ignoré&#xa0;: il va avec un nouveau travail</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i modifie un travail déjà envoyé&#xa0;; n’indiquez pas de fichiers</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i modifie un travail là où il est&#xa0;; n’indiquez ni -d ni --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i ne peut pas modifier la gestion des travaux d’un travail déjà envoyé</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait nécessite un travail à imprimer</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>une liste n’est pas compatible avec les options d’un travail</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>aucune imprimante n’est indiquée&#xa0;; choisissez-la avec -d ou --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd nécessite --dry-run ou --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>une seule saisie peut être lue sur l’entrée standard</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>ne doit pas être vide</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>doit être une heure comme 18:30 (UTC), hold, immediate, resume, restart ou un mot-clé du serveur d’impression comme evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>doit être un travail comme 12 ou QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 est ignoré&#xa0;: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS n’a pas de formulaires</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS n’a pas de modes&#xa0;; utilisez -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>le jeu de caractères est toujours UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>le serveur d’impression détecte le type&#xa0;; utilisez -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember et --forget ne peuvent pas nommer tous deux %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>n’utilisez qu’une seule option parmi -i, --dry-run, --list, --folders, --check, --list-presets et --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Mot de passe incorrect. Mot de passe de %1 pour %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Mot de passe de %1 pour %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1&#xa0;; indiquez-le avec --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>envoi du document %1&#xa0;: %2 Mio, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>envoi du document %1&#xa0;: %2 Mio</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>modifier un travail déjà envoyé&#xa0;: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>le mot de passe du fichier n’est pas envoyé à «&#xa0;%1&#xa0;», une imprimante du réseau qui n’est pas configurée sur le serveur d’impression</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas configurée sur le serveur d’impression&#xa0;; utilisation de l’imprimante du réseau&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1&#xa0;:</translation>
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
        <translation>aucune imprimante n’est disponible</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>ouvrir cette section</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>enregistrer une image de la boîte de dialogue et quitter</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>afficher la durée du démarrage et quitter</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Affiche la boîte de dialogue d’impression pour des fichiers, ou pour l’entrée standard.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Se termine par 0 envoyé, 1 non envoyé, 2 mauvaise utilisation.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Capot ouvert</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Pilote manquant</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Plus de développeur</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Développeur faible</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Porte ouverte</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Trop chaud</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Préchauffage</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Nouvelles tâches retenues</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Bac à papier absent</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Plus d’encre ou de toner</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Encre ou toner faible</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Bac de toner usagé presque plein</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Bac de toner usagé plein</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Plus de papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Bourrage papier</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Papier faible</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papier requis</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Mise en pause</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Tambour usé</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Tambour presque usé</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Intervention nécessaire</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Bac de sortie presque plein</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Bac de sortie plein</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Bac de sortie absent</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Éteinte</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Mémoire de l’imprimante pleine</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Arrêtée en partie</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Arrêt en cours</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Ne répond pas</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Plus de toner</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Toner faible</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal US</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloïd</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Demi-lettre</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Carte postale (Japon)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Carte postale double (Japon)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Enveloppe Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Enveloppe %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Enveloppe n° %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bac principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bac auxiliaire</translation>
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
        <translation>Bac %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Bac multifonction</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Chargeur d’enveloppes</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Alimentation manuelle d’enveloppes</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bac grande capacité</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bac supérieur</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bac du milieu</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bac inférieur</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bac gauche</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bac droit</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bac latéral</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bac arrière</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bac central</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bac photo</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bac pour disques</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Bac pour cartes postales</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rouleau de papier</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Rouleau auxiliaire</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rouleau %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papier à en-tête</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Papier préimprimé</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Papier perforé</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Papier recyclé</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Papier fort</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Papier épais</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Papier fin</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Papier couché</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papier jet d’encre</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papier de qualité</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Papier de couleur</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Papier coton</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Papier cartonné</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Enveloppe</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papier photo</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papier photo brillant</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papier photo très brillant</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papier photo semi-brillant</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papier photo satiné</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papier photo mat</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papier continu</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Papier à onglets</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Bac de sortie supérieur</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Bac de sortie du milieu</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Bac de sortie inférieur</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Bac de sortie gauche</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Bac de sortie droit</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Bac de sortie central</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Bac de sortie latéral</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Bac de sortie arrière</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face imprimée dessus</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face imprimée dessous</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Empileur %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Empileur</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Boîte aux lettres %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Ma boîte aux lettres</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Noir uniquement, sans gris</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafer</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Deux agrafes</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Trois agrafes</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Piqûre sur le bord</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Piqûre à cheval</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforer</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Perforer deux trous</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Perforer trois trous</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Perforer quatre trous</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Perforer plusieurs trous</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Ajouter une couverture</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Décaler les travaux</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastifier</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Plier en deux</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Pli roulé</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Pli en Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Demi-pli en Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Pli accordéon</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Pli fenêtre</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Pli fenêtre double</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Pli parallèle</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>en haut à gauche</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>en bas à gauche</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>en haut à droite</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sans marges</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Page de couverture avant</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Page de couverture après</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Mot de passe requis</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>L’imprimante %1 demande votre mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Le serveur d’impression %1 demande votre mot de passe.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Nom d’utilisateur ou mot de passe incorrect. Réessayez.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domaine&#xa0;:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Envoi du travail</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 est vide. Il n’y a rien à imprimer.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Le document</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 est un dossier. Choisissez un fichier.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 dépasse %2, la taille maximale qui peut être imprimée.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 ne peut pas être copié pour l’impression&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Le document n’a aucune page. Il n’y a rien à imprimer.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Le document est endommagé et ne peut pas être affiché. L’imprimante ne pourra peut-être pas l’imprimer.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Le document est endommagé. Il en manque peut-être une partie.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Le document est protégé par un mot de passe. Saisissez le mot de passe pour l’imprimer.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Aucun aperçu n’est disponible. Installez cups pour en voir un.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Aucun aperçu n’est disponible, car la conversion du document prend trop de temps.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Aucun aperçu n’est disponible pour ce type de document.</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Choisir un document</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>L’ouverture du document prend trop de temps.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Il n’y a pas assez de place pour une copie du document.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Le document est endommagé et ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Mot de passe incorrect. Il reste un essai.</translation>
    </message>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Le document ne peut pas être ouvert. Installez qpdf pour l’ouvrir.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Mot de passe incorrect. Il reste %n essai.</numerusform>
            <numerusform>Mot de passe incorrect. Il reste %n essais.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>the digest of the pass code</source>
        <translation>l’empreinte du code d’accès</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>le code d’accès</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>l’heure du travail</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>le code d’accès du dossier</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>le dossier</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>le numéro d’utilisateur</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>le numéro de compte</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>le nom d’utilisateur</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>le nom du travail</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>impossible de savoir ce que voient les autres utilisateurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>l’extension de gestion des travaux n’a pas de panneau pour la boîte de dialogue d’impression</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>le panneau n’a pas de mise en page</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>JobHandling.pde est introuvable à côté du programme et dans le dossier des bibliothèques</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1&#xa0;: ligne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>impossible d’enregistrer le fichier PPD&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>impossible d’obtenir le fichier PPD de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>un préréglage ne peut pas garder le nom de ce dossier</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>il n’y a pas de préréglage «&#xa0;%1&#xa0;»&#xa0;; cette imprimante n’a pas de préréglages</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>il n’y a pas de préréglage «&#xa0;%1&#xa0;»&#xa0;; cette imprimante a&#xa0;: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>le préréglage «&#xa0;%1&#xa0;» est endommagé et reste tel quel</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>les préréglages de cette imprimante sont endommagés et n’ont pas été modifiés</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>le préréglage «&#xa0;%1&#xa0;» est pour un autre modèle d’imprimante, %2</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>l’entrée standard ne peut pas être lue</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1&#xa0;: est un dossier</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>le travail a été interrompu</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>la réponse du serveur d’impression est incomplète</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>la réponse du serveur d’impression est illisible</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>la réponse du serveur d’impression est trop volumineuse</translation>
    </message>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>la recherche du serveur d’impression %1 a pris trop de temps</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>il n’y a pas de serveur d’impression nommé %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>connexion chiffrée au serveur d’impression %1 impossible</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>connexion impossible au serveur d’impression %1. Est-il en marche&#xa0;?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>le serveur d’impression %1 a cessé de lire le document</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>le serveur d’impression %1 n’a pas répondu en %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>le serveur d’impression %1 a fermé la connexion</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>le serveur d’impression %1 redirige vers une autre adresse (état HTTP %2)&#xa0;; les redirections ne sont pas suivies</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>le serveur d’impression %1 demande un mot de passe</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>le serveur d’impression %1 répond&#xa0;: %2 (état HTTP %3)</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>le serveur d’impression n’a pas donné de numéro au travail</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>impossible de créer un travail sur «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>le travail %1-%2 ne peut pas être annulé&#xa0;: %3</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>le PPD de %1 est trop grand</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>le serveur d’impression a refusé le travail&#xa0;: %1</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>impossible d’imprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>impossible d’ouvrir l’imprimante «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>le serveur d’impression a mis fin au travail&#xa0;: %1</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>le nom d’un préréglage compte au plus %1 caractères&#xa0;; choisissez-en un plus court</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>impossible de lire les préréglages de cette imprimante&#xa0;: %1</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>les options du travail</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>la réponse du serveur d’impression ne contient aucun travail</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>les dossiers ne peuvent pas être mémorisés&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>impossible d’écrire la réponse de l’imprimante dans le dossier temporaire. Le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>la réponse de l’imprimante n’est pas une liste de dossiers</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>cette imprimante n’accepte pas ce type de fichier (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>«&#xa0;%1&#xa0;» n’accepte pas de travaux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’accepte pas de travaux&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>il n’y a pas d’imprimante nommée «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>cette imprimante n’accepte pas ce type de fichier</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Gestion des travaux pour le modèle %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>rien n’a encore été imprimé</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>le serveur d’impression ne connaît plus le travail</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>impossible d’annuler le travail %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>nom d’utilisateur ou mot de passe incorrect pour l’imprimante «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>nom d’utilisateur ou mot de passe incorrect pour le serveur d’impression %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>l’imprimante «&#xa0;%1&#xa0;» demande un mot de passe</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>impossible de configurer l’imprimante «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>l’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>l’adresse est inconnue</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>connexion refusée</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>la connexion a été fermée</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>pas de réponse dans le délai</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>la réponse est illisible</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>l’imprimante est injoignable</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>pas de liste de dossiers de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1&#xa0;: un dossier, pas un fichier PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>aucune imprimante par défaut n’est définie&#xa0;; choisissez-en une avec -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>il appartient à une autre imprimante</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>impossible de relancer le travail %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>impossible de modifier le travail %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>At</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Saisissez une heure, par exemple 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>En attente de l’imprimante</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>En attente d’un autre travail</translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Retenu&#xa0;: l’imprimante demande un mot de passe</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Retenu jusqu’à l’heure d’impression</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Retenu jusqu’à sa libération</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Impression de la page %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Impression de la page %1 sur %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Arrêté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Arrêté&#xa0;: l’imprimante est en pause</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Attend sur %1 que vous y saisissiez votre code d’accès</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Attend sur %1 que vous le libériez</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Imprimé</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Imprimé et conservé sur %1 pour une réimpression</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Un exemplaire est imprimé, les autres attendent sur %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Annulé par %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Annulé sur l’imprimante</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Arrêté par le serveur d’impression</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non imprimé</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>On ne sait pas si le travail est imprimé</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>En attente de %n autre travail</numerusform>
            <numerusform>En attente de %n autres travaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Connexion à l’imprimante</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>Un fichier PDF conserve ses pages telles quelles. Seules les pages et leur ordre peuvent être choisis.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Aucun aperçu n’est disponible, car le dessin de la page prend trop de temps.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Aucun aperçu n’est disponible pour ce type de document.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Aucun aperçu n’est disponible. Installez poppler-utils pour en voir un.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Aucun aperçu n’est disponible, car ce document PDF ne peut pas être lu.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Pages sélectionnées</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Le document se termine à la page %1. Pages qui seront imprimées&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Verrouiller %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Saisissez l’adresse de l’imprimante pour obtenir les noms de ses dossiers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse. Saisissez le nom ou l’adresse IP de l’imprimante.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Cette imprimante ne classe pas les documents&#xa0;; le choix d’un dossier est donc sans effet.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Verrouillé&#xa0;: cette saisie est mémorisée pour cette imprimante.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Déverrouillé&#xa0;: cette saisie ne vaut que pour ce travail.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Taille personnalisée</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Saisissez une largeur comprise entre %1 et %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Saisissez une hauteur comprise entre %1 et %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Document protégé</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 est protégé par un mot de passe. Saisissez le mot de passe pour imprimer le document.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Le document</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>Saving takes too long.</source>
        <translation>L’enregistrement prend trop de temps.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Il n’y a pas assez de place.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Aucune page n’est sélectionnée.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Installez qpdf pour enregistrer des fichiers PDF.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 ne peut pas être enregistré. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Saisissez un pourcentage compris entre %1 et %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Supprimer un préréglage</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Inclure les codes d’accès</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernier utilisé</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Aucun préréglage</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Préréglages&#xa0;: %1</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Remplacer le préréglage «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Feuille %1 sur %2, recto</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Feuille %1 sur %2, verso</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Total&#xa0;: 1 feuille de papier</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Aucune page n’est sélectionnée.</translation>
    </message>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Seuls les documents PDF peuvent être enregistrés au format PDF.</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 page</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n page</numerusform>
            <numerusform>%1, %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Total&#xa0;: %n feuille de papier</numerusform>
            <numerusform>Total&#xa0;: %n feuilles de papier</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document&#xa0;:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Imprimer sur %1</translation>
    </message>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Connexion à l’imprimante…</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Cette imprimante ne prend pas en charge %1. Le travail sera imprimé sans cette option.</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Aucun document sélectionné</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lecture du document…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Le document est long. Le reste est lu à l’impression.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Aucun aperçu n’est disponible. L’application prépare les pages une fois que vous avez cliqué sur «&#xa0;Imprimer&#xa0;».</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Choisir un document</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Le travail %1 a été envoyé à %2.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Le travail n’a pas été imprimé. %1</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Choisissez un document à imprimer.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Annulation du travail…</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Non conservé</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer au format PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Enregistre les pages sélectionnées dans un fichier.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Cette imprimante ne prend pas en charge %1 du préréglage. Le reste est appliqué.</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Travail %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Ses saisies n’ont pas pu être mémorisées.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Imprimer à nouveau</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Annuler le travail</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 dossier de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n dossier de %1</numerusform>
            <numerusform>%n dossiers de %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Le serveur d’impression n’a plus cette imprimante. Elle a peut-être été supprimée.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modèle&#xa0;:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Message&#xa0;:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Niveau inconnu</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Aucune imprimante</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Saisissez le nom d’une imprimante.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Appuyez sur Entrée pour choisir %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Plusieurs imprimantes correspondent. Choisissez-en une.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’imprimante nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Détails de l’imprimante</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>N’accepte pas de travaux&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>N’accepte pas de travaux</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pause&#xa0;: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 travail en attente</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer au format PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n travail en attente</numerusform>
            <numerusform>%n travaux en attente</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>Sur le réseau</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Aucune imprimante n’accepte de travaux. Vérifiez les imprimantes dans les paramètres du système, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Qui peut voir ce travail&#xa0;?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Les autres utilisateurs peuvent voir que ce travail existe, mais aucun de ses détails.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Les autres utilisateurs peuvent voir %1. Pour le masquer, ajoutez ces lignes à la politique «&#xa0;%2&#xa0;» du serveur d’impression&#xa0;:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
</context>
</TS>
