<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokální kontrast</translation>
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
        <translation>Automatické otáčení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Otočení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
    </message>
</context>
</TS>
