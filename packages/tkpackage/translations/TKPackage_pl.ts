<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Kontrast lokalny</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Kontrast AI</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatyczny obrót</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Obrót ekranu</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Obrót ekranu</translation>
    </message>
</context>
</TS>
