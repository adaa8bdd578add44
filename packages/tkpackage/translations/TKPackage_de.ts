<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaler Kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>KI-Kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatische Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
    </message>
</context>
</TS>
