<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>局部對比</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI 對比</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>自動旋轉</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>螢幕旋轉</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>螢幕旋轉</translation>
    </message>
</context>
</TS>
