<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Локальный контраст</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>ИИ-контраст</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Автоповорот</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Поворот экрана</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Поворот экрана</translation>
    </message>
</context>
</TS>
