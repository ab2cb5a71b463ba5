<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActionText</name>
    <message>
        <source>No action</source>
        <extracomment>Action of a tablet key; must fit into the narrow lists of the key page.</extracomment>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>マウスの左ボタン</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>マウスの右ボタン</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>マウスの中ボタン</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <extracomment>The mouse button that goes back, as in a browser; must fit into a narrow list.</extracomment>
        <translation>マウスの「戻る」ボタン</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <extracomment>Action of a tablet key, which asks for the application; must fit into a narrow list.</extracomment>
        <translation>アプリケーションを開く…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>Action of a tablet key, which asks for keys; must fit into a narrow list.</extracomment>
        <translation>キーを押す…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <extracomment>Maps the tablet to the next of several displays; must fit into a narrow list.</extracomment>
        <translation>次のディスプレイへ移動</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <extracomment>Slows the pointer down while the key is held; must fit into a narrow list.</extracomment>
        <translation>押している間は精密操作</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <extracomment>The pen is ignored until the key is pressed again; must fit into a narrow list.</extracomment>
        <translation>タブレットを一時停止</translation>
    </message>
    <message>
        <source>Open an application (unknown path)</source>
        <extracomment>Action of a tablet key.</extracomment>
        <translation>アプリケーションを開く (パスは不明)</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Action of a tablet key; %1 is the path of an application.</extracomment>
        <translation>%1 を開く</translation>
    </message>
    <message>
        <source>Press no keys</source>
        <extracomment>Action of a tablet key: a key combination without keys.</extracomment>
        <translation>どのキーも押さない</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>Action of a tablet key; %1 is a key combination, such as &quot;Ctrl Z&quot;.</extracomment>
        <translation>%1 を押す</translation>
    </message>
    <message>
        <source>No action: the strip is off</source>
        <extracomment>Action of a scroll strip.</extracomment>
        <translation>何もしない: ストリップはオフです</translation>
    </message>
    <message>
        <source>Scroll at speed %1</source>
        <extracomment>Action of a scroll strip; %1 is 1 to 10.</extracomment>
        <translation>速度 %1 でスクロール</translation>
    </message>
