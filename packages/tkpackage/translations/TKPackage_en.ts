<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Local Contrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI Contrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Auto Pivot</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Screen pivot</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Screen pivot</translation>
    </message>
</context>
</TS>
