<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste con IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Giro automático</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
    </message>
</context>
</TS>
