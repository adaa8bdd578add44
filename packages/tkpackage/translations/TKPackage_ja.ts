<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>このデバイスの位置</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>もう一方のコンピューターに接続済み</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>もう一方のコンピューターを接続</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>自動切り替え</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C アップストリーム</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B アップストリーム</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT アップストリーム</translation>
    </message>
</context>
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
    <name>LuDaisyChainWidget</name>
    <message>
        <source>Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST)</translation>
    </message>
    <message>
        <source>One cable to easily connect all your monitors.</source>
        <translation>1 本のケーブルですべてのモニターを簡単に接続できます。</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST) について</translation>
    </message>
</context>
<context>
    <name>LuDualViewPlusWidget</name>
    <message>
        <source>DualView Plus</source>
        <translation>DualView Plus</translation>
    </message>
    <message>
        <source>Main: </source>
        <translation>メイン: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>左: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>サブ: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>右: </translation>
    </message>
</context>
<context>
    <name>LuDualViewWidget</name>
    <message>
        <source>DualView</source>
        <translation>DualView</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>入力ソース</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>LuPIPPBPWidget</name>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>PIP / PBP</source>
        <translation>PIP / PBP</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>PBP</source>
        <translation>PBP</translation>
    </message>
    <message>
        <source>Do you want to turn off PBP Mode and %1?</source>
        <translation>PBP モードと %1 をオフにしますか？</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 は PBP モードでのみ動作します。PBP モードをオフにすると %1 もオフになります。</translation>
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
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>ブルーライト軽減 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト軽減</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>範囲外</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>日の出は00:00～11:59、日没は12:00～23:59の範囲で設定してください。</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>サーカディアンモード</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日の出から日没</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日の出</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日没</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>フィルターは現在地の太陽に従います。%2までレベル%1。</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>インターネット接続が不安定などの理由で、日の出・日没の時刻を取得できませんでした。手動モードに切り替えてください。</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>気象データ提供</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>位置を設定</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>1日のレベル</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>ブルーライト軽減 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト軽減</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>サーカディアンモード</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日の出から日没</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>自動切替は周囲の明るさに応じて夜間保護をオン・オフし、手間なく目をいたわります。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmBasicWidget</name>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic is enabled</source>
        <translation>Smart KVM Basic はオンです</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>PBP モードに切り替えますか？</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic は PBP モードでのみ動作します。PBP モードをオフにすると Smart KVM Basic もオフになります。</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic なら、1 組のキーボードとマウスで 2 台のコンピューターを操作できます。カーソルが画面の端を越えると自動で切り替わります。両方のデバイスに Lumen Desk 2 をインストールし、PBP モードをオンにしてください。</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>ドライバーのインストールが必要です</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM オン</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>ドライバーのインストールが必要です。</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM のドライバーをインストールするには許可が必要です。今すぐインストールしますか？</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>PBP モードに切り替えますか？</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM は PBP モードでのみ動作します。引き続き使用する場合は、PBP モードに切り替えます。</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>自動切替</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>このコンピューターの画面は入力とともに消えます。%1 で元に戻ります。</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>このコンピューターの画面は入力とともに消えます。元に戻すには、モニターのメニューで %1 を選んでください。</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>%1 に戻る</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>ショートカットをオンにする</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>サブ画面のサイズ</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>サブ画面の位置</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>ピクチャーインピクチャー</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>半分ずつ</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>4 画面</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 と 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>2 対 1</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>3 対 1</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>音声ソース</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>入れ替え</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>メイン:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>サブ:</translation>
    </message>
    <message>
        <source>16 : 9</source>
        <translation>16 : 9</translation>
    </message>
    <message>
        <source>9 : 5</source>
        <translation>9 : 5</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>カラーモード / 明るさ</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>カラーモード / 明るさ</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>ソフトウェア調光</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>モニターの最低輝度よりも画面を暗くします。環境光に応じた機能の動作中はオフになります。</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>明るさの同期</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均一性</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>カラーをリセット</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>ソフトウェア調光</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ModeBundleHint</name>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均一性</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト軽減</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>環境光</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>カラーモードとの連動</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>カラーモードごとに保存: %1。</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>内蔵ディスプレイの明るさ</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>色弱</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>赤: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>緑: %1</translation>
    </message>
