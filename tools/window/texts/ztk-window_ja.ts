<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>QT_NO_GLIB が設定されているため、ほかのプログラムによる変更は表示されません。設定せずにウィンドウを起動してください。</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>セッションのメッセージバスがないか終了したため、ほかのプログラムによる変更は表示されません。利用できるようになったら、ウィンドウを起動し直してください。</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（選択肢にありません）</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>「%1」を適用できません。%2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>「%1」で変わるものはありません。すべての設定はすでに保存されています。</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>「%1」は次の設定を変更します:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>このクラブに含まれず、変更されない設定: %1。</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>クラブの適用</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>クラブ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>クラブとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>クラブとして保存</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>クラブの名前（保存されているすべての設定をこの名前で保存します）:</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>クラブ「%1」はすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>クラブを削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>クラブを削除</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>クラブ「%1」を削除しますか？元に戻すことはできません。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>ファイルを読み込めません: %1。</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>ファイルが設定としては大きすぎます。</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>ファイルにエラーがあります: %1</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>クラブの名前を入力してください。</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>設定ファイルを読み込めません: %1。</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>クラブを保存できません: %1。</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>保存しましたが、一部は保存されていません: %1</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>ミキサーが接続されていません。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>ミキサー %1 が値を拒否しました。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>ミキサー %1 が応答しません。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>ミキサー %1 が外されたか、電源が切られました。</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>ミキサー %1 を開く権限がありません。</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>ミキサー %1 への要求が失敗しました。</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>ミキサー %1 が要求を拒否しています。</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>ミキサーのライブラリはこの選択を受け付けません。</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>保存されていません: %1。</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB 入力 %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB 出力 %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB 出力レベル</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI チャンネル</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1（選択肢にありません）</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>ほかのプログラムが設定を変更しています。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>元に戻せません: %1。</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>その後ほかのプログラムが変更したため、そのままにしました: %1。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻すものはありません。</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>変更の履歴を書き込めないため、同じ手順がもう一度元に戻されることがあります。</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>この選択は再送信できません。もう一度選択してください。</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>元に戻せるものがありません: %1。</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>何も保存されていないため、何も送信しませんでした。</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>「%1」として保存しました。</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>元に戻しました：%1。</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>「%1」を削除しました。</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>クラブ「%1」を削除できません: %2。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>ミキサーの設定</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>ミキサー(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>すべて再送信(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>接続するたびにすべて送信(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>再確認(&amp;C)</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>保存されている内容をミキサーに送信します。何も変更しません。</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>元に戻す(&amp;U): %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>保存されている内容がすべてのミキサーに届いているかは不明です。確実にするには、すべて再送信してください。</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>ホームフォルダーがありません</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>フォルダーがなく、作成もできません</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>ファイルシステムが読み取り専用です</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>ファイルシステムまたは割り当てがいっぱいです</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>現在、設定ファイルを読み込めません</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>フォルダーまたはデバイスが設定ファイルと同じ名前です</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>設定ファイルに書き込めません</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>ミキサーが接続されていません</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>ミキサーが見つかりません</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>システムから見えません。ケーブルが抜けているか、電源が切れています。接続して電源を入れてください</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>ケーブルまたは電源の接触が悪い可能性があります</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>接続されていて開くこともできますが、起動中か応答停止中です。電源を入れ直すか、このコマンドを入力してください</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>接続されていて開くこともできますが、内部で障害が起きています。電源を入れ直すか、このコマンドを入力してください</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>アクセスを許可する規則がないため、root しか開けません</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>アクセスを許可する規則が接続後に追加されました。このコマンドは接続し直すのと同じ働きをします</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>これは仮想ミキサーで、ztk-virtual-mixer が禁止しています</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>ほかのプログラムに変更が伝わりません</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>警告文がインストールされていません</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>警告文が不完全です</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo は %1 を読み込めません</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo は %1 を使えません</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo は一部の変更を元に戻せません。%1 が壊れています</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>そのフォルダーへの権限がありません</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>ztk が記録した変更ではない行があります。このコマンドは新しい履歴を始め、古い履歴を残します</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>読み込む権限がありません</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>%1 の設定は保存されていません</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>設定を保存したとき、ファイルを読み込む権限がありませんでした。このコマンドは、その後に保存された設定に代えてこのファイルを元に戻します</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>設定を保存したとき、ファイルが壊れていました。修復後、このコマンドは、その後に保存された設定に代えてこのファイルを元に戻します</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 を読み込めないため、既定値を使います</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>設定ファイルではないか、壊れています</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>設定は保存されません。%1 に書き込めません</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>書き込む権限がありません</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>ssh やコンテナーでは通常そうですが、セッションのメッセージバスがありません。このコマンドは専用のバスを持つシェルを起動します</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>接続時の送信にはセッションの systemd が必要ですが、使えません（%1）。ミキサーを接続するたびに「ztk apply」を実行してください</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>接続時の送信はオフで、オンにできません。このシステムでは systemd が動いていません。ミキサーを接続するたびに「ztk apply」を実行してください</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>「ztk apply」を起動するファイル %1 がありません。先に ztk をインストールしてください</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>セッションのメッセージバスがありません</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>読み取り専用のファイルシステムにあります</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>ディスクまたは割り当てがいっぱいです</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>設定は保存されません。フォルダー %1 がありません</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>足りないフォルダーはホームフォルダーの中に作られますが、ホームフォルダー自体は作られません</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>設定は保存されません。%1 の下に書き込めません</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>フォルダーが必要な場所にファイルがあります</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>設定は保存されません。ホームフォルダーがありません</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME が設定されておらず、ユーザーの一覧にも項目がありません</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>設定は %1 にあります</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>このホームフォルダーは macOS と共有されているため、両方のシステムが同じ設定を使います。このコマンドはこのシステム専用の設定を作ります</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1：壊れているか、設定ファイルではありません</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk は root として動いていますが、メッセージバスはご自身のユーザーのものです。sudo なしで実行してください</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>このシェルはセッションのメッセージバスを知りません</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>DBUS_SESSION_BUS_ADDRESS のアドレスから応答がありません。このコマンドは専用のメッセージバスを持つシェルを起動します</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>メッセージバスに接続するライブラリ %1 を読み込めません</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch に変更が伝わりません</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>変更を届けるライブラリ %1 を読み込めません</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>このシステムには USB がありません。カーネルまたはその一部が読み込まれていません</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework が %1 にありません</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>%1 の VRM-D6Setup.framework に文がありません</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>一時的に使用中でした</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 がありません。このコマンドは udev にそれを作らせます</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>root しか開けません。%1 がアクセスを許可する規則を置き換えているか、別のミキサー用です</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>規則はこの席でログインしているユーザーにアクセスを許可しますが、ssh でログインしています。このコマンドは %1 にどこからでもアクセスを許可します</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>規則はこの席でログインしているユーザーにアクセスを許可しますが、このセッションはそこでアクティブではありません。このコマンドは %1 にどこからでもアクセスを許可します</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>ミキサー %1 は応答しています</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>ファームウェア %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>認証レベル %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato は有効です</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato は無効です</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>ミキサー %1 に問い合わせています…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>ミキサー %1 が要求を拒否しています。</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>ミキサー %1 が応答しません。</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>ミキサー %1 が外されたか、電源が切られました。</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>ミキサー %1 は接続されていますが、開く権限がありません。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>コマンド %1 をコピー</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>ミキサーを探しています…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>ミキサーが接続されていません。選択は保存され、ミキサーを接続したときに送信できます。</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>ほかのプログラムによる変更はここに表示されません。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>%n 台のミキサーが応答しています。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 フェーダー後</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>クロスフェーダー A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>クロスフェーダー B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>ルーティング図</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>セレクター</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>フェーダー</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>クロスフェーダー</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1 では %2 を録音できません。</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1、%2 で録音</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1。USB %2 では録音できません。</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>録音できるのは %1 です。</translation>
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
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>円をクリックすると USB %1 に録音します。番号を別の円へドラッグすることもできます。</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>実線: すべてのミキサーに届いています。点線: 未確認。破線: 保存のみ。</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>ミキサーに送信し、保存しました。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>%n 台のミキサーに送信し、保存しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>保存されていません。これは既定値です。</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>保存済み。ミキサーには届いていません。</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>保存のみ。</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 の録音:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 の再生先:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB 出力レベル(&amp;L):</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI チャンネル(&amp;C):</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1 は無音です。CH%2 のセレクターを %3 から %4 に回してください。</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1 は無音です。ミキサー %5 の CH%2 のセレクターを %3 から %4 に回してください。</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>ミキサーに送信しました。</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>%n 台のミキサーに送信しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>保存済み。未確認です。</translation>
    </message>
</context>
</TS>
