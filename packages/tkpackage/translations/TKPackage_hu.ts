<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Helyi kontraszt</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>MI-kontraszt</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatikus elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
    </message>
</context>
</TS>
