<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrast local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrast AI</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Pivotare automată</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivotare</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
    </message>
</context>
</TS>
