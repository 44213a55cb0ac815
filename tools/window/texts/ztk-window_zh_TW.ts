<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>由於設定了 QT_NO_GLIB，不會顯示其他程式的變更。請在未設定它的情況下啟動本視窗。</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>工作階段的訊息匯流排不存在或已結束，因此不會顯示其他程式的變更。訊息匯流排可用後，請重新啟動本視窗。</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（不是可選項）</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>無法套用「%1」。%2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>「%1」不會變更任何內容：其中的設定均已儲存。</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>「%1」將變更以下設定：</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>此俱樂部設定中未包含、保持不變的設定：%1。</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>套用俱樂部設定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>俱樂部(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>另存為俱樂部(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>另存為俱樂部</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>俱樂部名稱（所有已儲存的設定將以此名稱儲存）：</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>已有俱樂部「%1」。要取代嗎？</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>刪除俱樂部(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>取代(&amp;R)</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>刪除俱樂部</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>要刪除俱樂部「%1」嗎？此操作無法復原。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>無法讀取檔案：%1。</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>檔案過大，不可能是設定檔。</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>檔案中有錯誤：%1。</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>請輸入俱樂部名稱。</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>無法讀取設定檔：%1。</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>無法儲存俱樂部設定：%1。</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>已儲存，但不完整：%1。</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>未連接混音器。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>混音器 %1 拒絕該值。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>混音器 %1 沒有回應。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>混音器 %1 已中斷連接或已關機。</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>您無權開啟混音器 %1。</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>對混音器 %1 的要求失敗。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>混音器 %1 拒絕要求。</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>混音器的函式庫不接受此選擇。</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>未儲存：%1。</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB 輸入 %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB 輸出 %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB 輸出電平</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 通道</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（不是可選項）</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>另一個程式正在變更設定。請稍後重試。</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>無法復原：%1。</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>保持不變，因為之後其他程式已變更：%1。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>沒有可復原的操作。</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>無法寫入變更歷史，因此同一步驟可能會再次被復原。</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>此選擇無法重新傳送。請再選一次。</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>無法復原任何操作：%1。</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>沒有已儲存的設定，因此未傳送任何內容。</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>已儲存為「%1」。</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已復原：%1。</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>zh_TW</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>已刪除「%1」。</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>無法刪除俱樂部「%1」：%2。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>混音器設定</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>混音器(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>重新傳送全部(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>每次連接時傳送全部(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>重新檢查(&amp;C)</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>將已儲存的設定傳送到混音器；不變更任何內容。</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>復原(&amp;U)：%1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>不確定每台混音器是否都有已儲存的設定。請重新傳送全部，以便確定。</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>您沒有家目錄</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>其資料夾不存在且無法建立</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>您沒有權限</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>檔案系統為唯讀</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>檔案系統或您的配額已滿</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>目前無法讀取設定檔</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>資料夾或裝置佔用了設定檔的名稱</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>無法寫入設定檔</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>未連接混音器</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>找不到混音器</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>系統未偵測到混音器：插頭未插或電源關閉；請連接並開啟電源</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>插頭或電源可能鬆動</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>它已連接且可以開啟，但仍在啟動或已停止回應；請關閉後再開啟，或輸入此指令</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>它已連接且可以開啟，但內部發生故障；請關閉後再開啟，或輸入此指令</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>沒有規則授予您存取權限，只有 root 可以開啟</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>授予您存取權限的規則是在連接混音器之後才加入的；此指令相當於重新連接</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>這是虛擬混音器，ztk-virtual-mixer 禁止開啟它</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>其他程式不會得知變更</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>未安裝警告文字</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>警告文字不完整</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo 無法讀取 %1</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo 無法使用 %1</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo 無法復原所有變更：%1 已損壞</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>您沒有其資料夾的權限</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>其中有些行不是 ztk 記錄的變更；此指令會開始新的歷程記錄並保留舊的</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>您沒有讀取它的權限</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>%1 中的設定未儲存</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>儲存設定時您沒有讀取該檔案的權限；此指令會還原該檔案，取代此後儲存的設定</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>儲存設定時該檔案已損壞；修復後，此指令會還原該檔案，取代此後儲存的設定</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>無法讀取 %1，因此使用預設值</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>它不是設定檔案，或已損壞</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>設定未儲存：無法寫入 %1</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>您沒有寫入的權限</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>這裡沒有工作階段的訊息匯流排，透過 ssh 或在容器中通常如此；此指令會啟動一個帶有自己匯流排的 shell</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>連接時傳送需要您工作階段的 systemd，但它無法使用（%1）；請在每次連接混音器後執行「ztk apply」</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>連接時傳送已關閉且無法開啟，因為此系統未執行 systemd；請在每次連接混音器後執行「ztk apply」</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>缺少啟動「ztk apply」的檔案 %1；請先安裝 ztk</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>沒有工作階段的訊息匯流排</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>它位於唯讀的檔案系統上</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>磁碟或您的配額已滿</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>設定未儲存：沒有資料夾 %1</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>缺少的資料夾會在家目錄內建立，但家目錄本身不會建立</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>設定未儲存：無法在 %1 之下寫入</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>應為資料夾的位置是一個檔案</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>設定未儲存：您沒有家目錄</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>未設定 HOME，使用者清單中也沒有您的項目</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>設定儲存在 %1</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>此家目錄與 macOS 共用，因此兩個系統使用相同的設定；此指令為本系統建立獨立的設定</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1：已損壞，或不是設定檔案</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk 以 root 身分執行，而訊息匯流排屬於您自己的使用者；請不用 sudo 執行</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>此 shell 不知道您工作階段的訊息匯流排</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>DBUS_SESSION_BUS_ADDRESS 中的位址沒有回應；此指令會啟動一個帶有自己訊息匯流排的 shell</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>無法載入存取訊息匯流排的程式庫 %1</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch 不會得知變更</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>無法載入傳遞變更的程式庫 %1</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>此系統沒有 USB：其核心或核心的一部分未載入</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework 不在 %1 中</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>%1 中的 VRM-D6Setup.framework 沒有文字</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>它曾短暫忙碌</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>沒有 %1；此指令讓 udev 建立它</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>只有 root 可以開啟：%1 取代了授予您存取權限的規則，或者用於另一台混音器</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>該規則授予在此席位登入的使用者存取權限，而您透過 ssh 登入；此指令授予 %1 從任何地方存取的權限</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>該規則授予在此席位登入的使用者存取權限，而您的工作階段在那裡不是使用中的；此指令授予 %1 從任何地方存取的權限</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>混音器 %1 有回應</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>韌體 %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>認證等級 %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato 已啟用</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato 未啟用</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>正在查詢混音器 %1…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>混音器 %1 拒絕要求。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>混音器 %1 沒有回應。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>混音器 %1 已中斷連接或已關機。</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>混音器 %1 已連接，但您無權開啟它。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>複製指令 %1</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>正在尋找混音器…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>未連接混音器。您的選擇會被儲存，連接混音器後即可傳送。</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>此處不顯示其他程式的變更。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已複製</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n 台混音器有回應。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 推桿之後</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>交叉推桿 A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>交叉推桿 B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>路由圖</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>輸入</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>選擇器</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>推桿</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>交叉推桿</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1 無法錄製 %2。</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1，由 %2 錄製</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1。USB %2 無法錄製。</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>可以錄製的聲道：%1。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>按一下圓圈以在 USB %1 上錄製，或將數字拖到另一個圓圈。</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>實線：每台混音器都有。點線：未確認。虛線：僅儲存。</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>已傳送到混音器並儲存。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>已傳送到 %n 台混音器並儲存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>未儲存；這是預設值。</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>已儲存；沒有混音器收到它。</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>正在傳送…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>僅已儲存。</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 錄製：</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 播放到：</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB 輸出電平(&amp;L)：</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI 通道(&amp;C)：</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 無聲：將 CH%2 的選擇器從 %3 轉到 %4。</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 無聲：在混音器 %5 上將 CH%2 的選擇器從 %3 轉到 %4。</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>已傳送到混音器。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>已傳送到 %n 台混音器。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>已儲存；未確認。</translation>
    </message>
</context>
</TS>
