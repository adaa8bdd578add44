<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>버전 %1 · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>모니터를 마음대로 제어합니다.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>소개 보기</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>오픈 소스 고지</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>타일</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>넓은 타일</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>맨 아래</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>%1 앞으로 이동</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>%1 뒤로 이동</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>원래 순서로 되돌리기</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>창에 표시할 항목과 순서를 선택하세요.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>진단</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>연결된 모니터가 없습니다.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>보고서에는 여기 표시된 내용과 버스 기록이 담깁니다. 일련 번호, 이름, 폴더는 제외됩니다.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>보고서 내보내기</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>%1에 저장했습니다</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>모두 숨겨져 있습니다</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>모니터를 찾는 중…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>지원되는 모니터가 없습니다</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>필요한 항목을 다시 표시하세요. 사라진 것은 없습니다.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>잠시만 기다려 주세요.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>연결하면 여기에 자동으로 나타납니다.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>모니터가 켜져 있고 USB-C, DisplayPort 또는 HDMI로 직접 연결되어 있는지.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>모니터 메뉴에서 DDC/CI가 켜져 있는지.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>이 계정이 I2C 장치를 사용할 수 있는지: 장치 규칙을 설치하거나 "i2c" 그룹에 가입한 뒤 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>다시 찾기</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>가상 모니터로 사용해 보기</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>데스크톱 따르기</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>고대비</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>테마</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>데스크톱과 동일</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>로그인할 때 시작</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>로그인하는 순간부터 일정과 단축키가 작동합니다.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>창을 닫아도 계속 실행</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>트레이 아이콘으로 창을 다시 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Lumen Desk를 다시 시작하면 창이 열립니다.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>시작할 때 설정 복원</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>모니터에 지난 세션의 값을 적용합니다. 끄면 현재 값을 유지합니다.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>동작 설정</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>이 플로우에는 모니터의 모든 동작이 있습니다.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>S/N %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>전송</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>재시도</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>학습된 대기</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>오늘 쓰기</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>차단기</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>절전</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>응답함</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>가상</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>닫힘</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>같은 모니터의 화면과 구별할 수 없음</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>보고서를 %1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>빈 응답</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>체크섬 오류</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>지원되지 않는 코드</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>잘못된 응답</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>버스 사용 중</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>버스 접근 불가</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>모니터 사라짐</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>쓰기 횟수 초과로 거부됨</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>디스플레이 절전 중</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>응답 전 %1ms</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>쓰기 후 %1ms</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>%1에 대해 작동됨</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>닫힘, 작동 횟수: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>같은 이름이 이미 있습니다.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Night Hours Protection</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Low Blue Light</translation>
    </message>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Open applications</source>
        <translation>앱 열기</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>플로우 추가</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>플로우 이름 바꾸기</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>잠시 기다려 주세요…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>일정</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, 시</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, 분</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>End</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>다음 날 끝납니다.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>시작과 종료가 같습니다.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>반복</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>시</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>분</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>현재 색상 모드에서는 %1을(를) 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumen Desk</source>
        <translation>Lumen Desk</translation>
    </message>
</context>
<context>
    <name>MonitorSwitcher</name>
    <message>
        <source>Monitor</source>
        <translation>모니터</translation>
    </message>
