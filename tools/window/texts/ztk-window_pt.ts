<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>As alterações de outros programas não são mostradas porque QT_NO_GLIB está definida. Inicie a janela sem ela.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>As alterações de outros programas não são mostradas porque o barramento de mensagens da sessão falta ou terminou. Quando existir um, inicie novamente a janela.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, que não é uma opção</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>«%1» não pode ser aplicado. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>«%1» não altera nada: todas as suas definições já estão guardadas.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>«%1» altera estas definições:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>Não incluído neste clube e inalterado: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Aplicar um clube</translation>
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
        <translation>&amp;Guardar como clube…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Guardar como clube</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Nome do clube; todas as definições guardadas ficam com este nome:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Já existe um clube “%1”. Substituí-lo?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>&amp;Eliminar um clube</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Eliminar um clube</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>Eliminar o clube “%1”? Não é possível anular.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>O ficheiro não pode ser lido: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>O ficheiro é demasiado grande para conter definições.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>O ficheiro contém um erro: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>O clube precisa de um nome.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>O ficheiro de definições não pode ser lido: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>O clube não pode ser guardado: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Guardado, mas não tudo: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Nenhuma mesa está ligada.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>A mesa %1 recusa o valor.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>A mesa %1 não responde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>A mesa %1 foi desligada ou retirada.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>Não tem permissão para abrir a mesa %1.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>O pedido à mesa %1 falhou.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>A mesa %1 recusa o que lhe é pedido.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>A biblioteca da mesa não aceita esta opção.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Não guardado: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>Entrada USB %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>Saída USB %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>Nível de saída USB</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1, que não é uma opção</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Outro programa está a alterar as definições. Tente novamente dentro de momentos.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Isto não pode ser anulado: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Deixado como está, porque entretanto outro programa o alterou: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Não há nada para anular.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>O histórico de alterações não pode ser escrito; o mesmo passo pode ser anulado outra vez.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Esta opção não pode ser reenviada. Escolha-a mais uma vez.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Nada pode ser anulado: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Não há nada guardado, por isso nada foi enviado.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Guardado como “%1”.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Anulado: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>“%1” foi eliminado.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>O clube “%1” não pode ser eliminado: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Definições da mesa</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Mesa</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>&amp;Enviar tudo novamente</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Enviar tudo ao &amp;ligar</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>&amp;Verificar novamente</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Envia às mesas o que está guardado; não altera nada.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Anular: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>Não se sabe se todas as mesas têm o que está guardado. Envie tudo novamente para ter a certeza.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>não tem pasta pessoal</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>a pasta não existe e não pode ser criada</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>não tem permissão</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>o sistema de ficheiros é só de leitura</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>o sistema de ficheiros ou a sua quota está cheio</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>o ficheiro de definições não pode ser lido neste momento</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>uma pasta ou um dispositivo tem o nome do ficheiro de definições</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>o ficheiro de definições não pode ser escrito</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>nenhuma mesa está ligada</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>não se encontra nenhuma mesa</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>o sistema não vê nenhuma: está desligada ou sem cabo; ligue o cabo e ligue a mesa</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>o cabo ou a alimentação pode estar solto</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>está ligada e pode ser aberta, mas ainda está a arrancar ou bloqueou; desligue-a e ligue-a, ou escreva este comando</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>está ligada e pode ser aberta, mas algo nela falha; desligue-a e ligue-a, ou escreva este comando</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>só o root a pode abrir, porque nenhuma regra lhe dá acesso</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>a regra que lhe dá acesso chegou depois de ligar a mesa; isto faz o mesmo que ligá-la novamente</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>esta é uma mesa virtual, e o ztk-virtual-mixer proíbe-o</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>os outros programas não sabem das alterações</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>os textos de aviso não estão instalados</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>os textos de aviso estão incompletos</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo não consegue ler %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo não consegue usar %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo não consegue anular todas as alterações: %1 está danificado</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>não tem permissão para a pasta</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>algumas linhas não são alterações registadas pelo ztk; este comando começa um novo histórico e guarda o antigo</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>não tem permissão para o ler</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>as definições em %1 não estão guardadas</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>não tinha permissão para ler o ficheiro quando uma definição foi guardada; este comando repõe-no, em vez das definições guardadas desde então</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>o ficheiro estava danificado quando uma definição foi guardada; depois de reparado, este comando repõe-no, em vez das definições guardadas desde então</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>não é possível ler %1, por isso são usados os valores predefinidos</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>não é um ficheiro de definições, ou está danificado</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>as definições não são guardadas: não é possível escrever em %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>não tem permissão para escrever aí</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>não há aqui um barramento de mensagens da sessão, como é habitual por ssh e num contentor; este comando inicia uma shell com um próprio</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>o envio ao ligar precisa do systemd da sua sessão, que não pode ser usado (%1); execute «ztk apply» sempre que ligar uma mesa</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>o envio ao ligar está desativado e não pode ser ativado, porque este sistema não usa systemd; execute «ztk apply» sempre que ligar uma mesa</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>falta o ficheiro %1, que inicia «ztk apply»; instale primeiro o ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>não há um barramento de mensagens da sessão</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>está num sistema de ficheiros só de leitura</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>o disco ou a sua quota está cheio</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>as definições não são guardadas: não existe a pasta %1</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>as pastas em falta são criadas dentro de uma pasta pessoal, mas não a própria pasta pessoal</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>as definições não são guardadas: não é possível escrever dentro de %1</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>é um ficheiro onde tem de haver uma pasta</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>as definições não são guardadas: não tem pasta pessoal</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME não está definida, e a lista de utilizadores não tem uma entrada para si</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>as definições estão em %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>esta pasta pessoal é partilhada com o macOS, por isso ambos os sistemas usam as mesmas definições; este comando dá a este sistema as suas</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: o ficheiro está danificado ou não é de definições</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>o ztk é executado como root, e o barramento de mensagens pertence ao seu utilizador; execute-o sem sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>esta shell não conhece o barramento de mensagens da sua sessão</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>nada responde no endereço em DBUS_SESSION_BUS_ADDRESS; este comando inicia uma shell com um barramento de mensagens próprio</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>não é possível carregar a biblioteca %1, que acede ao barramento de mensagens</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch não sabe das alterações</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>não é possível carregar a biblioteca %1, que entrega as alterações</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>este sistema não tem USB: o seu núcleo, ou uma parte dele, não está carregado</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework não está em %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework não tem textos em %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>esteve ocupada por um momento</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 não existe; este comando faz com que o udev o crie</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>só o root a pode abrir: %1 substitui a regra que lhe dá acesso, ou é para outra mesa</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>a regra dá acesso ao utilizador que iniciou sessão neste posto, e a sua sessão é por ssh; este comando dá a %1 acesso de qualquer lugar</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>a regra dá acesso ao utilizador que iniciou sessão neste posto, e a sua sessão não é a ativa; este comando dá a %1 acesso de qualquer lugar</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>A mesa %1 responde</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>firmware %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>nível certificado %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>O Serato está ativo</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>O Serato não está ativo</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>A consultar a mesa %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>A mesa %1 recusa o que lhe é pedido.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>A mesa %1 não responde.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>A mesa %1 foi desligada ou retirada.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>A mesa %1 está ligada, mas não a pode abrir.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Copiar o comando %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>À procura de mesas…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Nenhuma mesa está ligada. O que escolher fica guardado e pode ser enviado quando ligar uma.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>As alterações de outros programas não são mostradas aqui.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n mesa responde.</numerusform>
            <numerusform>%n mesas respondem.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 depois do fader</translation>
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
        <translation>Imagem do encaminhamento</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Seletor</translation>
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
        <translation>USB %1 não pode gravar %2.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, gravado por %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 não o pode gravar.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Possível com: %1.</translation>
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
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Clique num círculo para o gravar em USB %1, ou arraste um número para outro círculo.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Linha contínua: todas as mesas o têm. Pontilhada: não confirmado. Tracejada: só guardado.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Enviado à mesa e guardado.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Enviado a %n mesa e guardado.</numerusform>
            <numerusform>Enviado a %n mesas e guardado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Nada guardado; este é o valor predefinido.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Guardado; nenhuma mesa o tem.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>A enviar…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Apenas guardado.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 grava:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 toca em:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>&amp;Nível de saída USB:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>&amp;Canal MIDI:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 está sem som: rode o seletor de CH%2 de %3 para %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 está sem som: rode o seletor de CH%2 da mesa %5 de %3 para %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Enviado à mesa.</translation>
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
        <translation>Guardado; não confirmado.</translation>
    </message>
</context>
</TS>
