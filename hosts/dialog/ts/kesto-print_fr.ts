<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer: turn that on first.</source>
        <translation>Le travail n’est pas conservé sur l’imprimante&#xa0;: activez d’abord «&#xa0;Conserver le travail&#xa0;».</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Le classement rapide n’a pas de code d’accès.</translation>
    </message>
    <message>
        <source>Only a custom folder has a name to type.</source>
        <translation>Seul un dossier personnalisé a un nom à saisir.</translation>
    </message>
    <message>
        <source>Only a custom folder, or one that is guarded, has a pass code.</source>
        <translation>Seul un dossier personnalisé ou protégé a un code d’accès.</translation>
    </message>
    <message>
        <source>The user is told by the user number, not by the login name.</source>
        <translation>L’utilisateur est identifié par son numéro, et non par son nom de connexion.</translation>
    </message>
    <message>
        <source>Locked and remembered for this printer: open the padlock to change it.</source>
        <translation>Verrouillé et mémorisé pour cette imprimante&#xa0;: ouvrez le cadenas pour modifier.</translation>
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
        <source>Hold a job on the printer</source>
        <translation>Conserver un travail sur l’imprimante</translation>
    </message>
    <message>
        <source>Turn on Retention on the pane Job Handling and give a pass code of up to 8 digits. The job waits in the printer until you enter the code there.</source>
        <translation>Dans l’onglet «&#xa0;Gestion des travaux&#xa0;», activez «&#xa0;Conserver le travail&#xa0;» et indiquez un code d’accès de 8 chiffres au plus. Le travail attend dans l’imprimante jusqu’à ce que vous y saisissiez ce code.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Indiquer qui vous êtes</translation>
    </message>
    <message>
        <source>Where the printer counts pages, give your user number or your login name on the page User and Account.</source>
        <translation>Si l’imprimante compte les pages, indiquez votre numéro d’utilisateur ou votre nom de connexion dans l’onglet «&#xa0;Utilisateur et compte&#xa0;».</translation>
    </message>
    <message>
        <source>Have an entry remembered</source>
        <translation>Mémoriser une saisie</translation>
    </message>
    <message>
        <source>Close the padlock beside an entry. It is offered again for this printer; open the padlock to change it.</source>
        <translation>Fermez le cadenas à côté d’une saisie. Elle sera de nouveau proposée pour cette imprimante&#xa0;; ouvrez le cadenas pour la modifier.</translation>
    </message>
    <message>
        <source>Choose a folder of the printer</source>
        <translation>Choisir un dossier de l’imprimante</translation>
    </message>
    <message>
        <source>Get Folder Names asks the printer at the address above for its folders.</source>
        <translation>«&#xa0;Obtenir les noms des dossiers&#xa0;» demande ses dossiers à l’imprimante dont l’adresse figure au-dessus.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Alt and the underlined letter go to an entry, with Shift to its padlock. Enter prints, Escape cancels, Ctrl+R shows a pass code while the cursor is in it.</source>
        <translation>Alt et la lettre soulignée mènent à une saisie, avec Maj à son cadenas. Entrée imprime, Échap annule, Ctrl+R affiche un code d’accès tant que le curseur s’y trouve.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Aide à l’impression</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
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
        <source>Print quality</source>
        <translation>Qualité d’impression</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1&#xa0;:</translation>
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
    <message>
        <source>%1 is a folder</source>
        <translation>%1 est un dossier</translation>
    </message>
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
        <source>%1 is larger than %2, the most that is read.</source>
        <translation>%1 dépasse %2, la taille maximale qui est lue.</translation>
    </message>
    <message>
        <source>%1 cannot be stored: %2</source>
        <translation>%1 ne peut pas être enregistré&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 est vide. Il n’y a rien à imprimer.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Le document</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Le document n’a aucune page. Il n’y a rien à imprimer.</translation>
    </message>
    <message>
        <source>The document is protected by a password and cannot be printed. Save a copy without the password and print that.</source>
        <translation>Le document est protégé par un mot de passe et ne peut pas être imprimé. Enregistrez une copie sans mot de passe et imprimez-la.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>Choisir le document</translation>
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
        <source>the print server&apos;s answer does not have the job</source>
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
</context>
<context>
    <name>kesto::GeneralPane</name>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>These:</source>
        <translation>Plage&#xa0;:</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>Pages to print, such as 1-3, 5</source>
        <translation>Pages à imprimer, par exemple 1-3, 5</translation>
    </message>
    <message>
        <source>The printer cannot do these together: %1.</source>
        <translation>L’imprimante ne peut pas combiner ces réglages&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Saisissez des numéros ou des plages de pages, par exemple 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends with page %1. Enter pages up to it.</source>
        <translation>Le document se termine à la page %1. Saisissez des pages jusqu’à celle-ci.</translation>
    </message>
    <message>
        <source>The document ends with page %1. Only %2 will be printed.</source>
        <translation>Le document se termine à la page %1. Seul %2 sera imprimé.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>There is no preview: drawing the page takes too long.</source>
        <translation>Aucun aperçu&#xa0;: le dessin de la page prend trop de temps.</translation>
    </message>
    <message>
        <source>There is no preview of this kind of document.</source>
        <translation>Aucun aperçu pour ce type de document.</translation>
    </message>
    <message>
        <source>There is no preview: the program pdftoppm of poppler-utils is missing.</source>
        <translation>Aucun aperçu&#xa0;: le programme pdftoppm de poppler-utils est absent.</translation>
    </message>
    <message>
        <source>There is no preview: the document cannot be read as PDF.</source>
        <translation>Aucun aperçu&#xa0;: le document n’est pas lisible comme PDF.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Verrouiller %1</translation>
    </message>
    <message>
        <source>On: the entry is locked, and remembered for this printer.</source>
        <translation>Activé&#xa0;: la saisie est verrouillée et mémorisée pour cette imprimante.</translation>
    </message>
    <message>
        <source>Off: the entry is for this job alone.</source>
        <translation>Désactivé&#xa0;: la saisie ne vaut que pour ce travail.</translation>
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
        <source>This printer does not file documents: the choice of a folder has no effect.</source>
        <translation>Cette imprimante ne classe pas les documents&#xa0;: le choix d’un dossier est sans effet.</translation>
    </message>