</context>
<context>
    <name>LuHDRWidget</name>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Due to macOS scaling settings, HDR is temporarily unavailable. Please try turning off HiDPI or lowering the resolution.</source>
        <translation>macOS のスケーリング設定により、HDR は一時的に利用できません。HiDPI をオフにするか、解像度を下げてください。</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>このモニターには HDR モードがありません。</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>カラー同期</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>デスクトップのカラープロファイルがこのモニターのカラーモードに追従します。</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>コーディング - ライトテーマ</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>コーディング - ダークテーマ</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>コーディング - ペーパーカラー</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>シネマ</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>青み</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>赤み</translation>
    </message>
</context>
<context>
    <name>LuABPlusWidget</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 では、好みに合わせて画面の明るさを手動で調整できます。最後の調整を学習して記録し、自動調整のカーブを好みに近づけます。</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>明るさ + 色温度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>照度メーター</translation>
    </message>
</context>
<context>
    <name>LuABSettingWidget</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>照度メーター</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>センサー感度</translation>
    </message>
</context>
<context>
    <name>BackLightStateChoice</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming</source>
        <translation>自動調光</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>ライトモード</translation>
    </message>
</context>
<context>
    <name>LuBackLightWidget</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming automatically adjusts BackGlow's brightness based on ambient light detection, safeguarding your eyes in low-light environments. Auto Dimming can only be used when A.B. Gen2 is enabled.</source>
        <translation>自動調光は周囲の明るさに応じて BackGlow の明るさを調整し、暗い場所で目をいたわります。A.B. Gen2 がオンのときだけ使えます。</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>カラーモードとの連動</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>カラーモードを変えると、そのモードの BackGlow 設定に自動で切り替わります。</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>ノンストップモード</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>モニターのスリープ中も BackGlow を使うには、ノンストップモードをオンにします。</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5秒</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10秒</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20秒</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30秒</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60秒</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5分</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10分</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>近い</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>遠い</translation>
    </message>
</context>
<context>
    <name>LuEcoPrivacyWidget</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after a period of inactivity.</source>
        <translation>操作がないときにモニターを暗くします。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>画面 + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>センサー感度</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy は内蔵センサーで不在を検知してモニターを暗くし、画面のプライバシーを守ります。</translation>
    </message>
</context>
<context>
    <name>LuPopupABPlusAction</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>センサー感度</translation>
    </message>
</context>
<context>
    <name>LuPopupABAction</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>照度メーター</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>センサー感度</translation>
    </message>
</context>
<context>
    <name>LuPopupBackLightAction</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>ライトモード</translation>
    </message>
</context>
<context>
    <name>LuPopupEcoPrivacyAction</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after %1</source>
        <translation>%1後にモニターを暗くする</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>センサー感度</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>このキーの組み合わせは使用できません。</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>このショートカットは別の機能で使用されているため、使用できません。</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>すべてのショートカットをリセット</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>ショートカットをリセットするには、下の「リセット」をクリックしてください。確認後、すぐに既定の設定に戻ります。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Extra Copy/Paste</source>
        <translation>追加のコピー/貼り付け</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>下げる</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>上げる</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>オン/オフ</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>KVMを順に切り替え</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>この機能は画像、テキスト、ファイル、URLに対応しています。その他の内容をコピーすると、クリップボードの内容に影響することがあります。</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>%1に切り替え</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>カラーモードを順に切り替え</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>オーディオモードを順に切り替え</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>スピーカー出力を順に切り替え</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>消音</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>音量はメインページでいつでも調整できます。メニューを開くと音源も選べます。</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard コントロール</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>iKeyboard コントロールをオンにすると、Mac キーボードの F11/F12 音量キーで選択中の出力の音量を調整できます。</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>オーディオモード</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>イコライザー設定</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>+6db</source>
        <translation>+6db</translation>
    </message>
    <message>
        <source>0db</source>
        <translation>0db</translation>
    </message>
    <message>
        <source>-6db</source>
        <translation>-6db</translation>
    </message>
</context>
<context>
    <name>OutputChoice</name>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>サウンド設定</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>システムの音量</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>オーディオモード</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>このモニターの音量は、システムがこのモニターから再生しているときに設定できます。</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>オーディオモード：</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow：自動調光</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>モニター背面のライトが部屋の明るさに合わせて暗くなり、目の負担を和らげます。</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>暗くなると、細部を失わずに最低輝度よりもさらに暗く表示されます。</translation>
    </message>
</context>
</TS>
