<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>バージョン %1 · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>モニターを思いのままに操作できます。</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>紹介を見る</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>オープンソースに関する表示</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>タイル</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>横長のタイル</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>一番下</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>%1 を前へ</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>%1 を後ろへ</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>元の順序に戻す</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>ウィンドウに表示する項目と順序を選びます。</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>モニターが接続されていません。</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>レポートには、ここに表示された内容とバスの記録が含まれます。シリアル番号、名前、フォルダーは含まれません。</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>レポートを書き出す</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>%1 に保存しました</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>すべて非表示です</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>モニターを探しています…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>対応するモニターがありません</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>必要なものを戻せます。何も失われていません。</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>少々お待ちください。</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>接続すると自動的にここに表示されます。</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>モニターの電源が入り、USB-C、DisplayPort または HDMI で直接接続されていること。</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>モニターのメニューで DDC/CI がオンになっていること。</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>このアカウントで I2C デバイスを使えること: デバイス規則を入れるか「i2c」グループに加わり、ログインし直してください。</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>もう一度探す</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>仮想モニターで試す</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>ハイコントラスト</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップと同じ</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>ログインした時点からスケジュールとショートカットが働きます。</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>ウィンドウを閉じても動作を続ける</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>トレイのアイコンでウィンドウに戻れます。</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Lumen Desk をもう一度起動するとウィンドウに戻れます。</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>起動時に設定を復元する</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>前回の値がモニターに設定されます。オフの場合はモニターの値のままです。</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>アクションを設定</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>このフローにはモニターのすべてのアクションがあります。</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>S/N %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>転送</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>学習した待ち時間</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>今日の書き込み</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>遮断器</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>スリープ中</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>応答あり</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>仮想</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>同じモニターの画面と区別できません</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>レポートを %1 に保存できません: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>空の応答</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>チェックサム不一致</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>非対応コード</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>不正な応答</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>バス使用中</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>バスへのアクセス不可</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>モニターなし</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>書き込み過多のため拒否</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>ディスプレイはスリープ中</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>応答前 %1 ms</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>書き込み後 %1 ms</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>%1 に対して作動中</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>通常（作動回数: %1）</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>その名前はすでにあります。</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Night Hours Protection</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Low Blue Light</translation>
    </message>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Open applications</source>
        <translation>アプリを開く</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>フローを追加</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>フローの名前を変更</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>お待ちください…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1、時</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1、分</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>翌日に終了します。</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>開始と終了が同じです。</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 は現在のカラーモードでは使えません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumen Desk</source>
        <translation>Lumen Desk</translation>
    </message>
