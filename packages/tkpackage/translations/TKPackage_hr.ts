<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokalni kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatsko zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
    </message>
</context>
</TS>
