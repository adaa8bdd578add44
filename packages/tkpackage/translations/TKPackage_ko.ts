<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
</TS>
