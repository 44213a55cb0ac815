<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Le modifiche di altri programmi non vengono mostrate perché QT_NO_GLIB è impostata. Avviare la finestra senza di essa.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Le modifiche di altri programmi non vengono mostrate perché il bus dei messaggi della sessione manca o è terminato. Quando sarà disponibile, riavviare la finestra.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, che non è una scelta</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>«%1» non può essere applicato. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>«%1» non cambia nulla: tutte le sue impostazioni sono già memorizzate.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>«%1» cambia queste impostazioni:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>Non incluso in questo club e non modificato: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Applica un club</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>&amp;Club</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>&amp;Salva come club…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Salva come club</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Nome del club; tutte le impostazioni memorizzate vengono salvate con questo nome:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Esiste già un club «%1». Sostituirlo?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>&amp;Elimina un club</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Elimina un club</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>Eliminare il club «%1»? Non si può annullare.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Il file non può essere letto: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>Il file è troppo grande per contenere impostazioni.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>Il file contiene un errore: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>Il club deve avere un nome.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>Il file delle impostazioni non può essere letto: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>Il club non può essere salvato: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Salvato, ma non tutto: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Nessun mixer è collegato.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>Il mixer %1 rifiuta il valore.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Il mixer %1 non risponde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Il mixer %1 è stato scollegato o spento.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>Non si ha il permesso di aprire il mixer %1.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>La richiesta al mixer %1 non è riuscita.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Il mixer %1 rifiuta le richieste.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>La libreria del mixer non accetta questa scelta.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Non memorizzato: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>Ingresso USB %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>Uscita USB %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>Livello di uscita USB</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canale MIDI</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, che non è una scelta</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Un altro programma sta cambiando le impostazioni. Riprovare tra un momento.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Questo non può essere annullato: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Lasciato com’è, perché un altro programma lo ha cambiato nel frattempo: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Non c’è nulla da annullare.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>La cronologia delle modifiche non può essere scritta; lo stesso passo potrebbe essere annullato di nuovo.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Questa scelta non può essere inviata di nuovo. Sceglierla ancora una volta.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Non si può annullare nulla: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Nulla è memorizzato, quindi nulla è stato inviato.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Salvato come «%1».</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Annullato: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>it</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>«%1» è stato eliminato.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>Il club «%1» non può essere eliminato: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Impostazioni del mixer</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mixer</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>&amp;Invia di nuovo tutto</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Invia tutto a ogni &amp;collegamento</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>&amp;Controlla di nuovo</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Invia ai mixer ciò che è memorizzato; non cambia nulla.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annulla: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>Non è noto se ogni mixer ha ciò che è memorizzato. Invii di nuovo tutto per esserne certo.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>non si ha una cartella personale</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>la sua cartella non esiste e non può essere creata</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>non si ha il permesso</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>il file system è di sola lettura</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>il file system o la quota è esaurita</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>il file delle impostazioni al momento non può essere letto</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>una cartella o un dispositivo ha il nome del file delle impostazioni</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>il file delle impostazioni non può essere scritto</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>nessun mixer è collegato</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>non si trova nessun mixer</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>il sistema non ne vede: è scollegato o spento; collegarlo e accenderlo</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>la spina o l’alimentazione potrebbe essere allentata</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>è collegato e può essere aperto, ma si sta ancora avviando o è bloccato; spegnerlo e riaccenderlo, o digitare questo comando</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>è collegato e può essere aperto, ma qualcosa al suo interno non funziona; spegnerlo e riaccenderlo, o digitare questo comando</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>solo root può aprirlo, perché nessuna regola concede l’accesso</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>la regola che concede l’accesso è arrivata dopo il collegamento; questo equivale a ricollegarlo</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>questo è un mixer virtuale e ztk-virtual-mixer lo vieta</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>gli altri programmi non vengono a sapere delle modifiche</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>i testi di avviso non sono installati</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>i testi di avviso sono incompleti</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo non può leggere %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo non può usare %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo non può annullare tutte le modifiche: %1 è danneggiato</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>non ha i permessi per la sua cartella</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>alcune righe non sono modifiche registrate da ztk; questo comando inizia una nuova cronologia e conserva la vecchia</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>non ha il permesso di leggerlo</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>le impostazioni in %1 non sono memorizzate</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>non aveva il permesso di leggere il file quando un’impostazione è stata memorizzata; questo comando lo ripristina, al posto delle impostazioni memorizzate da allora</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>il file era danneggiato quando un’impostazione è stata memorizzata; una volta riparato, questo comando lo ripristina, al posto delle impostazioni memorizzate da allora</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 non può essere letto, quindi si usano i valori predefiniti</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>non è un file di impostazioni, oppure è danneggiato</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>le impostazioni non vengono memorizzate: non si può scrivere nulla in %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>non ha il permesso di scrivervi</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>qui non c’è un bus di messaggi della sessione, come di solito via ssh e in un container; questo comando avvia una shell con un bus proprio</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>l’invio al collegamento richiede il systemd della sessione, che non può essere usato (%1); eseguire «ztk apply» ogni volta che si è collegato un mixer</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>l’invio al collegamento è disattivato e non può essere attivato, perché questo sistema non usa systemd; eseguire «ztk apply» ogni volta che si è collegato un mixer</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>manca il file %1, che avvia «ztk apply»; installare prima ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>non c’è un bus di messaggi della sessione</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>si trova su un file system di sola lettura</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>il disco o la quota è esaurita</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>le impostazioni non vengono memorizzate: la cartella %1 non esiste</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>le cartelle mancanti vengono create dentro una cartella personale, ma non la cartella personale stessa</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>le impostazioni non vengono memorizzate: non si può scrivere nulla sotto %1</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>è un file dove deve esserci una cartella</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>le impostazioni non vengono memorizzate: non si ha una cartella personale</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME non è impostata e l’elenco degli utenti non contiene una voce corrispondente</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>le impostazioni sono in %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>questa cartella personale è condivisa con macOS, quindi entrambi i sistemi usano le stesse impostazioni; questo comando dà a questo sistema le proprie</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: il file è danneggiato o non è un file di impostazioni</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk è in esecuzione come root, e il bus di messaggi appartiene al proprio utente; avviarlo senza sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>questa shell non conosce il bus di messaggi della sessione</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>nulla risponde all’indirizzo in DBUS_SESSION_BUS_ADDRESS; questo comando avvia una shell con un bus di messaggi proprio</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>la libreria %1, che raggiunge il bus di messaggi, non può essere caricata</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch non viene a sapere delle modifiche</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>la libreria %1, che consegna le modifiche, non può essere caricata</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>questo sistema non ha USB: il suo kernel, o una parte di esso, non è caricato</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework non è in %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework non ha testi in %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>era occupato per un momento</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 non esiste; questo comando lo fa creare a udev</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>solo root può aprirlo: %1 sostituisce la regola che concede l’accesso, oppure riguarda un altro mixer</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>la regola concede l’accesso all’utente che ha effettuato l’accesso a questa postazione, e si è collegati via ssh; questo comando concede a %1 l’accesso da ovunque</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>la regola concede l’accesso all’utente che ha effettuato l’accesso a questa postazione, e la propria sessione non è quella attiva; questo comando concede a %1 l’accesso da ovunque</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>Il mixer %1 risponde</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>firmware %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>livello certificato %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato è attivo</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato non è attivo</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Interrogazione del mixer %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Il mixer %1 rifiuta le richieste.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Il mixer %1 non risponde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Il mixer %1 è stato scollegato o spento.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>Il mixer %1 è collegato, ma non è permesso aprirlo.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Copia il comando %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Ricerca dei mixer…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Nessun mixer è collegato. Le scelte vengono memorizzate e si potranno inviare quando un mixer sarà collegato.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Le modifiche di altri programmi non vengono mostrate qui.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n mixer risponde.</numerusform>
            <numerusform>%n mixer rispondono.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 dopo il fader</translation>
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
        <translation>Schema dei percorsi</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Ingressi</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Selettore</translation>
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
        <translation>USB %1 non può registrare %2.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, registrato da %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 non può registrarlo.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Possibile con: %1.</translation>
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
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Fare clic su un cerchio per registrarlo su USB %1, o trascinare un numero su un altro cerchio.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Linea continua: ogni mixer lo ha. Punteggiata: non confermato. Tratteggiata: solo memorizzato.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Inviato al mixer e memorizzato.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Inviato a %n mixer e memorizzato.</numerusform>
            <numerusform>Inviato a %n mixer e memorizzato.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Nulla è memorizzato; questo è il valore predefinito.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Memorizzato; nessun mixer lo ha.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Invio…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Solo memorizzato.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 registra:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 suona su:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>&amp;Livello di uscita USB:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>&amp;Canale MIDI:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 è muto: girare il selettore di CH%2 da %3 a %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 è muto: girare il selettore di CH%2 del mixer %5 da %3 a %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Inviato al mixer.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>Inviato a %n mixer.</numerusform>
            <numerusform>Inviato a %n mixer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Memorizzato; non confermato.</translation>
    </message>
</context>
</TS>
