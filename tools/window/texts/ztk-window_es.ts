<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Los cambios de otros programas no se muestran porque QT_NO_GLIB está definida. Inicie la ventana sin ella.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Los cambios de otros programas no se muestran porque el bus de mensajes de la sesión falta o ha terminado. Cuando lo haya, inicie de nuevo la ventana.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, que no es una opción</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>«%1» no se puede aplicar. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>«%1» no cambia nada: todos sus ajustes ya están guardados.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>«%1» cambia estos ajustes:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>No incluido en este club y sin cambios: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Aplicar un club</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>&amp;Clubes</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>&amp;Guardar como club…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Guardar como club</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Nombre del club; todos los ajustes guardados se almacenan con él:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Ya existe un club «%1». ¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>&amp;Borrar un club</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Borrar un club</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>¿Quiere borrar el club «%1»? No se puede deshacer.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>No se puede leer el archivo: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>El archivo es demasiado grande para contener ajustes.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>El archivo contiene un error: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>El club necesita un nombre.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>No se puede leer el archivo de ajustes: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>No se puede guardar el club: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Guardado, pero no todo: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>No hay ninguna mesa conectada.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>La mesa %1 rechaza el valor.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>La mesa %1 no responde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>La mesa %1 se ha desconectado o apagado.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>No tiene permiso para abrir la mesa %1.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>La petición a la mesa %1 ha fallado.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>La mesa %1 rechaza lo que se le pide.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>La biblioteca de la mesa no acepta esta opción.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>No guardado: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>Entrada USB %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>Salida USB %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>Nivel de salida USB</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, que no es una opción</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Otro programa está cambiando los ajustes. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Esto no se puede deshacer: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Se deja como está porque otro programa lo ha cambiado después: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>No se puede escribir el historial de cambios; el mismo paso podría deshacerse otra vez.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Esta opción no se puede reenviar. Elíjala otra vez.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>No se puede deshacer nada: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>No hay nada guardado, así que no se ha enviado nada.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Guardado como «%1».</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Deshecho: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>Se ha borrado «%1».</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>No se puede borrar el club «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Ajustes de la mesa</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mesa</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>&amp;Enviar todo de nuevo</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Enviar todo al &amp;conectar</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>&amp;Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Envía a las mesas lo guardado; no cambia nada.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>No se sabe si todas las mesas tienen lo guardado. Envíe todo de nuevo para estar seguro.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>no tiene carpeta personal</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>su carpeta no existe y no se puede crear</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>no tiene permiso</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>el sistema de archivos es de solo lectura</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>el sistema de archivos o su cuota está lleno</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>el archivo de ajustes no se puede leer en este momento</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>una carpeta o un dispositivo tiene el nombre del archivo de ajustes</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>el archivo de ajustes no se puede escribir</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>no hay ninguna mesa conectada</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>no se encuentra ninguna mesa</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>el sistema no ve ninguna: está desenchufada o apagada; conéctela y enciéndala</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>el cable o la alimentación puede estar flojo</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>está conectada y se puede abrir, pero aún arranca o está bloqueada; apáguela y enciéndala, o escriba esta orden</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>está conectada y se puede abrir, pero algo falla en ella; apáguela y enciéndala, o escriba esta orden</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>solo root puede abrirla, porque ninguna regla le da acceso</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>la regla que le da acceso llegó después de conectar la mesa; esto hace lo mismo que conectarla de nuevo</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>es una mesa virtual y ztk-virtual-mixer lo prohíbe</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>otros programas no se enteran de los cambios</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>los textos de aviso no están instalados</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>los textos de aviso están incompletos</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo no puede leer %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo no puede usar %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo no puede deshacer todos los cambios: %1 está dañado</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>no tiene permiso para su carpeta</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>algunas de sus líneas no son cambios registrados por ztk; esta orden empieza un historial nuevo y conserva el antiguo</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>no tiene permiso para leerlo</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>los ajustes de %1 no están guardados</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>no tenía permiso para leer el archivo cuando se guardó un ajuste; esta orden lo recupera, en lugar de los ajustes guardados desde entonces</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>el archivo estaba dañado cuando se guardó un ajuste; una vez reparado, esta orden lo recupera, en lugar de los ajustes guardados desde entonces</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>no se puede leer %1, por lo que se usan los valores predeterminados</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>no es un archivo de ajustes o está dañado</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>los ajustes no se guardan: no se puede escribir nada en %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>no tiene permiso para escribir ahí</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>aquí no hay bus de mensajes de la sesión, como es habitual por ssh y en un contenedor; esta orden abre una shell con uno propio</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>el envío al conectar necesita el systemd de su sesión, que no se puede usar (%1); ejecute «ztk apply» cada vez que conecte una mesa</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>el envío al conectar está desactivado y no se puede activar, porque este sistema no usa systemd; ejecute «ztk apply» cada vez que conecte una mesa</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>falta el archivo %1, que inicia «ztk apply»; instale primero ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>no hay bus de mensajes de la sesión</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>está en un sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>el disco o su cuota está lleno</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>los ajustes no se guardan: no existe la carpeta %1</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>las carpetas que faltan se crean dentro de una carpeta personal, pero no la propia carpeta personal</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>los ajustes no se guardan: no se puede escribir nada dentro de %1</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>es un archivo donde debe haber una carpeta</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>los ajustes no se guardan: no tiene carpeta personal</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME no está definida, y la lista de usuarios no le incluye</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>los ajustes están en %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>esta carpeta personal se comparte con macOS, por lo que ambos sistemas usan los mismos ajustes; esta orden da a este sistema los suyos</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: el archivo está dañado o no es de ajustes</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk se ejecuta como root, y el bus de mensajes pertenece a su propio usuario; ejecútelo sin sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>esta shell no conoce el bus de mensajes de su sesión</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>nada responde en la dirección de DBUS_SESSION_BUS_ADDRESS; esta orden abre una shell con un bus de mensajes propio</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>no se puede cargar la biblioteca %1, que conecta con el bus de mensajes</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch no se entera de los cambios</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>no se puede cargar la biblioteca %1, que entrega los cambios</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>este sistema no tiene USB: su núcleo, o una parte de él, no está cargado</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework no está en %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework no tiene textos en %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>estuvo ocupada un momento</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>no existe %1; esta orden hace que udev lo cree</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>solo root puede abrirla: %1 sustituye la regla que le da acceso, o es para otra mesa</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>la regla da acceso al usuario que ha iniciado sesión en este puesto, y usted ha entrado por ssh; esta orden da a %1 acceso desde cualquier lugar</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>la regla da acceso al usuario que ha iniciado sesión en este puesto, y su sesión no es la activa en él; esta orden da a %1 acceso desde cualquier lugar</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>La mesa %1 responde</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>firmware %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>nivel certificado %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato está activo</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato no está activo</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Consultando la mesa %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>La mesa %1 rechaza lo que se le pide.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>La mesa %1 no responde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>La mesa %1 se ha desconectado o apagado.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>La mesa %1 está conectada, pero no puede abrirla.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Copiar la orden %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Buscando mesas…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>No hay ninguna mesa conectada. Lo que elija se guarda y se podrá enviar cuando conecte una.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Aquí no se muestran los cambios de otros programas.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n mesa responde.</numerusform>
            <numerusform>%n mesas responden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 tras su fader</translation>
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
        <translation>Imagen del encaminamiento</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Selector</translation>
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
        <translation>USB %1 no puede grabar %2.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, grabado por %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 no puede grabarlo.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Es posible con: %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Haga clic en un círculo para grabarlo en USB %1, o arrastre un número a otro círculo.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Línea continua: todas las mesas lo tienen. Punteada: sin confirmar. Discontinua: solo guardado.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Enviado a la mesa y guardado.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Enviado a %n mesa y guardado.</numerusform>
            <numerusform>Enviado a %n mesas y guardado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>No hay nada guardado; es el valor predeterminado.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Guardado; ninguna mesa lo tiene.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Solo guardado.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 graba:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 suena en:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>&amp;Nivel de salida USB:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>&amp;Canal MIDI:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 está en silencio: gire el selector de CH%2 de %3 a %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 está en silencio: gire el selector de CH%2 de la mesa %5 de %3 a %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Enviado a la mesa.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>Enviado a %n mesa.</numerusform>
            <numerusform>Enviado a %n mesas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Guardado; sin confirmar.</translation>
    </message>
</context>
</TS>
