<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>由于设置了 QT_NO_GLIB，不会显示其他程序的更改。请在不设置它的情况下启动本窗口。</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>会话的消息总线不存在或已结束，因此不会显示其他程序的更改。消息总线可用后，请重新启动本窗口。</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（不是可选项）</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>无法应用“%1”。%2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>“%1”不会更改任何内容：其中的设置均已保存。</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>“%1”将更改以下设置：</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>此俱乐部设置中未包含、保持不变的设置：%1。</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>应用俱乐部设置</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>俱乐部(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>另存为俱乐部(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>另存为俱乐部</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>俱乐部名称（所有已保存的设置将以此名称保存）：</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>已存在俱乐部“%1”。要替换吗？</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>删除俱乐部(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>删除俱乐部</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>要删除俱乐部“%1”吗？此操作无法撤销。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>文件过大，不可能是设置文件。</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>文件中有错误：%1。</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>请输入俱乐部名称。</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>无法读取设置文件：%1。</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>无法保存俱乐部设置：%1。</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>已保存，但不完整：%1。</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>未连接混音台。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>混音台 %1 拒绝该值。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>混音台 %1 没有响应。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>混音台 %1 已断开或已关机。</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>您无权打开混音台 %1。</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>对混音台 %1 的请求失败。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>混音台 %1 拒绝请求。</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>混音台的库不接受此选择。</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>未保存：%1。</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB 输入 %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB 输出 %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB 输出电平</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 通道</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（不是可选项）</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>另一个程序正在更改设置。请稍后重试。</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>无法撤销：%1。</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>保持不变，因为之后其他程序已更改：%1。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的操作。</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>无法写入更改历史，因此同一步骤可能会再次被撤销。</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>此选择无法重新发送。请再选一次。</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>无法撤销任何操作：%1。</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>没有已保存的设置，因此未发送任何内容。</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>已保存为“%1”。</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已撤消：%1。</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>zh_CN</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>已删除“%1”。</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>无法删除俱乐部“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>混音台设置</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>混音台(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>重新发送全部(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>每次连接时发送全部(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>重新检查(&amp;C)</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>将已保存的设置发送到混音台；不更改任何内容。</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>撤销(&amp;U)：%1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>不清楚每台混音台是否都有已保存的设置。请重新发送全部，以便确定。</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>您没有主文件夹</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>其文件夹不存在且无法创建</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>您没有权限</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>文件系统或您的配额已满</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>目前无法读取设置文件</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>文件夹或设备占用了设置文件的名称</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>无法写入设置文件</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>未连接混音台</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>找不到混音台</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>系统未检测到混音台：插头未插或电源关闭；请连接并打开电源</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>插头或电源可能松动</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>它已连接且可以打开，但仍在启动或已停止响应；请关闭后再打开，或输入此命令</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>它已连接且可以打开，但内部出现故障；请关闭后再打开，或输入此命令</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>没有规则授予您访问权限，只有 root 可以打开</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>授予您访问权限的规则是在连接混音台之后才添加的；此命令相当于重新连接</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>这是虚拟混音台，ztk-virtual-mixer 禁止打开它</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>其他程序不会得知更改</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>未安装警告文本</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>警告文本不完整</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo 无法读取 %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo 无法使用 %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo 无法撤销所有更改：%1 已损坏</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>您没有其文件夹的权限</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>其中有些行不是 ztk 记录的更改；此命令会开始新的历史记录并保留旧的</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>您没有读取它的权限</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>%1 中的设置未保存</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>保存设置时您没有读取该文件的权限；此命令会恢复该文件，取代此后保存的设置</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>保存设置时该文件已损坏；修复后，此命令会恢复该文件，取代此后保存的设置</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>无法读取 %1，因此使用默认值</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>它不是设置文件，或者已损坏</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>设置未保存：无法写入 %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>您没有写入的权限</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>这里没有会话消息总线，通过 ssh 或在容器中通常如此；此命令会启动一个带有自己总线的 shell</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>连接时发送需要您的会话的 systemd，但它无法使用（%1）；请在每次连接混音台后运行“ztk apply”</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>连接时发送已关闭且无法开启，因为此系统未运行 systemd；请在每次连接混音台后运行“ztk apply”</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>缺少启动“ztk apply”的文件 %1；请先安装 ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>没有会话消息总线</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>它位于只读的文件系统上</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>磁盘或您的配额已满</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>设置未保存：没有文件夹 %1</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>缺少的文件夹会在主文件夹内创建，但主文件夹本身不会创建</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>设置未保存：无法在 %1 之下写入</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>应为文件夹的位置是一个文件</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>设置未保存：您没有主文件夹</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>未设置 HOME，用户列表中也没有您的条目</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>设置保存在 %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>此主文件夹与 macOS 共用，因此两个系统使用相同的设置；此命令为本系统建立单独的设置</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1：已损坏，或不是设置文件</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk 以 root 身份运行，而消息总线属于您自己的用户；请不用 sudo 运行</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>此 shell 不知道您的会话的消息总线</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>DBUS_SESSION_BUS_ADDRESS 中的地址没有应答；此命令会启动一个带有自己消息总线的 shell</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>无法加载访问消息总线的库 %1</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch 不会得知更改</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>无法加载传递更改的库 %1</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>此系统没有 USB：其内核或内核的一部分未加载</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework 不在 %1 中</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>%1 中的 VRM-D6Setup.framework 没有文本</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>它曾短暂忙碌</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>没有 %1；此命令让 udev 创建它</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>只有 root 可以打开：%1 取代了授予您访问权限的规则，或者用于另一台混音台</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>该规则授予在此席位登录的用户访问权限，而您通过 ssh 登录；此命令授予 %1 从任何地方访问的权限</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>该规则授予在此席位登录的用户访问权限，而您的会话在那里不是活动会话；此命令授予 %1 从任何地方访问的权限</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>混音台 %1 有响应</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>固件 %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>认证级别 %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato 已激活</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato 未激活</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>正在查询混音台 %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>混音台 %1 拒绝请求。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>混音台 %1 没有响应。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>混音台 %1 已断开或已关机。</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>混音台 %1 已连接，但您无权打开它。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>复制命令 %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>正在查找混音台…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>未连接混音台。您的选择会被保存，连接混音台后即可发送。</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>此处不显示其他程序的更改。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n 台混音台有响应。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 推子之后</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>交叉推子 A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>交叉推子 B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>路由图</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>选择器</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>推子</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>交叉推子</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1 无法录制 %2。</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1，由 %2 录制</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1。USB %2 无法录制。</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>可以录制的通道：%1。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>单击圆圈以在 USB %1 上录制，或将数字拖到另一个圆圈。</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>实线：每台混音台都有。点线：未确认。虚线：仅保存。</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>已发送到混音台并保存。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>已发送到 %n 台混音台并保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>未保存；这是默认值。</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>已保存；没有混音台收到它。</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>仅已保存。</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 录制：</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 播放到：</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB 输出电平(&amp;L)：</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI 通道(&amp;C)：</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 无声：将 CH%2 的选择器从 %3 转到 %4。</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 无声：在混音台 %5 上将 CH%2 的选择器从 %3 转到 %4。</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>已发送到混音台。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>已发送到 %n 台混音台。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>已保存；未确认。</translation>
    </message>
</context>
</TS>