</context>
<context>
    <name>kesto::PortalPrint</name>
    <message>
        <source>Current page</source>
        <translation>Page actuelle</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>No presets for this printer</source>
        <translation>Aucun préréglage pour cette imprimante</translation>
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
        <source>Keep the pass codes, too</source>
        <translation>Enregistrer aussi les codes d’accès</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>No pages are chosen.</source>
        <translation>Aucune page n’est choisie.</translation>
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
        <source>Total: %1 sheets of paper</source>
        <translation>Total&#xa0;: %1 feuilles de papier</translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>Choisir le document</translation>
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
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Interrogation du serveur d’impression…</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>aucun choisi</translation>
    </message>
    <message>
        <source>The document is being read…</source>
        <translation>Lecture du document…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>Job %1 sent to %2</source>
        <translation>Travail %1 envoyé à %2</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Non imprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no document to print yet.</source>
        <translation>Il n’y a pas encore de document à imprimer.</translation>
    </message>
    <message>
        <source>Stopping the job…</source>
        <translation>Annulation du travail…</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Imprimer sur %1</translation>
    </message>
    <message>
        <source>The application draws the pages after the choice.</source>
        <translation>L’application dessine les pages après le choix.</translation>
    </message>
    <message>
        <source>Job %1 sent to %2; its entries cannot be remembered</source>
        <translation>Travail %1 envoyé à %2&#xa0;; ses entrées ne peuvent pas être mémorisées</translation>
    </message>
    <message>
        <source>The document is long. Print reads the rest.</source>
        <translation>Le document est long. Le reste est lu à l’impression.</translation>
    </message>
    <message>
        <source>This printer cannot do %1. The job is printed without it.</source>
        <translation>Cette imprimante ne permet pas %1. Le travail est imprimé sans cela.</translation>
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
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>There is no printer that takes jobs.</source>
        <translation>Aucune imprimante n’accepte de travaux.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Who sees this job?</source>
        <translation>Qui voit ce travail&#xa0;?</translation>
    </message>
    <message>
        <source>Other users of the print server see that there is a job, and no more of it.</source>
        <translation>Les autres utilisateurs du serveur d’impression voient qu’il y a un travail, rien de plus.</translation>
    </message>
    <message>
        <source>Other users of the print server see: %1. These lines in its policy %2 hide it:</source>
        <translation>Les autres utilisateurs du serveur d’impression voient&#xa0;: %1. Ces lignes dans sa règle %2 le masquent&#xa0;:</translation>
    </message>
</context>
</TS>
