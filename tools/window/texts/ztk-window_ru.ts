<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>Изменения, сделанные другими программами, не показываются, так как задана переменная QT_NO_GLIB. Запустите окно без неё.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>Изменения, сделанные другими программами, не показываются, так как шины сообщений сеанса нет или она завершилась. Когда она появится, запустите окно снова.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1 — такого варианта нет</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>«%1» нельзя применить. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>«%1» ничего не меняет: все эти настройки уже сохранены.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>«%1» изменит эти настройки:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>Нет в этом клубе и не изменяется: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>Применить клуб</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Применить</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>&amp;Клубы</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>&amp;Сохранить как клуб…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>Сохранить как клуб</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>Название клуба; под ним сохраняются все настройки:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>Клуб «%1» уже есть. Заменить его?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>&amp;Удалить клуб</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>Удалить клуб</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>Удалить клуб «%1»? Это нельзя отменить.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Не удаётся прочитать файл: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>Файл слишком велик для файла настроек.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>Файл содержит ошибку: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>Укажите название клуба.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>Не удаётся прочитать файл настроек: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>Не удаётся сохранить клуб: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>Сохранено, но не всё: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>Микшер не подключён.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>Микшер %1 не принимает значение.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Микшер %1 не отвечает.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Микшер %1 отсоединён или выключен.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>Нет прав на открытие микшера %1.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>Запрос к микшеру %1 не удался.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Микшер %1 отклоняет запросы.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>Библиотека микшера не принимает этот вариант.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Не сохранено: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB-вход %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB-выход %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>Уровень USB-выхода</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI-канал</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1 — такого варианта нет</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>Настройки меняет другая программа. Повторите через некоторое время.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>Это нельзя отменить: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>Оставлено как есть, так как с тех пор это изменила другая программа: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Отменять нечего.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>Историю изменений не удаётся записать, поэтому тот же шаг может быть отменён ещё раз.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>Этот вариант нельзя отправить повторно. Выберите его ещё раз.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>Ничего нельзя отменить: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>Ничего не сохранено, поэтому ничего не отправлено.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>Сохранено как «%1».</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Отменено: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>ru</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>«%1» удалён.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>Не удаётся удалить клуб «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>Настройки микшера</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>&amp;Микшер</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>О&amp;тправить всё ещё раз</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>Отправлять всё при &amp;подключении</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>&amp;Проверить снова</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>Отправляет сохранённое на микшеры; ничего не меняет.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Отменить: %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>Неизвестно, есть ли сохранённое на каждом микшере. Чтобы быть уверенным, отправьте всё ещё раз.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>у вас нет домашней папки</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>папки нет, и её нельзя создать</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>нет прав</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>файловая система доступна только для чтения</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>файловая система или ваша квота заполнена</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>файл настроек сейчас нельзя прочитать</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>имя файла настроек занято папкой или устройством</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>файл настроек нельзя записать</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>микшер не подключён</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>микшер не найден</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>система его не видит: он не подключён или выключен; подключите и включите его</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>возможно, плохо держится кабель или питание</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>он подключён и доступен, но ещё запускается или завис; выключите и включите его или введите эту команду</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>он подключён и доступен, но в нём что-то не работает; выключите и включите его или введите эту команду</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>открыть его может только root: ни одно правило не даёт вам доступа</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>правило, дающее вам доступ, появилось после подключения; эта команда равносильна повторному подключению</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>это виртуальный микшер, и ztk-virtual-mixer это запрещает</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>другие программы не узнают об изменениях</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>тексты предупреждений не установлены</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>тексты предупреждений неполны</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo не может прочитать %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo не может использовать %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo не может отменить все изменения: %1 повреждён</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>у вас нет прав на его папку</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>некоторые строки — не изменения, записанные ztk; эта команда начинает новую историю и сохраняет старую</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>у вас нет прав на чтение</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>настройки из %1 не сохранены</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>у вас не было прав на чтение файла, когда сохранялась настройка; эта команда возвращает его вместо настроек, сохранённых с тех пор</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>файл был повреждён, когда сохранялась настройка; после исправления эта команда возвращает его вместо настроек, сохранённых с тех пор</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>не удаётся прочитать %1, поэтому используются значения по умолчанию</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>это не файл настроек, или он повреждён</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>настройки не сохраняются: в %1 нельзя ничего записать</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>у вас нет прав на запись туда</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>здесь нет шины сообщений сеанса, как обычно через ssh и в контейнере; эта команда запускает оболочку с собственной шиной</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>для отправки при подключении нужен systemd вашего сеанса, который нельзя использовать (%1); выполняйте «ztk apply» после каждого подключения микшера</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>отправка при подключении выключена, и её нельзя включить: в этой системе не работает systemd; выполняйте «ztk apply» после каждого подключения микшера</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>нет файла %1, который запускает «ztk apply»; сначала установите ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>нет шины сообщений сеанса</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>место находится в файловой системе, доступной только для чтения</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>диск или ваша квота заполнены</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>настройки не сохраняются: нет папки %1</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>недостающие папки создаются внутри домашней папки, но не сама домашняя папка</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>настройки не сохраняются: внутри %1 нельзя ничего записать</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>это файл там, где должна быть папка</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>настройки не сохраняются: у вас нет домашней папки</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>переменная HOME не задана, и в списке пользователей нет записи о вас</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>настройки хранятся в %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>эта домашняя папка общая с macOS, поэтому обе системы используют одни и те же настройки; эта команда даёт этой системе собственные</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: файл повреждён или это не файл настроек</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk работает от имени root, а шина сообщений принадлежит вашему пользователю; запустите без sudo</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>эта оболочка не знает шину сообщений вашего сеанса</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>по адресу в DBUS_SESSION_BUS_ADDRESS никто не отвечает; эта команда запускает оболочку с собственной шиной сообщений</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>не удаётся загрузить библиотеку %1, которая обращается к шине сообщений</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch не узнаёт об изменениях</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>не удаётся загрузить библиотеку %1, которая доставляет изменения</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>в этой системе нет USB: её ядро или его часть не загружены</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework отсутствует в %1</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>VRM-D6Setup.framework не содержит текстов в %1</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>он был недолго занят</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>нет %1; эта команда заставляет udev создать его</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>открыть его может только root: %1 заменяет правило, дающее вам доступ, или относится к другому микшеру</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>правило даёт доступ пользователю, который вошёл на этом рабочем месте, а вы вошли через ssh; эта команда даёт %1 доступ отовсюду</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>правило даёт доступ пользователю, который вошёл на этом рабочем месте, а ваш сеанс там не активен; эта команда даёт %1 доступ отовсюду</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>Микшер %1 отвечает</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>прошивка %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>уровень сертификации %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato активен</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato не активен</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>Опрашивается микшер %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>Микшер %1 отклоняет запросы.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>Микшер %1 не отвечает.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>Микшер %1 отсоединён или выключен.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>Микшер %1 подключён, но у вас нет прав его открыть.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>Копировать команду %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>Поиск микшеров…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>Микшер не подключён. Ваш выбор сохраняется, и его можно отправить, когда микшер будет подключён.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>Изменения других программ здесь не показываются.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n микшер отвечает.</numerusform>
            <numerusform>%n микшера отвечают.</numerusform>
            <numerusform>%n микшеров отвечают.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 после фейдера</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>Кроссфейдер A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>Кроссфейдер B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>Схема маршрутов</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Входы</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>Селектор</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Фейдер</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>Кроссфейдер</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1 не может записывать %2.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, записывает %2</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2 не может это записывать.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>Возможно на: %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>Щёлкните кружок, чтобы записывать его на USB %1, или перетащите номер на другой кружок.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>Сплошная линия: есть на каждом микшере. Точечная: не подтверждено. Штриховая: только сохранено.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>Отправлено на микшер и сохранено.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>Отправлено на %n микшер и сохранено.</numerusform>
            <numerusform>Отправлено на %n микшера и сохранено.</numerusform>
            <numerusform>Отправлено на %n микшеров и сохранено.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>Ничего не сохранено; это вариант по умолчанию.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>Сохранено; ни на одном микшере этого нет.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>Только сохранено.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 записывает:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 играет на:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>&amp;Уровень USB-выхода:</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI-&amp;канал:</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>На USB %1 нет звука: поверните селектор CH%2 с %3 на %4.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>На USB %1 нет звука: на микшере %5 поверните селектор CH%2 с %3 на %4.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>Отправлено на микшер.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>Отправлено на %n микшер.</numerusform>
            <numerusform>Отправлено на %n микшера.</numerusform>
            <numerusform>Отправлено на %n микшеров.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>Сохранено; не подтверждено.</translation>
    </message>
</context>
</TS>
