<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Les modifications d’autres programmes ne sont pas affichées, car QT_NO_GLIB est définie. Lancez la fenêtre sans elle.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Les modifications d’autres programmes ne sont pas affichées, car le bus de messages de la session manque ou s’est arrêté. Dès qu’il y en a un, relancez la fenêtre.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, qui n’est pas un choix</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>« %1 » ne peut pas être appliqué. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>« %1 » ne change rien : tous ses réglages sont déjà enregistrés.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>« %1 » change ces réglages :</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>Absent de ce club et inchangé : %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Appliquer un club</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>&amp;Clubs</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>&amp;Enregistrer comme club…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Enregistrer comme club</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Nom du club ; tous les réglages mémorisés sont enregistrés sous ce nom :</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Il existe déjà un club « %1 ». Le remplacer ?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>&amp;Supprimer un club</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Supprimer un club</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>Supprimer le club « %1 » ? Cette action est irréversible.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Le fichier ne peut pas être lu : %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>Le fichier est trop grand pour contenir des réglages.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>Le fichier contient une erreur : %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>Le club a besoin d’un nom.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>Le fichier de réglages ne peut pas être lu : %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>Le club ne peut pas être enregistré : %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Enregistré, mais pas en totalité : %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Aucune table de mixage n’est connectée.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>La table %1 refuse la valeur.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>La table %1 ne répond pas.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>La table %1 a été débranchée ou éteinte.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>Vous n’avez pas le droit d’ouvrir la table %1.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>La requête à la table %1 a échoué.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>La table %1 refuse ce qu’on lui demande.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>La bibliothèque de la table n’accepte pas ce choix.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Non enregistré : %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>Entrée USB %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>Sortie USB %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>Niveau de sortie USB</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, qui n’est pas un choix</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Un autre programme modifie les réglages. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Ceci ne peut pas être annulé : %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Laissé tel quel, car un autre programme l’a modifié depuis : %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>L’historique des modifications ne peut pas être écrit ; la même étape pourrait être annulée une nouvelle fois.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Ce choix ne peut pas être renvoyé. Choisissez-le encore une fois.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Rien ne peut être annulé : %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Rien n’est enregistré, donc rien n’a été envoyé.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Enregistré sous « %1 ».</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Annulé : %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>« %1 » a été supprimé.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>Le club « %1 » ne peut pas être supprimé : %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Réglages de la table de mixage</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Table</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>Tout &amp;renvoyer</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Tout envoyer à chaque &amp;branchement</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>&amp;Vérifier à nouveau</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Envoie aux tables ce qui est enregistré ; ne change rien.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>On ne sait pas si toutes les tables de mixage ont ce qui est enregistré. Renvoyez tout pour en être sûr.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>vous n’avez pas de dossier personnel</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>son dossier n’existe pas et ne peut pas être créé</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>vous n’avez pas l’autorisation</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>le système de fichiers est en lecture seule</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>le système de fichiers ou votre quota est plein</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>le fichier de réglages ne peut pas être lu pour le moment</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>un dossier ou un périphérique porte le nom du fichier de réglages</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>le fichier de réglages ne peut pas être écrit</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>aucune table de mixage n’est connectée</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>aucune table de mixage n’est trouvée</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>le système n’en voit aucune : elle est débranchée ou éteinte ; branchez-la et allumez-la</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>la prise ou l’alimentation est peut-être mal fixée</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>elle est connectée et peut être ouverte, mais elle démarre encore ou est bloquée ; éteignez-la et rallumez-la, ou tapez cette commande</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>elle est connectée et peut être ouverte, mais quelque chose y échoue ; éteignez-la et rallumez-la, ou tapez cette commande</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>seul root peut l’ouvrir, car aucune règle ne vous donne accès</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>la règle qui vous donne accès est arrivée après le branchement ; cette commande agit comme un nouveau branchement</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>c’est une table virtuelle, et ztk-virtual-mixer l’interdit</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>les autres programmes n’apprennent pas les modifications</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>les textes d’avertissement ne sont pas installés</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>les textes d’avertissement sont incomplets</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo ne peut pas lire %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo ne peut pas utiliser %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo ne peut pas annuler toutes les modifications : %1 est endommagé</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>vous n’avez pas accès à son dossier</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>certaines de ses lignes ne sont pas des modifications enregistrées par ztk ; cette commande commence un nouvel historique et garde l’ancien</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>vous n’avez pas le droit de le lire</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>les réglages de %1 ne sont pas enregistrés</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>vous n’aviez pas le droit de lire le fichier lorsqu’un réglage a été enregistré ; cette commande le rétablit, à la place des réglages enregistrés depuis</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>le fichier était endommagé lorsqu’un réglage a été enregistré ; une fois réparé, cette commande le rétablit, à la place des réglages enregistrés depuis</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 ne peut pas être lu, les valeurs par défaut sont donc utilisées</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>ce n’est pas un fichier de réglages, ou il est endommagé</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>les réglages ne sont pas enregistrés : rien ne peut être écrit dans %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>vous n’avez pas le droit d’y écrire</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>il n’y a pas ici de bus de messages de session, comme souvent par ssh et dans un conteneur ; cette commande ouvre un shell avec le sien</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>l’envoi au branchement a besoin du systemd de votre session, qui ne peut pas être utilisé (%1) ; lancez « ztk apply » chaque fois que vous avez branché une table de mixage</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>l’envoi au branchement est désactivé et ne peut pas être activé, car ce système n’utilise pas systemd ; lancez « ztk apply » chaque fois que vous avez branché une table de mixage</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>le fichier %1, qui lance « ztk apply », est absent ; installez d’abord ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>il n’y a pas de bus de messages de session</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>il se trouve sur un système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>le disque ou votre quota est plein</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>les réglages ne sont pas enregistrés : le dossier %1 n’existe pas</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>les dossiers manquants sont créés dans un dossier personnel, mais pas le dossier personnel lui-même</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>les réglages ne sont pas enregistrés : rien ne peut être écrit sous %1</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>c’est un fichier là où il faut un dossier</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>les réglages ne sont pas enregistrés : vous n’avez pas de dossier personnel</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME n’est pas définie, et la liste des utilisateurs n’a pas d’entrée pour vous</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>les réglages sont dans %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>ce dossier personnel est partagé avec macOS, les deux systèmes utilisent donc les mêmes réglages ; cette commande donne à ce système les siens</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1 : le fichier est endommagé ou n’est pas un fichier de réglages</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk s’exécute en tant que root, et le bus de messages appartient à votre propre utilisateur ; lancez-le sans sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>ce shell ne connaît pas le bus de messages de votre session</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>rien ne répond à l’adresse dans DBUS_SESSION_BUS_ADDRESS ; cette commande ouvre un shell avec son propre bus de messages</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>la bibliothèque %1, qui accède au bus de messages, ne peut pas être chargée</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch n’apprend pas les modifications</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>la bibliothèque %1, qui transmet les modifications, ne peut pas être chargée</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>ce système n’a pas d’USB : son noyau, ou une partie de celui-ci, n’est pas chargé</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework n’est pas dans %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework n’a pas de textes dans %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>elle était occupée un instant</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 n’existe pas ; cette commande le fait créer par udev</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>seul root peut l’ouvrir : %1 remplace la règle qui vous donne accès, ou concerne une autre table de mixage</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>la règle donne accès à l’utilisateur connecté à ce poste, et vous êtes connecté par ssh ; cette commande donne à %1 un accès de partout</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>la règle donne accès à l’utilisateur connecté à ce poste, et votre session n’y est pas la session active ; cette commande donne à %1 un accès de partout</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>La table %1 répond</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>micrologiciel %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>niveau certifié %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato est actif</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato n’est pas actif</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Interrogation de la table %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>La table %1 refuse ce qu’on lui demande.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>La table %1 ne répond pas.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>La table %1 a été débranchée ou éteinte.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>La table %1 est connectée, mais vous ne pouvez pas l’ouvrir.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Copier la commande %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Recherche de tables de mixage…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Aucune table de mixage n’est connectée. Vos choix sont enregistrés et pourront être envoyés dès qu’une table sera branchée.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Les modifications d’autres programmes ne sont pas affichées ici.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n table répond.</numerusform>
            <numerusform>%n tables répondent.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 après son fader</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>Crossfader A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>Crossfader B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>Schéma du routage</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Sélecteur</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>Crossfader</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1 ne peut pas enregistrer %2.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, enregistré par %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 ne peut pas l’enregistrer.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Possible avec : %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Cliquez sur un cercle pour l’enregistrer sur USB %1, ou faites glisser un numéro vers un autre cercle.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Trait plein : toutes les tables l’ont. Pointillé : non confirmé. Tirets : seulement enregistré.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Envoyé à la table et enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Envoyé à %n table et enregistré.</numerusform>
            <numerusform>Envoyé à %n tables et enregistré.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Rien n’est enregistré ; c’est la valeur par défaut.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Enregistré ; aucune table ne l’a.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Seulement enregistré.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 enregistre :</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 joue sur :</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>&amp;Niveau de sortie USB :</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>&amp;Canal MIDI :</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 est muet : tournez le sélecteur de CH%2 de %3 à %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 est muet : tournez le sélecteur de CH%2 de la table %5 de %3 à %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Envoyé à la table de mixage.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>Envoyé à %n table de mixage.</numerusform>
            <numerusform>Envoyé à %n tables de mixage.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Enregistré ; non confirmé.</translation>
    </message>
</context>
</TS>
