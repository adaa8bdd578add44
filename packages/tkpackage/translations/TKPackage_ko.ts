<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>오른쪽 아래</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>현재 기기 위치</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>다른 컴퓨터에 연결됨</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>다른 컴퓨터 연결</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>자동 전환</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C 업스트림</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B 업스트림</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT 업스트림</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>로컬 명암비</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI 명암비</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>자동 피벗</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>화면 피벗</translation>
    </message>
</context>
<context>
    <name>LuDaisyChainWidget</name>
    <message>
        <source>Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST)</translation>
    </message>
    <message>
        <source>One cable to easily connect all your monitors.</source>
        <translation>케이블 하나로 모든 모니터를 쉽게 연결합니다.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST) 정보</translation>
    </message>
</context>
<context>
    <name>LuDualViewPlusWidget</name>
    <message>
        <source>DualView Plus</source>
        <translation>DualView Plus</translation>
    </message>
    <message>
        <source>Main: </source>
        <translation>메인: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>왼쪽: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>서브: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>오른쪽: </translation>
    </message>
</context>
<context>
    <name>LuDualViewWidget</name>
    <message>
        <source>DualView</source>
        <translation>DualView</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>왼쪽:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>오른쪽:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>입력 소스</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>LuPIPPBPWidget</name>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>PIP / PBP</source>
        <translation>PIP / PBP</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>PBP</source>
        <translation>PBP</translation>
    </message>
    <message>
        <source>Do you want to turn off PBP Mode and %1?</source>
        <translation>PBP 모드와 %1을(를) 끄시겠습니까?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1은(는) PBP 모드에서만 작동합니다. PBP 모드를 끄면 %1도 꺼집니다.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>피벗</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>화면 피벗</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>블루라이트 감소 플러스</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>블루라이트 감소</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>범위 초과</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>일출은 00:00~11:59, 일몰은 12:00~23:59 범위로 설정하세요.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>일주기 모드</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>일출~일몰</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>수동</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>일출</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>일몰</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>필터가 현재 위치의 해를 따릅니다. %2까지 레벨 %1.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>인터넷 연결이 불안정하거나 다른 문제로 일출·일몰 시간을 받지 못했습니다. 수동 모드로 전환하세요.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>날씨 데이터 제공</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>위치 설정</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>하루 동안의 레벨</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>블루라이트 감소 플러스</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>블루라이트 감소</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>일주기 모드</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>수동</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>일출~일몰</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>자동 전환은 주변 밝기에 따라 야간 보호를 켜고 꺼서 눈을 꾸준히 편안하게 합니다.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmBasicWidget</name>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic is enabled</source>
        <translation>Smart KVM Basic 켜짐</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>PBP 모드로 전환하시겠습니까?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic은 PBP 모드에서만 작동합니다. PBP 모드를 끄면 Smart KVM Basic도 꺼집니다.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic은 키보드와 마우스 하나로 컴퓨터 두 대를 조작하게 해 줍니다. 커서가 화면 가장자리를 넘으면 자동으로 전환됩니다. 두 기기에 Lumen Desk 2를 설치하고 PBP 모드를 켜서 시작하세요.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>드라이버를 설치해야 합니다</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>검색 중</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM 켜짐</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>드라이버를 설치해야 합니다.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM 드라이버를 설치하려면 허가가 필요합니다. 지금 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>PBP 모드로 전환하시겠습니까?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM은 PBP 모드에서만 작동합니다. 계속 사용하려면 PBP 모드로 전환해 드립니다.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>자동 전환</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>이 컴퓨터의 화면은 입력과 함께 사라집니다. %1(으)로 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>이 컴퓨터의 화면은 입력과 함께 사라집니다. 되돌리려면 모니터 메뉴에서 %1을(를) 선택하세요.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>%1(으)로 돌아가기</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>바로 가기 켜기</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>서브 화면 크기</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>작게</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>중간</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>크게</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>서브 화면 위치</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>왼쪽 아래</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>화면 속 화면</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>반반</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>창 네 개</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9와 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>2 대 1</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>3 대 1</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>오디오 소스</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>바꾸기</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>메인:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>서브:</translation>
    </message>
    <message>
        <source>16 : 9</source>
        <translation>16 : 9</translation>
    </message>
    <message>
        <source>9 : 5</source>
        <translation>9 : 5</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>왼쪽:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>오른쪽:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>색상 모드 / 밝기</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>색상 모드 / 밝기</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>소프트웨어 디밍</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>모니터의 최저 밝기보다 화면을 더 어둡게 합니다. 주변광 기능이 작동하는 동안에는 꺼집니다.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>밝기 동기화</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>명암비</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>선명도</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>색 영역</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>균일도</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>색상 초기화</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>소프트웨어 디밍</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>색상 모드</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>색온도</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>노랑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>청록</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>자홍</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ModeBundleHint</name>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>명암비</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>선명도</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>색온도</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>색 영역</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>균일도</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>블루라이트 감소</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>주변 밝기</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>색상 모드와 연동</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>색상 모드별로 저장: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>내장 화면 밝기</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>색약</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>빨강: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>초록: %1</translation>
    </message>
