<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrasto locale</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrasto IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotazione automatica</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
    </message>
</context>
</TS>
