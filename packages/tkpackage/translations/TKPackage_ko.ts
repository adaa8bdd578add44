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
</TS>
