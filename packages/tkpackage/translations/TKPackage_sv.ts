<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokal kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisk rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
    </message>
</context>
</TS>