</context>
<context>
    <name>MonitorSwitcher</name>
    <message>
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
</context>
<context>
    <name>OsdTranslator</name>
    <message>
        <source>5000 K</source>
        <translation>5000 K</translation>
    </message>
    <message>
        <source>6500 K</source>
        <translation>6500 K</translation>
    </message>
    <message>
        <source>9300 K</source>
        <translation>9300 K</translation>
    </message>
    <message>
        <source>DCI</source>
        <translation>DCI</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>ユーザー設定</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>ネイティブ</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>会話</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
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
        <source>Studio</source>
        <translation>スタジオ</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>ウィジェット</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置情報</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>2 台のコンピューター</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Lumen Desk を表示</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Lumen Desk へようこそ</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>試す</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>ウィジェット</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>ウィンドウに表示する項目と順序を選びます。</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>対応モニターの接続中に配置できます。</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>このセッションでは、プログラムから解像度を変更できません。</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>このセッションでは、プログラムから画面を回転できません。</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>このセッションでは、プログラムから拡大率を変更できません。</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>このセッションでは、ほかのウィンドウが前面にある間、プログラムにキーが渡されません。ショートカットは Lumen Desk のウィンドウでのみ使えます。</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>このセッションでは、前面のアプリケーションがわかりません。</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>このセッションでは、プログラムからほかのアプリケーションのウィンドウを動かせません。</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>このセッションでは、プログラムからコピーと貼り付けのキーを押せません。2 つ目のクリップボードは使えません。</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>このセッションでは、ポインターの位置がわかりません。画面の端でキーボードとマウスは切り替わりません。</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>音声出力が見つかりません。システム音量と出力の選択には PulseAudio または PipeWire が必要です。</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>このデスクトップでは合成が行われていません。モニター自体の明るさより暗くすることはできません。</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>このセッションでは、ウィンドウを常に最前面に保てません。後から前面に来るものは暗くならないことがあります。</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>デスクトップセッションがありません。</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>X11 セッションでは使えます。</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>%1 を使用する権限がないため、そのモニターを操作できません。アカウントはすでにグループ %2 に属しています。一度ログアウトしてからログインし直してください。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>%1 を使用する権限がないため、そのモニターを操作できません。このプログラムの udev ルール %2 がインストールされていません。%3 にインストールしてコンピューターを再起動してください。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>%1 を使用する権限がないため、そのモニターを操作できません。このプログラムの udev ルール %2 がインストールされていません。%3 にインストールしてコンピューターを再起動するか、アカウントをグループ %4 に追加してログインし直してください。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>%1 を使用する権限がないため、そのモニターを操作できません。udev ルールはインストールされていますが、このセッションにはこのコンピューターのシートがありません。アカウントをグループ %2 に追加してログインし直してください。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>%1 を使用する権限がないため、そのモニターを操作できません。udev ルールはインストールされていますが、有効になっていません。root で "udevadm trigger --subsystem-match=i2c-dev" を実行するか、コンピューターを再起動してください。</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>システムに I2C デバイスファイルがないため、外部モニターを操作できません。カーネルモジュール i2c-dev を読み込んでください。root で "modprobe i2c-dev" を実行するか、このプログラムの modules-load.d/lumen-desk.conf をインストールしてコンピューターを再起動します。</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 は別のモニターにつながっています。そのモニターには何も送信していません。</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>2 台のコンピューター</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>1 台のモニターを共有する 2 台のコンピューターは、画面の端でキーボードとマウスを受け渡せます。接続すると、どちらにポインターがあるかを互いに把握し、出た場所から入ります。</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>2 台目のコンピューターとの接続</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>接続できるのはペアリングしたコンピューターだけで、ローカルネットワーク内で暗号化されます。伝わるのはポインターの位置だけで、キー入力、文字、ファイルは送られません。オンの間、このコンピューターの名前がネットワークに見えます。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>ローカルネットワークのアドレスがありません。</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>ペアリング済みのコンピューター</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>もう一度ペアリング</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>コンピューターをペアリング</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>名前のないコンピューター</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>最後の接続先: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>相手側で未ペアリング</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>応答はありますが、このコンピューターを覚えていません。もう一度ペアリングしてください。</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>同じネットワークで動作していれば自動的に見つかります。アドレスが変わった場合は、ここに入力できます。</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>別のアドレス</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>%1 を削除しますか?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>もう一度ペアリングするまで、2 台は接続しません。</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. 一方のコンピューターで</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>2 分間、1 回の呼び出しを待ちます。</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>もう一方を待つ</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. もう一方のコンピューターで</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>待っているコンピューターのアドレスを入力してください。Avahi サービスが動作していれば自動的に見つかります。</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>待っているコンピューターを選ぶか、アドレスを入力してください。</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>近くにこの機能がオンのコンピューターはありません。アドレスを入力することもできます。</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>ペアリング</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>%1 とペアリング</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>もう一方のコンピューターのアドレス</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>もう一方のコンピューターを待っています</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>もう一方のコンピューターを呼び出しています</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>もう一方のコンピューターでコードを確認してください</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 に同じコードが表示されていますか?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>もう一方のコンピューターに同じコードが表示されていますか?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>相手側でこのコンピューターを選ぶか、アドレスを入力してください: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>コードが違う場合は、誰かが割り込んでいます。「いいえ」と答えてください。</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>はい、ペアリング</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>システムの位置情報サービス</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue に都市だけを尋ねます。そのために、周囲のネットワークがインターネット上のサービスに送られることがあります。応答がなければタイムゾーンの都市を使います。</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>タイムゾーンの都市</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1。どこにも問い合わせません。</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>このタイムゾーンには都市がありません。</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>自分で選ぶ場所</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>どこにも問い合わせません。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>太陽には追従しません。自分で設定した時刻は引き続き使えます。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置情報</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>日の出と日の入りに従う機能には、おおよその場所が必要です。ほかには使われません。</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>使用中の位置</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>日の出と日の入りの時刻のため、100 分の 1 度に丸めて %1 に送られます。</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>日の出と日の入りの時刻はこのコンピューターで計算されます。位置はどこにも送られません。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>選んだ場所: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>選んだ場所</translation>
    </message>
    <message>
        <source>City</source>
        <translation>都市</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>タイムゾーンの名前になっている都市から選べます。ここに保存されており、何も送られません。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>赤道から北への度数。南は負の数です。</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>グリニッジから東への度数。西は負の数です。</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>緯度は -90 から 90、経度は -180 から 180 の数です。</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>接続をオンにできませんでした: %1。</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>192.168.1.7 のようなアドレスでも、コンピューターの名前でもありません。</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>ペアリングできるのはローカルネットワークのコンピューターだけです。</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>2 分以内にほかのコンピューターからの呼び出しがありませんでした。</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>2 分以内に両方のコンピューターでコードが確認されませんでした。</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>そこでは Lumen Desk が応答しません。2 台が同じネットワークにあるか、相手側で接続がオンか、ファイアウォールが通しているかを確認してください。</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>相手のコンピューターは待っていません。先に相手側で「もう一方を待つ」を選んでください。</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>相手のコンピューターでコードが確認されませんでした。</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>呼び出し元が規則に従っていません。ペアリングは行われませんでした。</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>その名前のコンピューターは見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>南緯 %1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>北緯 %1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>西経 %1°</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>東経 %1°</translation>
    </message>
</context>
</TS>