</context>
<context>
    <name>LuHDRWidget</name>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Due to macOS scaling settings, HDR is temporarily unavailable. Please try turning off HiDPI or lowering the resolution.</source>
        <translation>macOS 배율 설정으로 인해 HDR을 일시적으로 사용할 수 없습니다. HiDPI를 끄거나 해상도를 낮춰 보세요.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>이 모니터에는 HDR 모드가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>색상 동기화</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>이제 데스크톱의 색상 프로필이 이 모니터의 색상 모드를 따릅니다.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>코딩 - 밝은 테마</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>코딩 - 어두운 테마</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>코딩 - 종이 색상</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
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
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>푸른빛</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>붉은빛</translation>
    </message>
</context>
<context>
    <name>LuABPlusWidget</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 정보</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1은(는) 취향에 맞게 화면 밝기를 직접 조절할 수 있습니다. 마지막 조정을 학습하고 저장하여 자동 밝기 곡선을 취향에 더 가깝게 맞춥니다.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>밝기 + 색온도</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>조도계</translation>
    </message>
</context>
<context>
    <name>LuABSettingWidget</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>조도계</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>센서 감도</translation>
    </message>
</context>
<context>
    <name>BackLightStateChoice</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming</source>
        <translation>자동 조광</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>색온도</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>조명 모드</translation>
    </message>
</context>
<context>
    <name>LuBackLightWidget</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming automatically adjusts BackGlow's brightness based on ambient light detection, safeguarding your eyes in low-light environments. Auto Dimming can only be used when A.B. Gen2 is enabled.</source>
        <translation>자동 조광은 주변 밝기에 따라 BackGlow 밝기를 조절하여 어두운 곳에서 눈을 보호합니다. A.B. Gen2가 켜져 있을 때만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>색상 모드 연동</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>색상 모드를 바꾸면 해당 모드의 BackGlow 설정으로 자동 전환됩니다.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>논스톱 모드</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>모니터가 절전 상태일 때도 BackGlow를 켜려면 논스톱 모드를 사용하세요.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5초</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10초</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20초</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30초</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60초</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5분</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10분</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>가까움</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>중간</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>멂</translation>
    </message>
</context>
<context>
    <name>LuEcoPrivacyWidget</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after a period of inactivity.</source>
        <translation>사용하지 않으면 모니터를 어둡게 합니다.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>화면 + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>센서 감도</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy는 내장 센서로 자리를 비우면 모니터를 어둡게 하여 화면의 개인정보를 보호합니다.</translation>
    </message>
</context>
<context>
    <name>LuPopupABPlusAction</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>센서 감도</translation>
    </message>
</context>
<context>
    <name>LuPopupABAction</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>조도계</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>센서 감도</translation>
    </message>
</context>
<context>
    <name>LuPopupBackLightAction</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>색온도</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>조명 모드</translation>
    </message>
</context>
<context>
    <name>LuPopupEcoPrivacyAction</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after %1</source>
        <translation>%1 후 모니터 어둡게</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>센서 감도</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>이 키 조합은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>이 단축키는 다른 기능에서 사용 중이므로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>모든 단축키 초기화</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>단축키를 초기화하려면 아래의 '초기화' 단추를 누르세요. 확인하면 앱이 기본 설정을 바로 되돌립니다.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Extra Copy/Paste</source>
        <translation>추가 복사/붙여넣기</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>낮추기</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>높이기</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>켜기/끄기</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>모든 KVM 순환</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>이 기능은 이미지, 텍스트, 파일, URL 형식을 지원합니다. 다른 내용을 복사하면 클립보드 내용에 영향을 줄 수 있습니다.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>%1(으)로 전환</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>모든 색상 모드 순환</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>모든 오디오 모드 순환</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>모든 스피커 출력 순환</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>볼륨은 메인 페이지에서 언제든지 조절할 수 있습니다. 메뉴를 펼쳐 오디오 소스를 선택할 수도 있습니다.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard 제어</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>iKeyboard 제어를 켜면 Mac 키보드의 F11/F12 볼륨 키로 선택한 오디오 출력의 볼륨을 조절할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>오디오 모드</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>이퀄라이저 설정</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>+6db</source>
        <translation>+6db</translation>
    </message>
    <message>
        <source>0db</source>
        <translation>0db</translation>
    </message>
    <message>
        <source>-6db</source>
        <translation>-6db</translation>
    </message>
</context>
<context>
    <name>OutputChoice</name>
    <message>
        <source>Output</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>소리 설정</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>시스템 볼륨</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>오디오 모드</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>시스템이 이 모니터로 소리를 재생할 때 모니터의 볼륨을 설정할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>오디오 모드:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: 자동 조광</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>야간 보호</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>모니터 뒤의 조명이 방의 밝기에 맞춰 어두워져 눈이 편안합니다.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>어두워지면 화면이 세부 표현을 잃지 않고 최저 밝기보다 더 어두워집니다.</translation>
    </message>
</context>
</TS>