</context>
<context>
    <name>ApplicationsDialog</name>
    <message>
        <source>Applications of the Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルのアプリケーション</translation>
    </message>
    <message>
        <source>With “Follow Applications”, the profile “%1” is used while one of these applications is in front:</source>
        <extracomment>%1 is the name of a profile; the quotation marks are those of the menu item.</extracomment>
        <translation>「アプリケーションに追従」がオンの場合、次のアプリケーションのどれかが最前面にある間、プロファイル「%1」が使用されます:</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <extracomment>Button: chooses another application for the list.</extracomment>
        <translation>追加(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>Button: takes the selected application out of the list.</extracomment>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <extracomment>Button: takes the list of applications.</extracomment>
        <translation>OK(&amp;O)</translation>
    </message>
</context>
<context>
    <name>EntryName</name>
    <message>
        <source>upper pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>ペンの上ボタン</translation>
    </message>
    <message>
        <source>lower pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>ペンの下ボタン</translation>
    </message>
    <message>
        <source>key %1</source>
        <extracomment>After &quot;Undo:&quot;; %1 is the number of an express key.</extracomment>
        <translation>キー %1</translation>
    </message>
    <message>
        <source>pressure</source>
        <extracomment>After &quot;Undo:&quot;: the pressure curve.</extracomment>
        <translation>筆圧</translation>
    </message>
    <message>
        <source>pen speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>ペンの速度</translation>
    </message>
    <message>
        <source>left scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>左スクロールストリップ</translation>
    </message>
    <message>
        <source>right scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>右スクロールストリップ</translation>
    </message>
    <message>
        <source>scroll speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>スクロール速度</translation>
    </message>
    <message>
        <source>display</source>
        <extracomment>After &quot;Undo:&quot;: the display that the tablet is mapped to.</extracomment>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>report speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>送信速度</translation>
    </message>
    <message>
        <source>orientation</source>
        <extracomment>After &quot;Undo:&quot;: how the tablet lies on the desk.</extracomment>
        <translation>向き</translation>
    </message>
    <message>
        <source>area of the tablet</source>
        <extracomment>After &quot;Undo:&quot;: the part of the tablet that is in use.</extracomment>
        <translation>タブレットの領域</translation>
    </message>
</context>
<context>
    <name>FollowService</name>
    <message>
        <source>Your session has no bus that answers.</source>
        <translation>応答するセッションバスがありません。</translation>
    </message>
    <message>
        <source>Your session has no systemd user manager, which would start the service.</source>
        <translation>サービスを起動する systemd のユーザーマネージャーがセッションにありません。</translation>
    </message>
    <message>
        <source>The service %1 is not installed.</source>
        <extracomment>%1 is the name of a service of systemd.</extracomment>
        <translation>サービス %1 がインストールされていません。</translation>
    </message>
    <message>
        <source>The service %1 cannot be turned on: it is %2.</source>
        <extracomment>%1 is the name of a service of systemd, %2 one of systemd&apos;s words, such as &quot;masked&quot;.</extracomment>
        <translation>サービス %1 を有効にできません。状態: %2</translation>
    </message>
    <message>
        <source>“Follow Applications” was not changed: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>「アプリケーションに追従」は変更されませんでした: %1</translation>
    </message>
    <message>
        <source>Profiles do not follow applications now: the service does not run. What “systemctl --user status qvtblt-follow” prints may say why.</source>
        <extracomment>The words in quotation marks are a command.</extracomment>
        <translation>プロファイルは現在アプリケーションに追従していません。サービスが実行されていません。「systemctl --user status qvtblt-follow」の出力に理由が表示されることがあります。</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルのインポート</translation>
    </message>
    <message>
        <source>What is in the profile</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>プロファイルの内容</translation>
    </message>
    <message>
        <source>It changes nothing.</source>
        <translation>何も変更しません。</translation>
    </message>
    <message>
        <source>It changes:</source>
        <translation>変更される設定:</translation>
    </message>
    <message>
        <source>Left out, because it does not fit your tablet:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>お使いのタブレットに合わないため除かれる設定:</translation>
    </message>
    <message>
        <source>It is for these applications:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>対象のアプリケーション:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <extracomment>Button: keeps what is in the file as a profile.</extracomment>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>The profile will be in the list as “%1”. It is not used yet.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>プロファイルは「%1」として一覧に追加されます。まだ使用はされません。</translation>
    </message>
    <message>
        <source>Some of its buttons would start an application. Allow only what you know and trust; the others do nothing.</source>
        <translation>アプリケーションを起動するボタンがあります。知っていて信頼できるものだけを許可してください。ほかのボタンは何もしません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Let this button start it</source>
        <extracomment>Check box: a button of the tablet may start the application whose path is above.</extracomment>
        <translation>このボタンでの起動を許可する</translation>
    </message>
    <message>
        <source>%1: let this button start %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: このボタンでの %2 の起動を許可する</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>Applications</source>
        <extracomment>Kind of files in the dialog for choosing an application.</extracomment>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>これはアプリケーションではありません。デスクトップエントリ、AppImage、またはアプリケーションバンドルを選択してください。</translation>
    </message>
    <message>
        <source>Choose the file of an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>アプリケーションのファイルの選択</translation>
    </message>
</context>
<context>
    <name>PaneEdits</name>
    <message>
        <source>Edit</source>
        <extracomment>Button beside the tabs, which opens a menu with Undo and Redo.</extracomment>
        <translation>編集</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>元に戻す: %1 (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>やり直す: %1 (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>保存されている設定に戻します</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open.</extracomment>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>現在の設定を保存します</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>設定は保存されませんでした: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>タブレットの設定を読み込めないため、ページには表示されていません: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>タブレットのドライバーが最後の変更を受け取っていません。動作していますか？</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <extracomment>Button: saves or loads the settings again.</extracomment>
        <translation>再試行(&amp;A)</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <extracomment>Button: sends the settings to the driver again.</extracomment>
        <translation>再送信(&amp;A)</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>タブレットの設定を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>ウィンドウを閉じて変更を破棄しますか？</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <extracomment>Button: the window stays open, with its unsaved changes.</extracomment>
        <translation>開いたままにする(&amp;K)</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>前のタブレットの設定は保存されませんでした: %1</translation>
    </message>
    <message>
        <source>Find the &amp;Problem…</source>
        <extracomment>Button where no tablet is found: opens the self-check.</extracomment>
        <translation>問題を調べる(&amp;P)…</translation>
    </message>
    <message>
        <source>Check the tablet, its driver and the panel</source>
        <translation>タブレット、ドライバー、パネルを確認します</translation>
    </message>
    <message>
        <source>The monitor that you chose for the tablet is now display %1.</source>
        <extracomment>%1 is a number in the list of displays.</extracomment>
        <translation>タブレット用に選んだディスプレイは、現在 %1 番です。</translation>
    </message>
    <message>
        <source>Choose Displa&amp;y %1</source>
        <extracomment>Button: maps the tablet to the display with the number %1.</extracomment>
        <translation>ディスプレイ %1 を選択(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>ProfileBar</name>
    <message>
        <source>None</source>
        <extracomment>Item of the list of profiles, while the settings are those of none.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <extracomment>Label of the list of profiles; a profile is a set of all settings of the tablet.</extracomment>
        <translation>プロファイル(&amp;P):</translation>
    </message>
    <message>
        <source>Each profile has all settings of the tablet for one kind of work.</source>
        <extracomment>Describes the list of profiles.</extracomment>
        <translation>各プロファイルには、ある作業のためのタブレットの設定がすべて入っています。</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <extracomment>Button: saves the current settings as a profile, and asks for its name.</extracomment>
        <translation>名前を付けて保存(&amp;N)…</translation>
    </message>
    <message>
        <source>Save the current settings as a profile</source>
        <translation>現在の設定をプロファイルとして保存します</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>Button beside the list of profiles: opens a menu with what else can be done with them.</extracomment>
        <translation>その他</translation>
    </message>
    <message>
        <source>Manage the profiles</source>
        <translation>プロファイルを管理します</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <extracomment>Menu item: gives the current profile another name.</extracomment>
        <translation>名前を変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <extracomment>Menu item: makes a copy of the current profile.</extracomment>
        <translation>複製(&amp;D)…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <extracomment>Menu item: deletes the current profile.</extracomment>
        <translation>削除(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Applications…</source>
        <extracomment>Menu item: which applications the current profile is for.</extracomment>
        <translation>アプリケーション(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <extracomment>Menu item: takes a profile from a file.</extracomment>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <extracomment>Menu item: writes the current profile into a file.</extracomment>
        <translation>エクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>&amp;Follow Applications</source>
        <extracomment>Menu item with a check mark: profiles change with the application in front.</extracomment>
        <translation>アプリケーションに追従(&amp;F)</translation>
    </message>
    <message>
        <source>Use a profile while one of its applications is in front</source>
        <extracomment>Describes the menu item &quot;Follow Applications&quot;.</extracomment>
        <translation>プロファイルのアプリケーションが最前面にある間、そのプロファイルを使用します</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルの保存</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>Button: saves the settings under the name.</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace it with the current settings?</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>プロファイル「%1」はすでにあります。現在の設定で置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>Button: a profile that is there is replaced.</extracomment>
        <translation>置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルの名前の変更</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <extracomment>Button: gives the profile the name.</extracomment>
        <translation>変更(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルの複製</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <extracomment>Button: makes a copy of the profile with the name.</extracomment>
        <translation>複製(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the profile “%1”? The tablet keeps its settings.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>プロファイル「%1」を削除しますか？タブレットの設定はそのまま残ります。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: deletes a profile.</extracomment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Choose a Profile to Import</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>インポートするプロファイルの選択</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Export Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>プロファイルのエクスポート</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button of a question: does nothing.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Follow Applications (not running)</source>
        <extracomment>The same menu item, where the service that does it is on, but has ended.</extracomment>
        <translation>アプリケーションに追従（実行されていません）(&amp;F)</translation>
    </message>
</context>
<context>
    <name>ProfileNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <extracomment>Label of the field for a profile&apos;s name.</extracomment>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>4 つのうち 1 番目の十字、左上です。</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>4 つのうち 2 番目の十字、右上です。</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>4 つのうち 3 番目の十字、右下です。</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>4 つのうち 4 番目の十字、左下です。</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <extracomment>Heading of the question whether to keep the calibration.</extracomment>
        <translation>キャリブレーション完了</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <extracomment>Heading of the message that the crosses were touched in a wrong order.</extracomment>
        <translation>キャリブレーション失敗</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <extracomment>Title of the window with the crosses.</extracomment>
        <translation>キャリブレーション</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Read by screen readers for the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>筆圧 %1%</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Key Combination</source>
        <translation>キーの組み合わせ</translation>
    </message>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <extracomment>Shown in the empty field of chosen keys; must fit into it</extracomment>
        <translation>押す順に、キーを 3 つまで選択してください</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>選択したキー</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: removes the key chosen last</extracomment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>最後のキーを削除します</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>Name of the key Esc</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Minus</source>
        <extracomment>Name of the key -</extracomment>
        <translation>マイナス</translation>
    </message>
    <message>
        <source>Plus</source>
        <extracomment>Name of the key +</extracomment>
        <translation>プラス</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>Name of the key Bksp</extracomment>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Control</source>
        <extracomment>Name of the key Ctrl</extracomment>
        <translation>Control</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>Name of the key Cmd, the Windows or Super key</extracomment>
        <translation>Command</translation>
    </message>
    <message>
        <source>Page up</source>
        <extracomment>Name of the key PgUp</extracomment>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page down</source>
        <extracomment>Name of the key PgDn</extracomment>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>このモデルの図はありません。</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <extracomment>Read by screen readers for the picture of the tablet; %1 is the model&apos;s name.</extracomment>
        <translation>%1。各キーには、対応するリストの番号が付いています。</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, %2 by %3 its size, %4, %5 its position.</extracomment>
        <translation>%1: %2 × %3 ポイント、左上の位置は %4, %5 です。</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <extracomment>Read by screen readers; %1 is an item of the display list, such as &quot;Display #1&quot;.</extracomment>
        <translation>タブレットの対応範囲は %1 です。</translation>
    </message>
    <message>
        <source>Choose one display first: only one display can be calibrated at a time.</source>
        <translation>先にディスプレイを1つ選んでください。一度にキャリブレーションできるディスプレイは1つだけです。</translation>
    </message>
</context>
<context>
    <name>QVPaneProfiles</name>
    <message>
        <source>No tablet is attached.</source>
        <translation>タブレットが接続されていません。</translation>
    </message>
    <message>
        <source>The tablet is being calibrated. Finish that first.</source>
        <translation>タブレットのキャリブレーション中です。先に完了してください。</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Part of the line below the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>筆圧 %1%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <extracomment>%1 and %2 are degrees, negative for left and up.</extracomment>
        <translation>傾き 右へ %1°、下へ %2°</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <extracomment>Rotation of the pen about its own axis; %1 is in degrees.</extracomment>
        <translation>回転 %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <extracomment>Position of the pen; %1 is x, %2 is y.</extracomment>
        <translation>デスクトップ上の位置 %1, %2</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <extracomment>%1 is the number of the input device.</extracomment>
        <translation>ペン番号 %1</translation>
    </message>
</context>
<context>
    <name>QVPressFit</name>
    <message>
        <source>Programs receive %1 % of the full pressure at a quarter of it, %2 % at half and %3 % at three quarters.</source>
        <extracomment>Read by screen readers for the new pressure curve; %1 to %3 are percentages.</extracomment>
        <translation>最大筆圧でプログラムが受け取る値に対して、4 分の 1 の筆圧では %1%、半分では %2%、4 分の 3 では %3% を受け取ります。</translation>
    </message>
    <message>
        <source>Fit the pressure to your hand</source>
        <extracomment>Title of the dialog that fits the pressure curve to the user&apos;s hand.</extracomment>
        <translation>筆圧を手に合わせる</translation>
    </message>
    <message>
        <source>Pad to press on</source>
        <translation>押すためのパッド</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>筆圧カーブ</translation>
    </message>
    <message>
        <source>Start &amp;Again</source>
        <extracomment>Button: forgets both presses, and asks for the first one again.</extracomment>
        <translation>やり直す(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and leaves the pressure curve as it is.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <extracomment>Button: takes the new pressure curve.</extracomment>
        <translation>使用(&amp;U)</translation>
    </message>
    <message>
        <source>Press on the pad as lightly as you ever do, and lift the pen.</source>
        <translation>ふだんのいちばん軽い力でパッドを押してから、ペンを離してください。</translation>
    </message>
    <message>
        <source>Now press as hard as you ever do, and lift the pen.</source>
        <translation>次に、ふだんのいちばん強い力で押してから、ペンを離してください。</translation>
    </message>
    <message>
        <source>That was not harder than the first time. Press as hard as you ever do, and lift the pen.</source>
        <translation>最初より強くありませんでした。ふだんのいちばん強い力で押してから、ペンを離してください。</translation>
    </message>
    <message>
        <source>The curve fits your hand as it is.</source>
        <translation>筆圧カーブは今のままで手に合っています。</translation>
    </message>
    <message>
        <source>The thick line is the curve that fits your hand: the middle between your lightest and your hardest touch has half of the full effect.</source>
        <translation>太い線が手に合う筆圧カーブです。いちばん軽い力といちばん強い力の中間で、効果が半分になります。</translation>
    </message>
    <message>
        <source>Press here with the pen.</source>
        <translation>ここをペンで押してください。</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Pen</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>ペン</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>消しゴム、シリアル番号 %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>ペン、シリアル番号 %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <extracomment>A label below the drawing pad: no pen is near enough for the tablet to detect it.</extracomment>
        <translation>ペンが検出範囲にありません</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <extracomment>Read by screen readers for the pressure curve; %2 to %4 are percentages.</extracomment>
        <translation>しきい値は 200 のうち %1 です。最大筆圧でプログラムが受け取る値に対して、4 分の 1 の筆圧では %2%、半分では %3%、4 分の 3 では %4% を受け取ります。</translation>
    </message>
</context>
<context>
    <name>QVProfile</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>プロファイルには名前が必要です。</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>名前が %1 文字を超えています。</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be shown.</source>
        <translation>表示できない文字が名前に含まれています。</translation>
    </message>
    <message>
        <source>The file is not a profile.</source>
        <translation>プロファイルではありません。</translation>
    </message>
    <message>
        <source>The file is a profile of an unsupported version.</source>
        <translation>別のバージョンのプロファイルです。</translation>
    </message>
</context>
<context>
    <name>QVProfileFolder</name>
    <message>
        <source>There is no profile “%1”.</source>
        <translation>プロファイル「%1」はありません。</translation>
    </message>
    <message>
        <source>There is already a profile “%1”.</source>
        <translation>プロファイル「%1」はすでにあります。</translation>
    </message>
</context>
<context>
    <name>QVProfileImport</name>
    <message>
        <source>%1: %2</source>
        <extracomment>What an imported profile sets: %1 is a button, such as &quot;key 3&quot;, %2 its action.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>QVProfileSwitch</name>
    <message>
        <source>Before %1</source>
        <extracomment>The name of a profile with what was set before the profile %1 was used.</extracomment>
        <translation>%1 の前</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>プロファイルがありません。</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>The name of a profile with the settings of a user who had no profiles for them.</extracomment>
        <translation>標準</translation>
    </message>
</context>
<context>
    <name>QVSlotPath</name>
    <message>
        <source>The path contains characters that the tablet&apos;s settings cannot hold.</source>
        <translation>パスに、タブレットの設定に保存できない文字が含まれています。</translation>
    </message>
    <message>
        <source>The path is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>パスが %1 文字を超えています。</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Quorvia タブレット</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <extracomment>Page with the actions of the keys; tab title</extracomment>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>タブレットの図</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>左スクロールストリップ(&amp;L)</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>右スクロールストリップ(&amp;R)</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>エクスプレスキー 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <extracomment>Label of a slider</extracomment>
        <translation>スクロール速度(&amp;S):</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>スクロール速度</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <extracomment>Label of a list: the upper button on the barrel of the pen</extracomment>
        <translation>ペンの上ボタン(&amp;U):</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>ペンの上ボタン</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <extracomment>Label of a list: the lower button on the barrel of the pen</extracomment>
        <translation>ペンの下ボタン(&amp;O):</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>ペンの下ボタン</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <extracomment>Page with pressure curve and drawing pad; tab title</extracomment>
        <translation>ペン(&amp;E)</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>Heading of the pressure curve and its slider</extracomment>
        <translation>筆圧</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <extracomment>Use the same words as at the ends of the slider</extracomment>
        <translation>軽い: 軽く触れるだけで強く反応します。重い: 同じ効果を得るのにより強く押す必要があります。</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <extracomment>Vertical axis of the pressure curve; must fit into its height</extracomment>
        <translation>↑ プログラムが受け取る筆圧</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>筆圧カーブ</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <extracomment>Horizontal axis of the pressure curve</extracomment>
        <translation>ペンを押す強さ →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>Left end of the pressure slider: a light touch is enough</extracomment>
        <translation>軽い(&amp;L)</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>筆圧 (軽い～重い)</translation>
    </message>
    <message>
        <source>Heavy</source>
        <extracomment>Right end of the pressure slider: you have to press hard</extracomment>
        <translation>重い</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <extracomment>Heading of the drawing pad</extracomment>
        <translation>ペンを試す</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>太さを筆圧に連動(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>不透明度を筆圧に連動(&amp;O)</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <extracomment>Button: clears the drawing pad</extracomment>
        <translation>クリア(&amp;R)</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>描画エリアを消去します</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>描画エリア</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>ここにペンまたはマウスで描いてください。</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <extracomment>Label of the current pressure, a number from 0 to 65535</extracomment>
        <translation>筆圧 (最大 65535):</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <extracomment>Page that maps the tablet to a display; tab title</extracomment>
        <translation>ディスプレイ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <extracomment>Label of the list of displays</extracomment>
        <translation>タブレットの対応先(&amp;M):</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>タブレットの対応先</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>ペンで操作できるデスクトップの範囲です。</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <extracomment>Label of a list: how the tablet lies on the desk</extracomment>
        <translation>向き(&amp;O):</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>キーを反対側の手で使うときは、タブレットを回転させます。</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>180°回転</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>回転なし</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>送信速度(&amp;R):</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>送信速度</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>「高速」では手の動きにより忠実に追従します。設定は USB 経由でタブレット本体に送られます。</translation>
    </message>
    <message>
        <source>Fast</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>高速</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>標準</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <extracomment>Button; its corners become those of the display</extracomment>
        <translation>タブレット全体を使う(&amp;W)</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>操作面全体で、選択したデスクトップの範囲を操作します。</translation>
    </message>
    <message>
        <source>Keep propor&amp;tions</source>
        <extracomment>Button: the tablet gets the proportions of the display, so that circles stay round</extracomment>
        <translation>縦横比を維持(&amp;T)</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>円が歪まないように、タブレットの一部を使わずに残します。</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <extracomment>Button: opens the calibration</extracomment>
        <translation>キャリブレーション(&amp;B)…</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>選択したディスプレイに表示される 4 つの十字に触れて、ペン先とポインターの位置を合わせます。</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>ディスプレイとタブレットの図</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>保存されている設定に戻します</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open</extracomment>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>現在の設定を保存します</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>タブレットは接続されていますか？ ドライバーは動作していますか？ 両方がそろうと、設定がここに自動的に表示されます。</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <extracomment>In place of a model&apos;s name; %1 is the USB product ID, four hexadecimal digits.</extracomment>
        <translation>不明なタブレット (製品 %1)</translation>
    </message>
    <message>
        <source>%1 is pressed</source>
        <extracomment>Read by screen readers; %1 is the name of a key or of a button of the pen.</extracomment>
        <translation>%1 が押されています</translation>
    </message>
    <message>
        <source>&amp;Identify displays</source>
        <extracomment>Button: shows on each display which one it is</extracomment>
        <translation>ディスプレイを識別(&amp;I)</translation>
    </message>
    <message>
        <source>Shows the number of each display on the display itself, for three seconds.</source>
        <translation>各ディスプレイの番号を、そのディスプレイ自体に 3 秒間表示します。</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <extracomment>On a display; %1 is its maker and model, %2 and %3 its width and height.</extracomment>
        <translation>%1、%2 × %3 ピクセル</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, such as &quot;Display #1&quot;, %2 its maker and size.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>several settings</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>複数の設定</translation>
    </message>
    <message>
        <source>&amp;Fit to My Hand…</source>
        <extracomment>Button: opens a dialog that sets the pressure by two touches</extracomment>
        <translation>自分の手に合わせる(&amp;F)…</translation>
    </message>
    <message>
        <source>Press once lightly and once hard to find the curve that fits.</source>
        <translation>一度軽く、一度強く押して、合う筆圧カーブを見つけます。</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>Log out and in again.</source>
        <translation>ログアウトして、もう一度ログインしてください。</translation>
    </message>
    <message>
        <source>Restart the driver, or log out and in again.</source>
        <translation>ドライバーを再起動するか、ログアウトしてもう一度ログインしてください。</translation>
    </message>
    <message>
        <source>Plug the tablet in again. If that does not help, log out and in again.</source>
        <translation>タブレットを接続し直してください。それでも変わらないときは、ログアウトしてもう一度ログインしてください。</translation>
    </message>
    <message>
        <source>End that program, and plug the tablet in again.</source>
        <translation>そのプログラムを終了して、タブレットを接続し直してください。</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>セッションバスがありません。</translation>
    </message>
    <message>
        <source>Log out and in again. Without a desktop, use dbus-run-session.</source>
        <translation>ログアウトして、もう一度ログインしてください。デスクトップがない場合は dbus-run-session を使います。</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>セッションバスが応答しません。</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>セッションバスは応答しています。</translation>
    </message>
    <message>
        <source>The driver is running.</source>
        <translation>ドライバーは動作しています。</translation>
    </message>
    <message>
        <source>The driver was not running and has been started.</source>
        <translation>ドライバーは動作していなかったため、起動しました。</translation>
    </message>
    <message>
        <source>No driver is installed.</source>
        <translation>ドライバーがインストールされていません。</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver.</source>
        <translation>パッケージ tdsg-driver をインストールしてください。</translation>
    </message>
    <message>
        <source>The driver cannot be started.</source>
        <translation>ドライバーを起動できません。</translation>
    </message>
    <message>
        <source>Log out and in again. The reason is in the journal of the session.</source>
        <translation>ログアウトして、もう一度ログインしてください。理由はセッションのジャーナルにあります。</translation>
    </message>
    <message>
        <source>The driver does not answer in time.</source>
        <translation>ドライバーが時間内に応答しません。</translation>
    </message>
    <message>
        <source>The driver answers in time.</source>
        <translation>ドライバーは時間内に応答しています。</translation>
    </message>
    <message>
        <source>The driver has a tablet of its own, such as a simulated one.</source>
        <translation>ドライバーは、シミュレートされたものなど、独自のタブレットを使っています。</translation>
    </message>
    <message>
        <source>No tablet is connected.</source>
        <translation>タブレットが接続されていません。</translation>
    </message>
    <message>
        <source>Connect the tablet, or switch it on. If it is connected, try another socket or cable.</source>
        <translation>タブレットを接続するか、電源を入れてください。接続している場合は、別の端子やケーブルを試してください。</translation>
    </message>
    <message>
        <source>A tablet is connected, but the driver does not use it: %1.</source>
        <translation>タブレットは接続されていますが、ドライバーが使用していません: %1。</translation>
    </message>
    <message>
        <source>Do what the following lines say. Otherwise, plug the tablet in again, or restart the driver.</source>
        <translation>以下の行に従ってください。何もない場合は、タブレットを接続し直すか、ドライバーを再起動してください。</translation>
    </message>
    <message>
        <source>A tablet is connected: %1.</source>
        <translation>タブレットが接続されています: %1。</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver-access, and plug the tablet in again.</source>
        <translation>パッケージ tdsg-driver-access をインストールして、タブレットを接続し直してください。</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet.</source>
        <translation>タブレットを開く権限がありません。</translation>
    </message>
    <message>
        <source>You may not open /dev/uinput, which the driver needs.</source>
        <translation>ドライバーに必要な /dev/uinput を開く権限がありません。</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet over USB, so its speed cannot be set.</source>
        <translation>USB でタブレットを開く権限がないため、速度を設定できません。</translation>
    </message>
    <message>
        <source>Install the package qvtblt, and plug the tablet in again.</source>
        <translation>パッケージ qvtblt をインストールして、タブレットを接続し直してください。</translation>
    </message>
    <message>
        <source>You may open the tablet.</source>
        <translation>タブレットを開く権限があります。</translation>
    </message>
    <message>
        <source>Another program has the tablet open: %1.</source>
        <translation>別のプログラムがタブレットを開いています: %1。</translation>
    </message>
    <message>
        <source>A program has taken the tablet from the system&apos;s drivers.</source>
        <translation>あるプログラムが、システムのドライバーからタブレットを切り離しています。</translation>
    </message>
    <message>
        <source>None of your programs has the tablet open.</source>
        <translation>お使いのプログラムはどれもタブレットを開いていません。</translation>
    </message>
    <message>
        <source>There is no settings file.</source>
        <translation>設定ファイルがありません。</translation>
    </message>
    <message>
        <source>Restart the driver, which makes the file.</source>
        <translation>ドライバーを再起動すると、ファイルが作成されます。</translation>
    </message>
    <message>
        <source>The settings file cannot be used.</source>
        <translation>設定ファイルを使用できません。</translation>
    </message>
    <message>
        <source>Move the file away and restart the driver, which makes a new one.</source>
        <translation>ファイルを移動してドライバーを再起動すると、新しいファイルが作成されます。</translation>
    </message>
    <message>
        <source>The settings file cannot be written.</source>
        <translation>設定ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Give yourself write permission for the file and its folder.</source>
        <translation>ファイルとフォルダーに書き込む権限を自分に与えてください。</translation>
    </message>
    <message>
        <source>The disk with the settings file has no room left.</source>
        <translation>設定ファイルのあるディスクに空きがありません。</translation>
    </message>
    <message>
        <source>Delete something from this disk.</source>
        <translation>このディスクから何かを削除してください。</translation>
    </message>
    <message>
        <source>The settings file can be read and written.</source>
        <translation>設定ファイルの読み書きができます。</translation>
    </message>
    <message>
        <source>No settings have been sent yet.</source>
        <translation>まだ設定は送信されていません。</translation>
    </message>
    <message>
        <source>The driver has not accepted the last change.</source>
        <translation>ドライバーは最後の変更を受け付けていません。</translation>
    </message>
    <message>
        <source>The driver has accepted the settings.</source>
        <translation>ドライバーは設定を受け付けました。</translation>
    </message>
    <message>
        <source>The panel is not installed.</source>
        <translation>パネルがインストールされていません。</translation>
    </message>
    <message>
        <source>Install the package qvtblt.</source>
        <translation>パッケージ qvtblt をインストールしてください。</translation>
    </message>
    <message>
        <source>The panel does not fit the version of Qt: it was built for %1.</source>
        <translation>パネルが Qt のバージョンに合いません: %1 用に作られています。</translation>
    </message>
    <message>
        <source>Install the panel of the same release as the desktop.</source>
        <translation>デスクトップと同じリリースのパネルをインストールしてください。</translation>
    </message>
    <message>
        <source>The panel matches the version of Qt, %1.</source>
        <translation>パネルは Qt のバージョン %1 に合っています。</translation>
    </message>
    <message>
        <source>There is no desktop.</source>
        <translation>デスクトップがありません。</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen if the desktop&apos;s own settings map the pen to all displays.</source>
        <translation>デスクトップ自体の設定でペンがすべてのディスプレイに割り当てられていれば、ペンのディスプレイを選べます。</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen.</source>
        <translation>ペンのディスプレイを選べます。</translation>
    </message>
    <message>
        <source>The driver was not checked.</source>
        <translation>ドライバーは確認していません。</translation>
    </message>
    <message>
        <source>The driver was not asked.</source>
        <translation>ドライバーへの問い合わせはしていません。</translation>
    </message>
    <message>
        <source>Access to the tablet was not checked.</source>
        <translation>タブレットを開く権限は確認していません。</translation>
    </message>
    <message>
        <source>Other programs were not checked.</source>
        <translation>ほかのプログラムは確認していません。</translation>
    </message>
    <message>
        <source>The settings file was not checked.</source>
        <translation>設定ファイルは確認していません。</translation>
    </message>
    <message>
        <source>Sending settings was not checked.</source>
        <translation>設定の送信は確認していません。</translation>
    </message>
    <message>
        <source>The choice of the pen&apos;s display was not checked.</source>
        <translation>ペンのディスプレイの選択は確認していません。</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>Self-Check</source>
        <extracomment>Title of the window that says what is wrong with tablet, driver and panel.</extracomment>
        <translation>自己診断</translation>
    </message>
    <message>
        <source>What was checked</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>確認した項目</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <extracomment>Button of the self-check.</extracomment>
        <translation>もう一度確認(&amp;G)</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <extracomment>Button of the self-check: copies what was found to the clipboard.</extracomment>
        <translation>レポートをコピー(&amp;R)</translation>
    </message>
    <message>
        <source>For the person who helps you. It contains no personal data.</source>
        <translation>助けてくれる人のためのものです。個人的な情報は含まれません。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>問題は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Something is wrong. Begin with the first problem:</source>
        <translation>問題があります。最初の問題から始めてください:</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is OK, Problem or Not checked, %2 what was found.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>platform::ApplicationChooser</name>
    <message>
        <source>Choose an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>アプリケーションの選択</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Shown in the empty search field above the list of applications.</extracomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search for an application</source>
        <translation>アプリケーションを検索</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>No application matches the search.</source>
        <translation>検索に一致するアプリケーションがありません。</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <extracomment>Button: choose a file that is not in the list of applications.</extracomment>
        <translation>その他のファイル(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: leaves the dialog without choosing an application.</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;hoose</source>
        <extracomment>Button: takes the selected application.</extracomment>
        <translation>選択(&amp;H)</translation>
    </message>
</context>
</TS>
