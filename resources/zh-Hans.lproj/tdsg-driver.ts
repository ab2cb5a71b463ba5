<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActionText</name>
    <message>
        <source>No action</source>
        <extracomment>Action of a tablet key; must fit into the narrow lists of the key page.</extracomment>
        <translation>无操作</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>鼠标左键</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>鼠标右键</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>鼠标中键</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <extracomment>The mouse button that goes back, as in a browser; must fit into a narrow list.</extracomment>
        <translation>鼠标后退键</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <extracomment>Action of a tablet key, which asks for the application; must fit into a narrow list.</extracomment>
        <translation>打开应用程序…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>Action of a tablet key, which asks for keys; must fit into a narrow list.</extracomment>
        <translation>按下按键…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <extracomment>Maps the tablet to the next of several displays; must fit into a narrow list.</extracomment>
        <translation>切换到下一个显示器</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <extracomment>Slows the pointer down while the key is held; must fit into a narrow list.</extracomment>
        <translation>按住时精细移动</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <extracomment>The pen is ignored until the key is pressed again; must fit into a narrow list.</extracomment>
        <translation>暂停数位板</translation>
    </message>
    <message>
        <source>Open an application (unknown path)</source>
        <extracomment>Action of a tablet key.</extracomment>
        <translation>打开应用程序（路径未知）</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Action of a tablet key; %1 is the path of an application.</extracomment>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>Press no keys</source>
        <extracomment>Action of a tablet key: a key combination without keys.</extracomment>
        <translation>不按任何键</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>Action of a tablet key; %1 is a key combination, such as &quot;Ctrl Z&quot;.</extracomment>
        <translation>按下 %1</translation>
    </message>
    <message>
        <source>No action: the strip is off</source>
        <extracomment>Action of a scroll strip.</extracomment>
        <translation>无操作：触控条已关闭</translation>
    </message>
    <message>
        <source>Scroll at speed %1</source>
        <extracomment>Action of a scroll strip; %1 is 1 to 10.</extracomment>
        <translation>以速度 %1 滚动</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>The pen is paused</source>
        <extracomment>The user has pressed a key of the tablet that pauses it.</extracomment>
        <translation>笔已暂停</translation>
    </message>
    <message>
        <source>The pen works again</source>
        <translation>笔已恢复</translation>
    </message>
    <message>
        <source>The pen is on display #%1 (%2)</source>
        <extracomment>The pen is now on this display, %1 in the panel&apos;s list, with a connector such as DP-1.</extracomment>
        <translation>笔位于显示器 #%1（%2）</translation>
    </message>
</context>
<context>
    <name>TabletSurface</name>
    <message>
        <source>Surface</source>
        <extracomment>Read by screen readers: the part of the tablet on which the pen draws.</extracomment>
        <translation>板面</translation>
    </message>
    <message>
        <source>The tablet&apos;s surface. Press the mouse here to touch it with the pen. The arrow keys move the pen, with Shift in large steps; the space bar holds it down.</source>
        <translation>数位板的板面。在此处按下鼠标即相当于用笔接触。方向键移动笔，按住 Shift 时大步移动；按住空格键则笔保持按下。</translation>
    </message>
    <message>
        <source>The pen is down at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>笔已按下，位于 %1, %2。</translation>
    </message>
    <message>
        <source>The pen is up at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>笔已抬起，位于 %1, %2。</translation>
    </message>
</context>
<context>
    <name>TabletWindow</name>
    <message>
        <source>Tablet</source>
        <extracomment>Read by screen readers: the list of tablet models.</extracomment>
        <translation>数位板</translation>
    </message>
    <message>
        <source>The model that is attached.</source>
        <translation>已连接的型号。</translation>
    </message>
    <message>
        <source>No tablet</source>
        <extracomment>First item of the list of tablet models: none is attached.</extracomment>
        <translation>无数位板</translation>
    </message>
    <message>
        <source>&amp;Tablet:</source>
        <extracomment>Label of the list of tablet models.</extracomment>
        <translation>数位板(&amp;T)：</translation>
    </message>
    <message>
        <source>Pen:</source>
        <extracomment>Label of a line such as &quot;Pen: down at 100, 200&quot;.</extracomment>
        <translation>笔：</translation>
    </message>
    <message>
        <source>Panel:</source>
        <extracomment>Label of a line such as &quot;Panel: calibrating: it gets pen reports&quot;; the settings panel.</extracomment>
        <translation>设置面板：</translation>
    </message>
    <message>
        <source>Frame:</source>
        <extracomment>Label of the line that explains the frame drawn on the surface.</extracomment>
        <translation>边框：</translation>
    </message>
    <message>
        <source>Pressed:</source>
        <extracomment>Label of the line that shows the action of the key pressed last.</extracomment>
        <translation>按下：</translation>
    </message>
    <message>
        <source>The tablet could not be attached: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>无法连接数位板：%1</translation>
    </message>
    <message>
        <source>Virtual tablet</source>
        <extracomment>Window title.</extracomment>
        <translation>虚拟数位板</translation>
    </message>
    <message>
        <source>Virtual tablet: %1</source>
        <extracomment>Window title; %1 is the model&apos;s name.</extracomment>
        <translation>虚拟数位板：%1</translation>
    </message>
    <message>
        <source>No tablet is attached. Choose one above.</source>
        <translation>未连接数位板。请在上方选择一个。</translation>
    </message>
    <message>
        <source>no key yet; press one to see its action</source>
        <extracomment>Follows the label &quot;Pressed:&quot;.</extracomment>
        <translation>尚未按键；按下任意按键以查看其功能</translation>
    </message>
    <message>
        <source>Key %1</source>
        <extracomment>Name of an express key of the tablet; %1 is its number.</extracomment>
        <translation>按键 %1</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>笔的上键</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>笔的下键</translation>
    </message>
    <message>
        <source>Left scroll strip</source>
        <translation>左滚动触控条</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a key and what it does</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>unknown until the panel sends its settings</source>
        <translation>在设置面板发送设置之前未知</translation>
    </message>
    <message>
        <source>the part that covers the screen, x %1 to %2, y %3 to %4</source>
        <extracomment>Follows the label &quot;Frame:&quot;; x and y are ranges in tablet units.</extracomment>
        <translation>对应屏幕的部分，x %1 到 %2，y %3 到 %4</translation>
    </message>
    <message>
        <source>calibrating: it gets pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>正在校准：会收到笔的数据</translation>
    </message>
    <message>
        <source>not calibrating: it gets no pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>未在校准：不会收到笔的数据</translation>
    </message>
    <message>
        <source>down at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>按下，位于 %1, %2</translation>
    </message>
    <message>
        <source>up at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>抬起，位于 %1, %2</translation>
    </message>
</context>
</TS>
