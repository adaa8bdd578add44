<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste por IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotação automática</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
    </message>
</context>
</TS>
