<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AnnouncementListener</name>
    <message>
        <source>Changes by other programs are not shown, because QT_NO_GLIB is set. Start the window without it.</source>
        <translation>QT_NO_GLIB가 설정되어 있어 다른 프로그램의 변경 사항이 표시되지 않습니다. 이 변수 없이 창을 시작하십시오.</translation>
    </message>
    <message>
        <source>Changes by other programs are not shown, because the message bus of the session is missing or has ended. Once there is one, start the window again.</source>
        <translation>세션의 메시지 버스가 없거나 종료되어 다른 프로그램의 변경 사항이 표시되지 않습니다. 버스가 준비되면 창을 다시 시작하십시오.</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1(선택 항목이 아님)</translation>
    </message>
</context>
<context>
    <name>ClubDialog</name>
    <message>
        <source>“%1” cannot be applied. %2</source>
        <translation>“%1”을(를) 적용할 수 없습니다. %2</translation>
    </message>
    <message>
        <source>“%1” changes nothing: all of its settings are remembered already.</source>
        <translation>“%1”은(는) 아무것도 바꾸지 않습니다. 모든 설정이 이미 저장되어 있습니다.</translation>
    </message>
    <message>
        <source>“%1” changes these settings:</source>
        <translation>“%1”은(는) 다음 설정을 바꿉니다:</translation>
    </message>
    <message>
        <source>Not in this club, and not changed: %1.</source>
        <translation>이 클럽에 없어 바뀌지 않는 설정: %1.</translation>
    </message>
    <message>
        <source>Apply a club</source>
        <translation>클럽 적용</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ClubMenu</name>
    <message>
        <source>&amp;Clubs</source>
        <translation>클럽(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save as a club…</source>
        <translation>클럽으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as a club</source>
        <translation>클럽으로 저장</translation>
    </message>
    <message>
        <source>Name of the club; all remembered settings are saved under it:</source>
        <translation>클럽 이름(저장된 모든 설정이 이 이름으로 저장됩니다):</translation>
    </message>
    <message>
        <source>There is already a club “%1”. Replace it?</source>
        <translation>클럽 “%1”이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>&amp;Delete a club</source>
        <translation>클럽 삭제(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>Delete a club</source>
        <translation>클럽 삭제</translation>
    </message>
    <message>
        <source>Delete the club “%1”? This cannot be undone.</source>
        <translation>클럽 “%1”을(를) 삭제하시겠습니까? 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>파일을 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The file is too large to hold settings.</source>
        <translation>설정 파일이라고 하기에는 너무 큽니다.</translation>
    </message>
    <message>
        <source>The file contains an error: %1.</source>
        <translation>파일에 오류가 있습니다: %1.</translation>
    </message>
    <message>
        <source>The club needs a name.</source>
        <translation>클럽 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1.</source>
        <translation>설정 파일을 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The club cannot be saved: %1.</source>
        <translation>클럽을 저장할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Saved, but not everything: %1.</source>
        <translation>저장했지만 일부는 저장되지 않았습니다: %1.</translation>
    </message>
    <message>
        <source>No mixer is attached.</source>
        <translation>믹서가 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses the value.</source>
        <translation>믹서 %1이(가) 값을 거부합니다.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>믹서 %1이(가) 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>믹서 %1이(가) 분리되었거나 꺼졌습니다.</translation>
    </message>
    <message>
        <source>You have no permission to open mixer %1.</source>
        <translation>믹서 %1을(를) 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The request to mixer %1 failed.</source>
        <translation>믹서 %1에 대한 요청이 실패했습니다.</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>믹서 %1이(가) 요청을 거부합니다.</translation>
    </message>
    <message>
        <source>The mixer&apos;s library does not accept this choice.</source>
        <translation>믹서 라이브러리가 이 선택을 받아들이지 않습니다.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>저장되지 않음: %1.</translation>
    </message>
    <message>
        <source>USB input %1</source>
        <translation>USB 입력 %1</translation>
    </message>
    <message>
        <source>USB output %1</source>
        <translation>USB 출력 %1</translation>
    </message>
    <message>
        <source>USB output level</source>
        <translation>USB 출력 레벨</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 채널</translation>
    </message>
    <message>
        <source>%1, which is not a choice</source>
        <translation>%1(선택 항목이 아님)</translation>
    </message>
    <message>
        <source>Another program is changing the settings. Try again in a moment.</source>
        <translation>다른 프로그램이 설정을 변경하고 있습니다. 잠시 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This cannot be undone: %1.</source>
        <translation>되돌릴 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Left as it is, because another program has changed it since: %1.</source>
        <translation>그 후 다른 프로그램이 변경했으므로 그대로 두었습니다: %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>되돌릴 것이 없습니다.</translation>
    </message>
    <message>
        <source>The history of changes cannot be written, so the same step may be undone again.</source>
        <translation>변경 기록을 쓸 수 없어 같은 단계가 다시 되돌려질 수 있습니다.</translation>
    </message>
    <message>
        <source>This choice cannot be sent again. Choose it once more.</source>
        <translation>이 선택은 다시 보낼 수 없습니다. 한 번 더 선택하십시오.</translation>
    </message>
    <message>
        <source>Nothing can be undone: %1.</source>
        <translation>되돌릴 수 있는 것이 없습니다: %1.</translation>
    </message>
    <message>
        <source>Nothing is remembered, so nothing was sent.</source>
        <translation>저장된 것이 없어 아무것도 보내지 않았습니다.</translation>
    </message>
    <message>
        <source>Saved as “%1”.</source>
        <translation>“%1”(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>실행 취소함: %1.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of these translations.</extracomment>
        <translation>ko</translation>
    </message>
    <message>
        <source>Deleted “%1”.</source>
        <translation>“%1”을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>The club “%1” cannot be deleted: %2.</source>
        <translation>클럽 “%1”을(를) 삭제할 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Mixer settings</source>
        <translation>믹서 설정</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mixer</source>
        <translation>믹서(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Send all again</source>
        <translation>모두 다시 보내기(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Send all at each &amp;plug-in</source>
        <translation>연결할 때마다 모두 보내기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation>다시 확인(&amp;C)</translation>
    </message>
    <message>
        <source>Sends what is remembered to the mixers; changes nothing.</source>
        <translation>저장된 설정을 믹서로 보냅니다. 아무것도 바꾸지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>실행 취소(&amp;U): %1</translation>
    </message>
    <message>
        <source>It is not known whether every mixer has what is remembered. Send all again to be sure.</source>
        <translation>저장된 설정이 모든 믹서에 있는지 알 수 없습니다. 확실히 하려면 모두 다시 보내십시오.</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>you have no home folder</source>
        <translation>홈 폴더가 없습니다</translation>
    </message>
    <message>
        <source>its folder does not exist and cannot be made</source>
        <translation>폴더가 없고 만들 수도 없습니다</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>권한이 없습니다</translation>
    </message>
    <message>
        <source>the file system is read-only</source>
        <translation>파일 시스템이 읽기 전용입니다</translation>
    </message>
    <message>
        <source>the file system or your quota is full</source>
        <translation>파일 시스템이나 할당량이 가득 찼습니다</translation>
    </message>
    <message>
        <source>the settings file cannot be read at the moment</source>
        <translation>현재 설정 파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>a folder or a device has the name of the settings file</source>
        <translation>폴더나 장치가 설정 파일의 이름을 쓰고 있습니다</translation>
    </message>
    <message>
        <source>the settings file cannot be written</source>
        <translation>설정 파일에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>no mixer is attached</source>
        <translation>믹서가 연결되어 있지 않습니다</translation>
    </message>
    <message>
        <source>no mixer can be found</source>
        <translation>믹서를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>the system finds none: it is unplugged or switched off; plug it in and switch it on</source>
        <translation>시스템에 보이지 않습니다. 케이블이 빠졌거나 전원이 꺼져 있습니다. 연결하고 전원을 켜십시오</translation>
    </message>
    <message>
        <source>its USB cable or its power cable may be loose</source>
        <translation>케이블이나 전원이 헐거울 수 있습니다</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command</source>
        <translation>연결되어 있고 열 수 있지만 아직 시작 중이거나 멈춰 있습니다. 전원을 껐다 켜거나 이 명령을 입력하십시오</translation>
    </message>
    <message>
        <source>it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command</source>
        <translation>연결되어 있고 열 수 있지만 내부에 문제가 있습니다. 전원을 껐다 켜거나 이 명령을 입력하십시오</translation>
    </message>
    <message>
        <source>only root may open it, because no udev rule grants you access</source>
        <translation>접근을 허용하는 규칙이 없어 root만 열 수 있습니다</translation>
    </message>
    <message>
        <source>the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again</source>
        <translation>접근을 허용하는 규칙이 믹서 연결 후에 추가되었습니다. 이 명령은 다시 연결하는 것과 같습니다</translation>
    </message>
    <message>
        <source>this is a virtual mixer, and ztk-virtual-mixer forbids it</source>
        <translation>가상 믹서이며 ztk-virtual-mixer가 금지하고 있습니다</translation>
    </message>
    <message>
        <source>other programs do not receive changes</source>
        <translation>다른 프로그램이 변경 사항을 알 수 없습니다</translation>
    </message>
    <message>
        <source>the warning texts are not installed</source>
        <translation>경고 문구가 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>the warning texts are incomplete</source>
        <translation>경고 문구가 불완전합니다</translation>
    </message>
    <message>
        <source>ztk undo cannot read %1</source>
        <translation>ztk undo가 %1 파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>ztk undo cannot use %1</source>
        <translation>ztk undo가 %1 파일을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>ztk undo cannot take back every change: %1 is damaged</source>
        <translation>ztk undo가 일부 변경을 되돌릴 수 없습니다. %1 파일이 손상되었습니다</translation>
    </message>
    <message>
        <source>you have no permission for its folder</source>
        <translation>해당 폴더에 대한 권한이 없습니다</translation>
    </message>
    <message>
        <source>some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one</source>
        <translation>ztk가 기록한 변경이 아닌 줄이 있습니다. 이 명령은 새 기록을 시작하고 이전 기록을 보관합니다</translation>
    </message>
    <message>
        <source>you have no permission to read it</source>
        <translation>읽을 권한이 없습니다</translation>
    </message>
    <message>
        <source>the settings in %1 are not remembered</source>
        <translation>%1 파일의 설정은 저장되어 있지 않습니다</translation>
    </message>
    <message>
        <source>you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since</source>
        <translation>설정을 저장할 때 파일을 읽을 권한이 없었습니다. 이 명령은 그 뒤에 저장된 설정 대신 이 파일을 되돌립니다</translation>
    </message>
    <message>
        <source>the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since</source>
        <translation>설정을 저장할 때 파일이 손상되어 있었습니다. 파일을 복구한 뒤 이 명령은 그 뒤에 저장된 설정 대신 이 파일을 되돌립니다</translation>
    </message>
    <message>
        <source>%1 cannot be read, so the defaults are used</source>
        <translation>%1 파일을 읽을 수 없어 기본값을 사용합니다</translation>
    </message>
    <message>
        <source>it is not a settings file, or it is damaged</source>
        <translation>설정 파일이 아니거나 손상되었습니다</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written to %1</source>
        <translation>설정이 저장되지 않습니다. %1 폴더에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>you have no permission to write there</source>
        <translation>쓸 권한이 없습니다</translation>
    </message>
    <message>
        <source>there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own</source>
        <translation>ssh나 컨테이너에서는 흔히 그렇듯 세션 메시지 버스가 없습니다. 이 명령은 자체 버스가 있는 셸을 시작합니다</translation>
    </message>
    <message>
        <source>autoapply needs the systemd of your session, which cannot be used (%1); run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>연결할 때 보내려면 세션의 systemd가 필요하지만 사용할 수 없습니다(%1). 믹서를 연결할 때마다 &apos;ztk apply&apos;를 실행하세요</translation>
    </message>
    <message>
        <source>autoapply is off and cannot be turned on, because this system does not run systemd; run &apos;ztk apply&apos; each time you have plugged a mixer in</source>
        <translation>연결할 때 보내기가 꺼져 있고 켤 수 없습니다. 이 시스템에서는 systemd가 실행되지 않습니다. 믹서를 연결할 때마다 &apos;ztk apply&apos;를 실행하세요</translation>
    </message>
    <message>
        <source>the file %1, which starts &apos;ztk apply&apos;, is missing; install ztk first</source>
        <translation>&apos;ztk apply&apos;를 시작하는 %1 파일이 없습니다. 먼저 ztk를 설치하세요</translation>
    </message>
    <message>
        <source>there is no session message bus</source>
        <translation>세션 메시지 버스가 없습니다</translation>
    </message>
    <message>
        <source>it lies on a file system that is read-only</source>
        <translation>읽기 전용 파일 시스템에 있습니다</translation>
    </message>
    <message>
        <source>the disk or your quota is full</source>
        <translation>디스크나 할당량이 가득 찼습니다</translation>
    </message>
    <message>
        <source>settings are not remembered: there is no folder %1</source>
        <translation>설정이 저장되지 않습니다. %1 폴더가 없습니다</translation>
    </message>
    <message>
        <source>missing folders are created inside a home folder, but not the home folder</source>
        <translation>없는 폴더는 홈 폴더 안에 만들어지지만 홈 폴더 자체는 만들어지지 않습니다</translation>
    </message>
    <message>
        <source>settings are not remembered: nothing can be written below %1</source>
        <translation>설정이 저장되지 않습니다. %1 아래에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>it is a file where a folder has to be</source>
        <translation>폴더가 있어야 할 곳에 파일이 있습니다</translation>
    </message>
    <message>
        <source>settings are not remembered: you have no home folder</source>
        <translation>설정이 저장되지 않습니다. 홈 폴더가 없습니다</translation>
    </message>
    <message>
        <source>HOME is not set, and the list of users has no entry for you</source>
        <translation>HOME이 설정되어 있지 않고 사용자 목록에도 항목이 없습니다</translation>
    </message>
    <message>
        <source>settings are kept in %1</source>
        <translation>설정이 %1 폴더에 있습니다</translation>
    </message>
    <message>
        <source>this home is shared with macOS, so both systems use the same ones; this gives this system its own</source>
        <translation>이 홈 폴더는 macOS와 공유되므로 두 시스템이 같은 설정을 사용합니다. 이 명령은 이 시스템에 별도의 설정을 만듭니다</translation>
    </message>
    <message>
        <source>%1: it is damaged, or no settings file</source>
        <translation>%1: 손상되었거나 설정 파일이 아닙니다</translation>
    </message>
    <message>
        <source>ztk runs as root, and the message bus belongs to your own user; run it without sudo</source>
        <translation>ztk가 root로 실행되고 있지만 메시지 버스는 사용자 본인의 것입니다. sudo 없이 실행하세요</translation>
    </message>
    <message>
        <source>this shell does not know the message bus of your session</source>
        <translation>이 셸은 세션의 메시지 버스를 알지 못합니다</translation>
    </message>
    <message>
        <source>nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own</source>
        <translation>DBUS_SESSION_BUS_ADDRESS의 주소에서 응답이 없습니다. 이 명령은 자체 메시지 버스가 있는 셸을 시작합니다</translation>
    </message>
    <message>
        <source>the library that reaches the message bus, %1, cannot be loaded</source>
        <translation>메시지 버스에 연결하는 라이브러리 %1 파일을 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>ztk watch does not receive changes</source>
        <translation>ztk watch가 변경 사항을 알 수 없습니다</translation>
    </message>
    <message>
        <source>the library that delivers what is heard, %1, cannot be loaded</source>
        <translation>변경 사항을 전달하는 라이브러리 %1 파일을 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>this system has no USB: its kernel, or a part of it, is not loaded</source>
        <translation>이 시스템에는 USB가 없습니다. 커널 또는 그 일부가 로드되지 않았습니다</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework is not in %1</source>
        <translation>VRM-D6Setup.framework가 %1 폴더에 없습니다</translation>
    </message>
    <message>
        <source>VRM-D6Setup.framework has no texts in %1</source>
        <translation>%1 폴더의 VRM-D6Setup.framework에 문구가 없습니다</translation>
    </message>
    <message>
        <source>it was busy for a moment</source>
        <translation>잠시 사용 중이었습니다</translation>
    </message>
    <message>
        <source>there is no %1; this command makes udev create it</source>
        <translation>%1 항목이 없습니다. 이 명령은 udev가 그것을 만들게 합니다</translation>
    </message>
    <message>
        <source>only root may open it: %1 replaces the rule that grants you access, or is for another mixer</source>
        <translation>root만 열 수 있습니다. %1 파일이 접근을 허용하는 규칙을 대신하거나 다른 믹서용입니다</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere</source>
        <translation>규칙은 이 자리에서 로그인한 사용자에게 접근을 허용하지만 ssh로 로그인했습니다. 이 명령은 어디서나 %1 사용자의 접근을 허용합니다</translation>
    </message>
    <message>
        <source>the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere</source>
        <translation>규칙은 이 자리에서 로그인한 사용자에게 접근을 허용하지만 이 세션은 그곳에서 활성 상태가 아닙니다. 이 명령은 어디서나 %1 사용자의 접근을 허용합니다</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Mixer %1 answers</source>
        <translation>믹서 %1 응답함</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>펌웨어 %1</translation>
    </message>
    <message>
        <source>certified level %1</source>
        <translation>인증 레벨 %1</translation>
    </message>
    <message>
        <source>Serato is active</source>
        <translation>Serato 사용 중</translation>
    </message>
    <message>
        <source>Serato is not active</source>
        <translation>Serato 사용 안 함</translation>
    </message>
    <message>
        <source>Mixer %1 is being asked…</source>
        <translation>믹서 %1에 묻는 중…</translation>
    </message>
    <message>
        <source>Mixer %1 refuses requests.</source>
        <translation>믹서 %1이(가) 요청을 거부합니다.</translation>
    </message>
    <message>
        <source>Mixer %1 does not answer.</source>
        <translation>믹서 %1이(가) 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>Mixer %1 was unplugged or switched off.</source>
        <translation>믹서 %1이(가) 분리되었거나 꺼졌습니다.</translation>
    </message>
    <message>
        <source>Mixer %1 is attached, but you may not open it.</source>
        <translation>믹서 %1이(가) 연결되어 있지만 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy the command %1</source>
        <translation>명령 %1 복사</translation>
    </message>
    <message>
        <source>Looking for mixers…</source>
        <translation>믹서를 찾는 중…</translation>
    </message>
    <message>
        <source>No mixer is attached. What you choose is remembered, and can be sent when a mixer is plugged in.</source>
        <translation>믹서가 연결되어 있지 않습니다. 선택한 내용은 저장되며 믹서를 연결하면 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>Changes of other programs are not shown here.</source>
        <translation>다른 프로그램의 변경 사항은 여기에 표시되지 않습니다.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>복사됨</translation>
    </message>
    <message numerus="yes">
        <source>%n mixers answer.</source>
        <translation>
            <numerusform>믹서 %n대가 응답합니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>CH%1 after its fader</source>
        <translation>CH%1 페이더 이후</translation>
    </message>
    <message>
        <source>Cross fader A</source>
        <translation>크로스페이더 A</translation>
    </message>
    <message>
        <source>Cross fader B</source>
        <translation>크로스페이더 B</translation>
    </message>
    <message>
        <source>Picture of the routing</source>
        <translation>라우팅 그림</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>셀렉터</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>페이더</translation>
    </message>
    <message>
        <source>Cross fader</source>
        <translation>크로스페이더</translation>
    </message>
    <message>
        <source>USB %1 cannot record %2.</source>
        <translation>USB %1은(는) %2을(를) 녹음할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1, recorded by %2</source>
        <translation>%1, %2에서 녹음</translation>
    </message>
    <message>
        <source>%1. USB %2 cannot record it.</source>
        <translation>%1. USB %2에서는 녹음할 수 없습니다.</translation>
    </message>
    <message>
        <source>Possible with: %1.</source>
        <translation>가능한 채널: %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>RoutingPage</name>
    <message>
        <source>Click a circle to record it on USB %1, or drag a number to another circle.</source>
        <translation>원을 클릭하면 USB %1에 녹음합니다. 번호를 다른 원으로 끌 수도 있습니다.</translation>
    </message>
    <message>
        <source>Solid wire: every mixer has it. Dotted: not confirmed. Dashed: only remembered.</source>
        <translation>실선: 모든 믹서에 있음. 점선: 확인되지 않음. 파선: 저장만 됨.</translation>
    </message>
</context>
<context>
    <name>Row</name>
    <message>
        <source>Sent to the mixer, and remembered.</source>
        <translation>믹서로 보내고 저장했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers, and remembered.</source>
        <translation>
            <numerusform>믹서 %n대로 보내고 저장했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is remembered; this is the default.</source>
        <translation>저장된 것이 없습니다. 기본값입니다.</translation>
    </message>
    <message>
        <source>Remembered; no mixer has it.</source>
        <translation>저장됨. 이 값을 가진 믹서가 없습니다.</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>보내는 중…</translation>
    </message>
    <message>
        <source>Remembered only.</source>
        <translation>저장만 됨.</translation>
    </message>
    <message>
        <source>USB &amp;%1 records:</source>
        <translation>USB &amp;%1 녹음:</translation>
    </message>
    <message>
        <source>USB &amp;%1 plays on:</source>
        <translation>USB &amp;%1 재생 위치:</translation>
    </message>
    <message>
        <source>USB output &amp;level:</source>
        <translation>USB 출력 레벨(&amp;L):</translation>
    </message>
    <message>
        <source>MIDI &amp;channel:</source>
        <translation>MIDI 채널(&amp;C):</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 from %3 to %4.</source>
        <translation>USB %1에 소리가 없습니다. CH%2의 셀렉터를 %3에서 %4(으)로 돌리십시오.</translation>
    </message>
    <message>
        <source>USB %1 is silent: turn the selector of CH%2 on mixer %5 from %3 to %4.</source>
        <translation>USB %1에 소리가 없습니다. 믹서 %5에서 CH%2의 셀렉터를 %3에서 %4(으)로 돌리십시오.</translation>
    </message>
    <message>
        <source>Sent to the mixer.</source>
        <translation>믹서로 보냈습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Sent to %n mixers.</source>
        <translation>
            <numerusform>믹서 %n대로 보냈습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remembered; not confirmed.</source>
        <translation>저장됨. 확인되지 않았습니다.</translation>
    </message>
</context>
</TS>