</context>
<context>
    <name>OsdTranslator</name>
    <message>
        <source>5000 K</source>
        <translation>5000 K</translation>
    </message>
    <message>
        <source>6500 K</source>
        <translation>6500 K</translation>
    </message>
    <message>
        <source>9300 K</source>
        <translation>9300 K</translation>
    </message>
    <message>
        <source>DCI</source>
        <translation>DCI</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>사용자 정의</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>대화</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>시네마</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>게임</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>스튜디오</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>위젯</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>진단</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>두 대의 컴퓨터</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Lumen Desk 표시</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Lumen Desk에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>사용해 보기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>위젯</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>창에 표시할 항목과 순서를 선택하세요.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>지원되는 모니터가 연결되어 있을 때 배치할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>이 세션에서는 프로그램이 해상도를 바꿀 수 없습니다.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>이 세션에서는 프로그램이 화면을 회전할 수 없습니다.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>이 세션에서는 프로그램이 배율을 바꿀 수 없습니다.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>이 세션에서는 다른 창이 앞에 있는 동안 프로그램에 키가 전달되지 않습니다. 단축키는 Lumen Desk 창에서만 작동합니다.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>이 세션에서는 앞에 있는 애플리케이션을 알 수 없습니다.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>이 세션에서는 프로그램이 다른 애플리케이션의 창을 옮길 수 없습니다.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>이 세션에서는 프로그램이 복사와 붙여넣기 키를 누를 수 없습니다. 두 번째 클립보드가 작동하지 않습니다.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>이 세션에서는 포인터의 위치를 알 수 없습니다. 화면 가장자리에서 키보드와 마우스가 전환되지 않습니다.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>소리 출력을 찾지 못했습니다. 시스템 음량과 출력 선택에는 PulseAudio 또는 PipeWire가 필요합니다.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>이 데스크톱에는 합성기가 없습니다. 모니터 자체 밝기보다 더 어둡게 할 수 없습니다.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>이 세션에서는 창을 항상 맨 위에 둘 수 없습니다. 나중에 앞으로 오는 것은 어두워지지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>데스크톱 세션이 없습니다.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>X11 세션에서는 작동합니다.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>%1을(를) 사용할 권한이 없어 해당 모니터를 제어할 수 없습니다. 계정이 이미 %2 그룹에 있습니다. 로그아웃한 다음 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>%1을(를) 사용할 권한이 없어 해당 모니터를 제어할 수 없습니다. 이 프로그램의 udev 규칙 %2이(가) 설치되어 있지 않습니다. %3에 설치하고 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>%1을(를) 사용할 권한이 없어 해당 모니터를 제어할 수 없습니다. 이 프로그램의 udev 규칙 %2이(가) 설치되어 있지 않습니다. %3에 설치하고 컴퓨터를 다시 시작하거나, 계정을 %4 그룹에 추가하고 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>%1을(를) 사용할 권한이 없어 해당 모니터를 제어할 수 없습니다. udev 규칙은 설치되어 있지만 이 세션은 이 컴퓨터의 시트에 속하지 않습니다. 계정을 %2 그룹에 추가하고 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>%1을(를) 사용할 권한이 없어 해당 모니터를 제어할 수 없습니다. udev 규칙이 설치되어 있지만 적용되지 않았습니다. root로 "udevadm trigger --subsystem-match=i2c-dev"을(를) 실행하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>시스템에 I2C 장치 파일이 없어 외부 모니터를 제어할 수 없습니다. 커널 모듈 i2c-dev를 로드하세요. root로 "modprobe i2c-dev"을(를) 실행하거나 이 프로그램의 modules-load.d/lumen-desk.conf을(를) 설치하고 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1이(가) 이제 다른 모니터에 연결되어 있습니다. 그 모니터에는 아무것도 보내지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>두 대의 컴퓨터</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>모니터를 함께 쓰는 두 컴퓨터는 화면 가장자리에서 키보드와 마우스를 넘겨줄 수 있습니다. 연결되면 포인터가 어느 쪽에 있는지 서로 알고, 나간 곳으로 들어옵니다.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>두 번째 컴퓨터와의 연결</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>페어링한 컴퓨터만 로컬 네트워크에서 암호화하여 연결할 수 있습니다. 포인터의 위치만 알게 되며 키, 텍스트, 파일은 전송되지 않습니다. 켜져 있는 동안 네트워크에 이 컴퓨터의 이름이 보입니다.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>로컬 네트워크 주소가 없습니다.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>페어링된 컴퓨터</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>다시 페어링</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>컴퓨터 페어링</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>이름 없는 컴퓨터</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>마지막 주소: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>상대가 모름</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>찾는 중</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>응답하지만 이 컴퓨터를 더 이상 알지 못합니다. 두 컴퓨터를 다시 페어링하세요.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>같은 네트워크에서 실행되면 자동으로 다시 찾습니다. 주소가 바뀌었다면 여기에 입력할 수 있습니다.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>다른 주소</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>%1을(를) 지울까요?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>다시 페어링할 때까지 두 컴퓨터는 연결되지 않습니다.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>유지</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. 한 컴퓨터에서</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>2분 동안 한 번의 호출을 기다립니다.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>다른 컴퓨터 기다리기</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. 다른 컴퓨터에서</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>기다리는 컴퓨터의 주소를 입력하세요. Avahi 서비스가 실행 중이면 자동으로 찾습니다.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>기다리는 컴퓨터를 선택하거나 주소를 입력하세요.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>근처에 이 기능을 켠 컴퓨터가 없습니다. 주소를 입력할 수도 있습니다.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>페어링</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>%1과(와) 페어링</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>다른 컴퓨터의 주소</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>다른 컴퓨터를 기다리는 중</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>다른 컴퓨터를 호출하는 중</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>이제 다른 컴퓨터에서 코드를 확인하세요</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1에 같은 코드가 표시됩니까?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>다른 컴퓨터에 같은 코드가 표시됩니까?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>거기에서 이 컴퓨터를 선택하거나 주소를 입력하세요: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>코드가 다르면 누군가 중간에 있는 것입니다. 아니요를 선택하세요.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>예, 페어링</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>시스템 위치 서비스</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue에 도시만 묻습니다. 이를 위해 주변 네트워크를 인터넷 서비스에 보낼 수 있습니다. 응답이 없으면 시간대의 도시를 씁니다.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>시간대의 도시</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. 아무에게도 묻지 않습니다.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>이 시간대에는 도시가 없습니다.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>직접 고른 장소</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>아무에게도 묻지 않습니다.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>해를 따르지 않습니다. 직접 정한 시간은 계속 작동합니다.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>일출과 일몰을 따르는 기능은 대략적인 위치를 알아야 합니다. 다른 곳에는 쓰이지 않습니다.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>사용 중인 위치</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>일출과 일몰 시간을 위해 100분의 1도로 반올림하여 %1(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>일출과 일몰 시간은 이 컴퓨터에서 계산됩니다. 위치는 아무에게도 보내지 않습니다.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>고른 장소: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>고른 장소</translation>
    </message>
    <message>
        <source>City</source>
        <translation>도시</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>시간대 이름이 된 도시 중에서 고릅니다. 여기에 저장되어 있어 아무것도 보내지 않습니다.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>위도</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>적도에서 북쪽으로의 도수. 남쪽은 음수입니다.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>경도</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>그리니치에서 동쪽으로의 도수. 서쪽은 음수입니다.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>위도는 -90에서 90, 경도는 -180에서 180 사이의 수입니다.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>연결을 켤 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>192.168.1.7 같은 주소도, 컴퓨터 이름도 아닙니다.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>로컬 네트워크의 컴퓨터만 페어링할 수 있습니다.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>2분 안에 다른 컴퓨터의 호출이 없었습니다.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>2분 안에 두 컴퓨터에서 코드가 확인되지 않았습니다.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>그곳에서 Lumen Desk가 응답하지 않습니다. 두 컴퓨터가 같은 네트워크에 있는지, 그쪽 연결이 켜져 있는지, 방화벽이 허용하는지 확인하세요.</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>다른 컴퓨터가 기다리고 있지 않습니다. 먼저 그쪽에서 "다른 컴퓨터 기다리기"를 선택하세요.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>다른 컴퓨터가 코드를 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>호출한 쪽이 규칙을 지키지 않습니다. 페어링되지 않았습니다.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>이 이름의 컴퓨터를 찾지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>남위 %1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>북위 %1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>서경 %1°</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>동경 %1°</translation>
    </message>
</context>
</TS>
