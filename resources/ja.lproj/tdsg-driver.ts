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
    <name>Notices</name>
    <message>
        <source>The pen is paused</source>
        <extracomment>The user has pressed a key of the tablet that pauses it.</extracomment>
        <translation>ペンを一時停止しました</translation>
    </message>
    <message>
        <source>The pen works again</source>
        <translation>ペンを再び使えます</translation>
    </message>
    <message>
        <source>The pen is on display #%1 (%2)</source>
        <extracomment>The pen is now on this display, %1 in the panel&apos;s list, with a connector such as DP-1.</extracomment>
        <translation>ペンはディスプレイ #%1（%2）にあります</translation>
    </message>
</context>
<context>
    <name>TabletSurface</name>
    <message>
        <source>Surface</source>
        <extracomment>Read by screen readers: the part of the tablet on which the pen draws.</extracomment>
        <translation>操作面</translation>
    </message>
    <message>
        <source>The tablet&apos;s surface. Press the mouse here to touch it with the pen. The arrow keys move the pen, with Shift in large steps; the space bar holds it down.</source>
        <translation>タブレットの操作面です。ここでマウスのボタンを押すと、ペンで触れたことになります。矢印キーでペンを動かし、Shift を押しながらだと大きく動きます。スペースバーを押している間、ペンは触れたままになります。</translation>
    </message>
    <message>
        <source>The pen is down at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>ペンは %1, %2 で下りています。</translation>
    </message>
    <message>
        <source>The pen is up at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>ペンは %1, %2 で上がっています。</translation>
    </message>
</context>
<context>
    <name>TabletWindow</name>
    <message>
        <source>Tablet</source>
        <extracomment>Read by screen readers: the list of tablet models.</extracomment>
        <translation>タブレット</translation>
    </message>
    <message>
        <source>The model that is attached.</source>
        <translation>接続されている機種です。</translation>
    </message>
    <message>
        <source>No tablet</source>
        <extracomment>First item of the list of tablet models: none is attached.</extracomment>
        <translation>タブレットなし</translation>
    </message>
    <message>
        <source>&amp;Tablet:</source>
        <extracomment>Label of the list of tablet models.</extracomment>
        <translation>タブレット(&amp;T):</translation>
    </message>
    <message>
        <source>Pen:</source>
        <extracomment>Label of a line such as &quot;Pen: down at 100, 200&quot;.</extracomment>
        <translation>ペン:</translation>
    </message>
    <message>
        <source>Panel:</source>
        <extracomment>Label of a line such as &quot;Panel: calibrating: it gets pen reports&quot;; the settings panel.</extracomment>
        <translation>設定パネル:</translation>
    </message>
    <message>
        <source>Frame:</source>
        <extracomment>Label of the line that explains the frame drawn on the surface.</extracomment>
        <translation>枠:</translation>
    </message>
    <message>
        <source>Pressed:</source>
        <extracomment>Label of the line that shows the action of the key pressed last.</extracomment>
        <translation>押したもの:</translation>
    </message>
    <message>
        <source>The tablet could not be attached: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>タブレットを接続できません: %1</translation>
    </message>
    <message>
        <source>Virtual tablet</source>
        <extracomment>Window title.</extracomment>
        <translation>仮想タブレット</translation>
    </message>
    <message>
        <source>Virtual tablet: %1</source>
        <extracomment>Window title; %1 is the model&apos;s name.</extracomment>
        <translation>仮想タブレット: %1</translation>
    </message>
    <message>
        <source>No tablet is attached. Choose one above.</source>
        <translation>タブレットは接続されていません。上で選択してください。</translation>
    </message>
    <message>
        <source>no key yet; press one to see its action</source>
        <extracomment>Follows the label &quot;Pressed:&quot;.</extracomment>
        <translation>まだありません。キーを押すと動作が表示されます</translation>
    </message>
    <message>
        <source>Key %1</source>
        <extracomment>Name of an express key of the tablet; %1 is its number.</extracomment>
        <translation>キー %1</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>ペンの上ボタン</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>ペンの下ボタン</translation>
    </message>
    <message>
        <source>Left scroll strip</source>
        <translation>左スクロールストリップ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a key and what it does</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>unknown until the panel sends its settings</source>
        <translation>設定パネルが設定を送るまで不明です</translation>
    </message>
    <message>
        <source>the part that covers the screen, x %1 to %2, y %3 to %4</source>
        <extracomment>Follows the label &quot;Frame:&quot;; x and y are ranges in tablet units.</extracomment>
        <translation>画面に対応する範囲、x %1～%2、y %3～%4</translation>
    </message>
    <message>
        <source>calibrating: it gets pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>キャリブレーション中: ペンのデータが送られます</translation>
    </message>
    <message>
        <source>not calibrating: it gets no pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>キャリブレーション中ではありません: ペンのデータは送られません</translation>
    </message>
    <message>
        <source>down at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>接触中: %1, %2</translation>
    </message>
    <message>
        <source>up at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>離れている: %1, %2</translation>
    </message>
</context>
</TS>
