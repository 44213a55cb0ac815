<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Wijzigingen door andere programma’s worden niet getoond, omdat QT_NO_GLIB is ingesteld. Start het venster zonder die variabele.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Wijzigingen door andere programma’s worden niet getoond, omdat de berichtenbus van de sessie ontbreekt of is gestopt. Start het venster opnieuw zodra die er is.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, geen geldige keuze</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>‘%1’ kan niet worden toegepast. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>‘%1’ verandert niets: alle instellingen ervan zijn al opgeslagen.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>‘%1’ verandert deze instellingen:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>Niet in deze club en niet gewijzigd: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Club toepassen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Toepassen</translation>
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
        <translation>Als club op&amp;slaan…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Als club opslaan</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Naam van de club; alle opgeslagen instellingen worden daaronder bewaard:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Er is al een club ‘%1’. Vervangen?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>Een club &amp;verwijderen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Ver&amp;vangen</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Een club verwijderen</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>De club ‘%1’ verwijderen? Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Het bestand kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>Het bestand is te groot om instellingen te bevatten.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>Het bestand bevat een fout: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>De club heeft een naam nodig.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>Het instellingenbestand kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>De club kan niet worden opgeslagen: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Opgeslagen, maar niet alles: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Er is geen mengpaneel aangesloten.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>Mengpaneel %1 weigert de waarde.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Mengpaneel %1 antwoordt niet.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Mengpaneel %1 is losgekoppeld of uitgezet.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>U mag mengpaneel %1 niet openen.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>De opdracht aan mengpaneel %1 is mislukt.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Mengpaneel %1 weigert wat het wordt gevraagd.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>De bibliotheek van het mengpaneel aanvaardt deze keuze niet.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Niet opgeslagen: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB-ingang %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB-uitgang %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB-uitgangsniveau</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI-kanaal</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, geen geldige keuze</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Een ander programma wijzigt de instellingen. Probeer het zo meteen opnieuw.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Dit kan niet ongedaan worden gemaakt: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Ongewijzigd gelaten, omdat een ander programma het sindsdien heeft gewijzigd: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Er is niets ongedaan te maken.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>De geschiedenis van wijzigingen kan niet worden geschreven; dezelfde stap wordt mogelijk nogmaals ongedaan gemaakt.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Deze keuze kan niet opnieuw worden verzonden. Kies haar nog een keer.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Er kan niets ongedaan worden gemaakt: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Er is niets opgeslagen, dus er is niets verzonden.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Opgeslagen als ‘%1’.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Ongedaan gemaakt: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>nl</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>‘%1’ is verwijderd.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>De club ‘%1’ kan niet worden verwijderd: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Mengpaneelinstellingen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mengpaneel</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>Alles opnieuw &amp;verzenden</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Alles verzenden bij &amp;aansluiten</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>Opnieuw &amp;controleren</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Verzendt wat is opgeslagen naar de mengpanelen; verandert niets.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>Het is niet bekend of elk mengpaneel heeft wat is opgeslagen. Verzend alles opnieuw om zeker te zijn.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>u hebt geen persoonlijke map</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>de map bestaat niet en kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>u hebt geen toestemming</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>het bestandssysteem is alleen-lezen</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>het bestandssysteem of uw quotum is vol</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>het instellingenbestand kan op dit moment niet worden gelezen</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>een map of apparaat heeft de naam van het instellingenbestand</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>het instellingenbestand kan niet worden geschreven</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>er is geen mengpaneel aangesloten</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>er is geen mengpaneel te vinden</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>het systeem ziet er geen: de stekker is eruit of het staat uit; sluit het aan en zet het aan</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>de stekker of de voeding zit misschien los</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>het is aangesloten en mag worden geopend, maar het start nog of hangt; zet het uit en weer aan, of typ deze opdracht</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>het is aangesloten en mag worden geopend, maar er gaat iets in mis; zet het uit en weer aan, of typ deze opdracht</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>alleen root mag het openen, omdat geen regel u toegang geeft</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>de regel die u toegang geeft kwam na het aansluiten; dit doet hetzelfde als opnieuw aansluiten</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>dit is een virtueel mengpaneel en ztk-virtual-mixer verbiedt het</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>andere programma’s horen niet van wijzigingen</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>de waarschuwingsteksten zijn niet geïnstalleerd</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>de waarschuwingsteksten zijn onvolledig</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo kan %1 niet lezen</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo kan %1 niet gebruiken</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo kan niet elke wijziging ongedaan maken: %1 is beschadigd</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>u hebt geen rechten voor de map</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>sommige regels zijn geen wijzigingen die ztk heeft vastgelegd; deze opdracht begint een nieuwe geschiedenis en bewaart de oude</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>u hebt geen rechten om het te lezen</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>de instellingen in %1 zijn niet opgeslagen</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>u had geen rechten om het bestand te lezen toen een instelling werd opgeslagen; deze opdracht zet het terug, in plaats van de sindsdien opgeslagen instellingen</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>het bestand was beschadigd toen een instelling werd opgeslagen; zodra het is hersteld, zet deze opdracht het terug, in plaats van de sindsdien opgeslagen instellingen</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 kan niet worden gelezen, daarom gelden de standaardkeuzes</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>het is geen instellingenbestand, of het is beschadigd</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>instellingen worden niet opgeslagen: er kan niets in %1 worden geschreven</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>u hebt daar geen schrijfrechten</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>er is hier geen berichtenbus van de sessie, zoals gebruikelijk via ssh en in een container; deze opdracht start een shell met een eigen bus</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>verzenden bij aansluiten heeft de systemd van uw sessie nodig, die niet kan worden gebruikt (%1); voer ‘ztk apply’ uit telkens wanneer u een mengpaneel hebt aangesloten</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>verzenden bij aansluiten is uit en kan niet worden ingeschakeld, omdat dit systeem geen systemd gebruikt; voer ‘ztk apply’ uit telkens wanneer u een mengpaneel hebt aangesloten</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>het bestand %1, dat ‘ztk apply’ start, ontbreekt; installeer eerst ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>er is geen berichtenbus van de sessie</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>het staat op een alleen-lezen bestandssysteem</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>de schijf of uw quotum is vol</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>instellingen worden niet opgeslagen: de map %1 bestaat niet</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>ontbrekende mappen worden in een persoonlijke map aangemaakt, maar de persoonlijke map zelf niet</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>instellingen worden niet opgeslagen: er kan niets onder %1 worden geschreven</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>het is een bestand waar een map moet zijn</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>instellingen worden niet opgeslagen: u hebt geen persoonlijke map</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME is niet ingesteld en de lijst van gebruikers bevat u niet</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>instellingen staan in %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>deze persoonlijke map wordt met macOS gedeeld, dus beide systemen gebruiken dezelfde instellingen; deze opdracht geeft dit systeem eigen instellingen</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: het bestand is beschadigd of geen instellingenbestand</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk draait als root, en de berichtenbus hoort bij uw eigen gebruiker; start het zonder sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>deze shell kent de berichtenbus van uw sessie niet</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>niets antwoordt op het adres in DBUS_SESSION_BUS_ADDRESS; deze opdracht start een shell met een eigen berichtenbus</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>de bibliotheek %1, die de berichtenbus bereikt, kan niet worden geladen</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch hoort niet van wijzigingen</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>de bibliotheek %1, die wijzigingen bezorgt, kan niet worden geladen</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>dit systeem heeft geen USB: de kernel of een deel ervan is niet geladen</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework staat niet in %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework heeft geen teksten in %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>het was even bezet</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 bestaat niet; deze opdracht laat udev het aanmaken</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>alleen root mag het openen: %1 vervangt de regel die u toegang geeft, of is voor een ander mengpaneel</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>de regel geeft toegang aan de gebruiker die op deze werkplek is aangemeld, en u bent via ssh aangemeld; deze opdracht geeft %1 overal vandaan toegang</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>de regel geeft toegang aan de gebruiker die op deze werkplek is aangemeld, en uw sessie is daar niet de actieve; deze opdracht geeft %1 overal vandaan toegang</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>Mengpaneel %1 antwoordt</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>firmware %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>gecertificeerd niveau %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato is actief</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato is niet actief</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Mengpaneel %1 wordt bevraagd…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Mengpaneel %1 weigert wat het wordt gevraagd.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Mengpaneel %1 antwoordt niet.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Mengpaneel %1 is losgekoppeld of uitgezet.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>Mengpaneel %1 is aangesloten, maar u mag het niet openen.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Opdracht %1 kopiëren</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Mengpanelen zoeken…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Er is geen mengpaneel aangesloten. Uw keuzes worden opgeslagen en kunnen worden verzonden zodra er een is aangesloten.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Wijzigingen door andere programma’s worden hier niet getoond.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Gekopieerd</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n mengpaneel antwoordt.</numerusform>
            <numerusform>%n mengpanelen antwoorden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 na de fader</translation>
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
        <translation>Afbeelding van de routing</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Ingangen</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Schakelaar</translation>
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
        <translation>USB %1 kan %2 niet opnemen.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, opgenomen door %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 kan dit niet opnemen.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Mogelijk met: %1.</translation>
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
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Klik op een cirkel om die op USB %1 op te nemen, of sleep een nummer naar een andere cirkel.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Doorgetrokken lijn: elk mengpaneel heeft het. Gestippeld: niet bevestigd. Gestreept: alleen opgeslagen.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Naar het mengpaneel verzonden en opgeslagen.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Naar %n mengpaneel verzonden en opgeslagen.</numerusform>
            <numerusform>Naar %n mengpanelen verzonden en opgeslagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Niets opgeslagen; dit is de standaardkeuze.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Opgeslagen; geen mengpaneel heeft het.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Verzenden…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Alleen opgeslagen.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 neemt op:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 speelt op:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB-uitgangs&amp;niveau:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI-&amp;kanaal:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 is stil: draai de schakelaar van CH%2 van %3 naar %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 is stil: draai op mengpaneel %5 de schakelaar van CH%2 van %3 naar %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Naar het mengpaneel verzonden.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>Naar %n mengpaneel verzonden.</numerusform>
            <numerusform>Naar %n mengpanelen verzonden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Opgeslagen; niet bevestigd.</translation>
    </message>
</context>
</TS>
