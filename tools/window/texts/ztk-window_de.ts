<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Änderungen anderer Programme werden nicht angezeigt, weil QT_NO_GLIB gesetzt ist. Starten Sie das Fenster ohne diese Variable.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Änderungen anderer Programme werden nicht angezeigt, weil der Nachrichtenbus der Sitzung fehlt oder beendet wurde. Starten Sie das Fenster neu, sobald es einen gibt.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, keine gültige Wahl</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>„%1“ kann nicht angewendet werden. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>„%1“ ändert nichts: Alle Einstellungen darin sind schon gespeichert.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>„%1“ ändert diese Einstellungen:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>In diesem Club nicht enthalten und unverändert: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Club anwenden</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
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
        <translation>Als Club &amp;speichern …</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Als Club speichern</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Name des Clubs; alle gespeicherten Einstellungen werden darunter abgelegt:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Es gibt schon einen Club „%1“. Soll er ersetzt werden?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>Club &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Club löschen</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>Soll der Club „%1“ gelöscht werden? Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>Die Datei ist zu groß für Einstellungen.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>Die Datei enthält einen Fehler: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>Der Club braucht einen Namen.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>Die Einstellungsdatei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>Der Club kann nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Gespeichert, aber nicht alles: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Es ist kein Mischpult angeschlossen.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>Mischpult %1 lehnt den Wert ab.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Mischpult %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Mischpult %1 wurde getrennt oder ausgeschaltet.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>Sie dürfen Mischpult %1 nicht öffnen.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>Die Anfrage an Mischpult %1 ist gescheitert.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Mischpult %1 lehnt Anfragen ab.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>Die Bibliothek des Mischpults nimmt diese Wahl nicht an.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB-Eingang %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB-Ausgang %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB-Ausgangspegel</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI-Kanal</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, keine gültige Wahl</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Ein anderes Programm ändert gerade die Einstellungen. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Das kann nicht rückgängig gemacht werden: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Unverändert gelassen, weil ein anderes Programm es seitdem geändert hat: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>Der Verlauf der Änderungen kann nicht geschrieben werden; derselbe Schritt wird daher vielleicht noch einmal rückgängig gemacht.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Diese Wahl kann nicht erneut gesendet werden. Wählen Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Es kann nichts rückgängig gemacht werden: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Es ist nichts gespeichert, daher wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Gespeichert als „%1“.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Rückgängig gemacht: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>„%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>Der Club „%1“ kann nicht gelöscht werden: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Mischpult-Einstellungen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mischpult</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>Alles erneut &amp;senden</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Beim &amp;Anschließen alles senden</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>Erneut &amp;prüfen</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Sendet das Gespeicherte an die Mischpulte; ändert nichts.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>Es ist nicht bekannt, ob jedes Mischpult das Gespeicherte hat. Senden Sie alles erneut, um sicher zu sein.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>Sie haben keinen persönlichen Ordner</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>der Ordner fehlt und kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>Sie haben keine Berechtigung</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>das Dateisystem oder Ihr Kontingent ist voll</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>die Einstellungsdatei kann gerade nicht gelesen werden</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>ein Ordner oder Gerät trägt den Namen der Einstellungsdatei</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>die Einstellungsdatei kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>es ist kein Mischpult angeschlossen</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>es ist kein Mischpult zu finden</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>das System sieht keines: Der Stecker ist gezogen, oder es ist aus; schließen Sie es an und schalten Sie es ein</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>der Stecker oder die Stromversorgung sitzt vielleicht lose</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>es ist angeschlossen und darf geöffnet werden, startet aber noch oder hängt; schalten Sie es aus und wieder ein, oder geben Sie den Befehl ein</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>es ist angeschlossen und darf geöffnet werden, aber etwas darin versagt; schalten Sie es aus und wieder ein, oder geben Sie den Befehl ein</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>nur root darf es öffnen, da Ihnen keine Regel Zugriff gewährt</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>die Regel, die Ihnen Zugriff gewährt, kam erst nach dem Anschließen; dieser Befehl wirkt wie erneutes Anschließen</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>dies ist ein virtuelles Mischpult, und ztk-virtual-mixer verbietet es</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>andere Programme erfahren nichts von Änderungen</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>die Warntexte sind nicht installiert</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>die Warntexte sind unvollständig</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo kann %1 nicht lesen</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo kann %1 nicht benutzen</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo kann nicht jede Änderung zurücknehmen: %1 ist beschädigt</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>Sie haben keine Berechtigung für den Ordner</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>einige Zeilen darin sind keine Änderungen, die ztk aufgezeichnet hat; dieser Befehl beginnt einen neuen Verlauf und behält den alten</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>Sie haben keine Berechtigung, sie zu lesen</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>die Einstellungen in %1 sind nicht gespeichert</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>Sie durften die Datei nicht lesen, als eine Einstellung gespeichert wurde; dieser Befehl holt sie zurück, anstelle der seitdem gespeicherten Einstellungen</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>die Datei war beschädigt, als eine Einstellung gespeichert wurde; sobald sie repariert ist, holt dieser Befehl sie zurück, anstelle der seitdem gespeicherten Einstellungen</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 kann nicht gelesen werden, daher gelten die Vorgaben</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>es ist keine Einstellungsdatei, oder sie ist beschädigt</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>Einstellungen werden nicht gespeichert: In %1 kann nichts geschrieben werden</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>Sie haben dort keine Schreibberechtigung</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>hier gibt es keinen Nachrichtenbus der Sitzung, wie üblich über ssh und in einem Container; dieser Befehl startet eine Shell mit einem eigenen</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>das Senden beim Anschließen braucht das systemd Ihrer Sitzung, das nicht benutzt werden kann (%1); führen Sie nach jedem Anschließen eines Mischpults „ztk apply“ aus</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>das Senden beim Anschließen ist aus und kann nicht eingeschaltet werden, da auf diesem System kein systemd läuft; führen Sie nach jedem Anschließen eines Mischpults „ztk apply“ aus</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>die Datei %1, die „ztk apply“ startet, fehlt; installieren Sie zuerst ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>es gibt keinen Nachrichtenbus der Sitzung</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>der Ort liegt auf einem schreibgeschützten Dateisystem</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>der Datenträger oder Ihr Kontingent ist voll</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>Einstellungen werden nicht gespeichert: Der Ordner %1 fehlt</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>fehlende Ordner werden in einem persönlichen Ordner angelegt, der persönliche Ordner selbst aber nicht</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>Einstellungen werden nicht gespeichert: Unterhalb von %1 kann nichts geschrieben werden</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>es ist eine Datei, wo ein Ordner sein muss</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>Einstellungen werden nicht gespeichert: Sie haben keinen persönlichen Ordner</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME ist nicht gesetzt, und die Liste der Benutzer enthält keinen Eintrag für Sie</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>Einstellungen liegen in %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>dieser persönliche Ordner wird mit macOS geteilt, daher benutzen beide Systeme dieselben Einstellungen; dieser Befehl gibt diesem System eigene</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: Die Datei ist beschädigt oder keine Einstellungsdatei</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk läuft als root, und der Nachrichtenbus gehört Ihrem eigenen Benutzer; starten Sie es ohne sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>diese Shell kennt den Nachrichtenbus Ihrer Sitzung nicht</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>unter der Adresse in DBUS_SESSION_BUS_ADDRESS antwortet nichts; dieser Befehl startet eine Shell mit einem eigenen Nachrichtenbus</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>die Bibliothek %1, die den Nachrichtenbus erreicht, kann nicht geladen werden</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch erfährt nichts von Änderungen</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>die Bibliothek %1, die Änderungen zustellt, kann nicht geladen werden</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>dieses System hat kein USB: Sein Kernel oder ein Teil davon ist nicht geladen</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework ist nicht in %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework enthält keine Texte in %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>es war kurz beschäftigt</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 fehlt; dieser Befehl lässt udev es anlegen</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>nur root darf es öffnen: %1 ersetzt die Regel, die Ihnen Zugriff gewährt, oder gilt für ein anderes Mischpult</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>die Regel gewährt dem Benutzer Zugriff, der an diesem Arbeitsplatz angemeldet ist, und Sie sind über ssh angemeldet; dieser Befehl gewährt %1 Zugriff von überall</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>die Regel gewährt dem Benutzer Zugriff, der an diesem Arbeitsplatz angemeldet ist, und Ihre Sitzung ist dort nicht die aktive; dieser Befehl gewährt %1 Zugriff von überall</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>Mischpult %1 antwortet</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>zertifizierte Stufe %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato ist aktiv</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato ist nicht aktiv</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Mischpult %1 wird abgefragt …</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Mischpult %1 lehnt Anfragen ab.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Mischpult %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Mischpult %1 wurde getrennt oder ausgeschaltet.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>Mischpult %1 ist angeschlossen, aber Sie dürfen es nicht öffnen.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Befehl %1 kopieren</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Mischpulte werden gesucht …</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Es ist kein Mischpult angeschlossen. Ihre Wahl wird gespeichert und kann gesendet werden, sobald eines angeschlossen ist.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Änderungen anderer Programme werden hier nicht angezeigt.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n Mischpult antwortet.</numerusform>
            <numerusform>%n Mischpulte antworten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 nach dem Fader</translation>
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
        <translation>Bild der Signalwege</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Wahlschalter</translation>
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
        <translation>USB %1 kann %2 nicht aufnehmen.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, aufgenommen von %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 kann das nicht aufnehmen.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Möglich mit: %1.</translation>
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
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Klicken Sie auf einen Kreis, um ihn auf USB %1 aufzunehmen, oder ziehen Sie eine Zahl auf einen anderen Kreis.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Durchgezogene Linie: Jedes Mischpult hat es. Gepunktet: nicht bestätigt. Gestrichelt: nur gespeichert.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>An das Mischpult gesendet und gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>An %n Mischpult gesendet und gespeichert.</numerusform>
            <numerusform>An %n Mischpulte gesendet und gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Nichts gespeichert; dies ist die Vorgabe.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Gespeichert; kein Mischpult hat es.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet …</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Nur gespeichert.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 nimmt auf:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 spielt auf:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB-Ausgangs&amp;pegel:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI-&amp;Kanal:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 ist stumm: Drehen Sie den Wahlschalter von CH%2 von %3 auf %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 ist stumm: Drehen Sie am Mischpult %5 den Wahlschalter von CH%2 von %3 auf %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>An das Mischpult gesendet.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>An %n Mischpult gesendet.</numerusform>
            <numerusform>An %n Mischpulte gesendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Gespeichert; nicht bestätigt.</translation>
    </message>
</context>
</TS>
