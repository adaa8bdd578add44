<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaal contrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-contrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisch draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
    </message>
</context>
</TS>
