<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>ローカルコントラスト</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AIコントラスト</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>自動ピボット</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>画面のピボット</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>ピボット</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>画面のピボット</translation>
    </message>
</context>
</TS>
