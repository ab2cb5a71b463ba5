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
    <name>ApplicationsDialog</name>
    <message>
        <source>Applications of the Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>配置方案的应用程序</translation>
    </message>
    <message>
        <source>With “Follow Applications”, the profile “%1” is used while one of these applications is in front:</source>
        <extracomment>%1 is the name of a profile; the quotation marks are those of the menu item.</extracomment>
        <translation>启用“跟随应用程序”后，当以下某个应用程序位于最前面时使用配置方案“%1”：</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <extracomment>Button: chooses another application for the list.</extracomment>
        <translation>添加(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>Button: takes the selected application out of the list.</extracomment>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <extracomment>Button: takes the list of applications.</extracomment>
        <translation>确定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>EntryName</name>
    <message>
        <source>upper pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>笔的上键</translation>
    </message>
    <message>
        <source>lower pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>笔的下键</translation>
    </message>
    <message>
        <source>key %1</source>
        <extracomment>After &quot;Undo:&quot;; %1 is the number of an express key.</extracomment>
        <translation>快捷键 %1</translation>
    </message>
    <message>
        <source>pressure</source>
        <extracomment>After &quot;Undo:&quot;: the pressure curve.</extracomment>
        <translation>压感</translation>
    </message>
    <message>
        <source>pen speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>笔的速度</translation>
    </message>
    <message>
        <source>left scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>左滚动触控条</translation>
    </message>
    <message>
        <source>right scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>右滚动触控条</translation>
    </message>
    <message>
        <source>scroll speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>滚动速度</translation>
    </message>
    <message>
        <source>display</source>
        <extracomment>After &quot;Undo:&quot;: the display that the tablet is mapped to.</extracomment>
        <translation>显示器</translation>
    </message>
    <message>
        <source>report speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>报告速度</translation>
    </message>
    <message>
        <source>orientation</source>
        <extracomment>After &quot;Undo:&quot;: how the tablet lies on the desk.</extracomment>
        <translation>方向</translation>
    </message>
    <message>
        <source>area of the tablet</source>
        <extracomment>After &quot;Undo:&quot;: the part of the tablet that is in use.</extracomment>
        <translation>数位板区域</translation>
    </message>
</context>
<context>
    <name>FollowService</name>
    <message>
        <source>Your session has no bus that answers.</source>
        <translation>您的会话没有响应的总线。</translation>
    </message>
    <message>
        <source>Your session has no systemd user manager, which would start the service.</source>
        <translation>您的会话没有用于启动该服务的 systemd 用户管理器。</translation>
    </message>
    <message>
        <source>The service %1 is not installed.</source>
        <extracomment>%1 is the name of a service of systemd.</extracomment>
        <translation>服务 %1 未安装。</translation>
    </message>
    <message>
        <source>The service %1 cannot be turned on: it is %2.</source>
        <extracomment>%1 is the name of a service of systemd, %2 one of systemd&apos;s words, such as &quot;masked&quot;.</extracomment>
        <translation>无法启用服务 %1：其状态为 %2。</translation>
    </message>
    <message>
        <source>“Follow Applications” was not changed: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>“跟随应用程序”未更改：%1</translation>
    </message>
    <message>
        <source>Profiles do not follow applications now: the service does not run. What “systemctl --user status qvtblt-follow” prints may say why.</source>
        <extracomment>The words in quotation marks are a command.</extracomment>
        <translation>配置方案现在不会跟随应用程序切换：服务未在运行。“systemctl --user status qvtblt-follow”的输出可能会说明原因。</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>导入配置方案</translation>
    </message>
    <message>
        <source>What is in the profile</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>配置方案的内容</translation>
    </message>
    <message>
        <source>It changes nothing.</source>
        <translation>它不会更改任何设置。</translation>
    </message>
    <message>
        <source>It changes:</source>
        <translation>它会更改：</translation>
    </message>
    <message>
        <source>Left out, because it does not fit your tablet:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>由于不适合您的数位板而略去：</translation>
    </message>
    <message>
        <source>It is for these applications:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>它用于以下应用程序：</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <extracomment>Button: keeps what is in the file as a profile.</extracomment>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>The profile will be in the list as “%1”. It is not used yet.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>配置方案将以“%1”列出，暂不使用。</translation>
    </message>
    <message>
        <source>Some of its buttons would start an application. Allow only what you know and trust; the others do nothing.</source>
        <translation>其中一些按键会启动应用程序。请只允许您了解并信任的，其他按键不执行任何操作。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Let this button start it</source>
        <extracomment>Check box: a button of the tablet may start the application whose path is above.</extracomment>
        <translation>允许此按键启动它</translation>
    </message>
    <message>
        <source>%1: let this button start %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1：允许此按键启动 %2</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>Applications</source>
        <extracomment>Kind of files in the dialog for choosing an application.</extracomment>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>这不是应用程序。请选择桌面入口文件、AppImage 或应用程序包。</translation>
    </message>
    <message>
        <source>Choose the file of an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>选择应用程序的文件</translation>
    </message>
</context>
<context>
    <name>PaneEdits</name>
    <message>
        <source>Edit</source>
        <extracomment>Button beside the tabs, which opens a menu with Undo and Redo.</extracomment>
        <translation>编辑</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>撤销：%1 (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>重做：%1 (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>恢复为已保存的设置</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open.</extracomment>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>保存当前的设置</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>设置未保存：%1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>无法加载数位板的设置，因此各页没有显示它们：%1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>数位板驱动程序没有接受最后一次更改。它是否正在运行？</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <extracomment>Button: saves or loads the settings again.</extracomment>
        <translation>重试(&amp;A)</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <extracomment>Button: sends the settings to the driver again.</extracomment>
        <translation>重新发送(&amp;A)</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>无法保存数位板的设置：%1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>关闭窗口并放弃更改？</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <extracomment>Button: the window stays open, with its unsaved changes.</extracomment>
        <translation>保持打开(&amp;K)</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>上一个数位板的设置未保存：%1</translation>
    </message>
    <message>
        <source>Find the &amp;Problem…</source>
        <extracomment>Button where no tablet is found: opens the self-check.</extracomment>
        <translation>查找问题(&amp;P)…</translation>
    </message>
    <message>
        <source>Check the tablet, its driver and the panel</source>
        <translation>检查数位板、驱动程序和设置面板</translation>
    </message>
    <message>
        <source>The monitor that you chose for the tablet is now display %1.</source>
        <extracomment>%1 is a number in the list of displays.</extracomment>
        <translation>您为数位板选择的显示器现在是 %1 号。</translation>
    </message>
    <message>
        <source>Choose Displa&amp;y %1</source>
        <extracomment>Button: maps the tablet to the display with the number %1.</extracomment>
        <translation>选择显示器 %1(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>ProfileBar</name>
    <message>
        <source>None</source>
        <extracomment>Item of the list of profiles, while the settings are those of none.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <extracomment>Label of the list of profiles; a profile is a set of all settings of the tablet.</extracomment>
        <translation>配置方案(&amp;P)：</translation>
    </message>
    <message>
        <source>Each profile has all settings of the tablet for one kind of work.</source>
        <extracomment>Describes the list of profiles.</extracomment>
        <translation>每个配置方案包含数位板用于一类工作的全部设置。</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <extracomment>Button: saves the current settings as a profile, and asks for its name.</extracomment>
        <translation>另存为(&amp;N)…</translation>
    </message>
    <message>
        <source>Save the current settings as a profile</source>
        <translation>将当前的设置保存为配置方案</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>Button beside the list of profiles: opens a menu with what else can be done with them.</extracomment>
        <translation>更多</translation>
    </message>
    <message>
        <source>Manage the profiles</source>
        <translation>管理配置方案</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <extracomment>Menu item: gives the current profile another name.</extracomment>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <extracomment>Menu item: makes a copy of the current profile.</extracomment>
        <translation>复制(&amp;D)…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <extracomment>Menu item: deletes the current profile.</extracomment>
        <translation>删除(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Applications…</source>
        <extracomment>Menu item: which applications the current profile is for.</extracomment>
        <translation>应用程序(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <extracomment>Menu item: takes a profile from a file.</extracomment>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <extracomment>Menu item: writes the current profile into a file.</extracomment>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>&amp;Follow Applications</source>
        <extracomment>Menu item with a check mark: profiles change with the application in front.</extracomment>
        <translation>跟随应用程序(&amp;F)</translation>
    </message>
    <message>
        <source>Use a profile while one of its applications is in front</source>
        <extracomment>Describes the menu item &quot;Follow Applications&quot;.</extracomment>
        <translation>当配置方案的某个应用程序位于最前面时使用该配置方案</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>保存配置方案</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>Button: saves the settings under the name.</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace it with the current settings?</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>已有配置方案“%1”。要用当前的设置替换它吗？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>Button: a profile that is there is replaced.</extracomment>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>重命名配置方案</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <extracomment>Button: gives the profile the name.</extracomment>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>复制配置方案</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <extracomment>Button: makes a copy of the profile with the name.</extracomment>
        <translation>复制(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the profile “%1”? The tablet keeps its settings.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>要删除配置方案“%1”吗？数位板的设置保持不变。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: deletes a profile.</extracomment>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Choose a Profile to Import</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>选择要导入的配置方案</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>配置方案</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Export Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>导出配置方案</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button of a question: does nothing.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Follow Applications (not running)</source>
        <extracomment>The same menu item, where the service that does it is on, but has ended.</extracomment>
        <translation>跟随应用程序（未运行）(&amp;F)</translation>
    </message>
</context>
<context>
    <name>ProfileNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <extracomment>Label of the field for a profile&apos;s name.</extracomment>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>第 1 个十字（共 4 个），位于左上角。</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>第 2 个十字（共 4 个），位于右上角。</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>第 3 个十字（共 4 个），位于右下角。</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>第 4 个十字（共 4 个），位于左下角。</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <extracomment>Heading of the question whether to keep the calibration.</extracomment>
        <translation>校准完成</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <extracomment>Heading of the message that the crosses were touched in a wrong order.</extracomment>
        <translation>校准失败</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <extracomment>Title of the window with the crosses.</extracomment>
        <translation>校准</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Read by screen readers for the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>压力 %1%</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Key Combination</source>
        <translation>组合键</translation>
    </message>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <extracomment>Shown in the empty field of chosen keys; must fit into it</extracomment>
        <translation>按照按下的顺序选择最多三个按键</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>已选按键</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: removes the key chosen last</extracomment>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>删除最后一个按键</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>Name of the key Esc</extracomment>
        <translation>Esc 键</translation>
    </message>
    <message>
        <source>Minus</source>
        <extracomment>Name of the key -</extracomment>
        <translation>减号</translation>
    </message>
    <message>
        <source>Plus</source>
        <extracomment>Name of the key +</extracomment>
        <translation>加号</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>Name of the key Bksp</extracomment>
        <translation>退格键</translation>
    </message>
    <message>
        <source>Control</source>
        <extracomment>Name of the key Ctrl</extracomment>
        <translation>Ctrl 键</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>Name of the key Cmd, the Windows or Super key</extracomment>
        <translation>Command 键</translation>
    </message>
    <message>
        <source>Page up</source>
        <extracomment>Name of the key PgUp</extracomment>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Page down</source>
        <extracomment>Name of the key PgDn</extracomment>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>没有此型号的示意图。</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <extracomment>Read by screen readers for the picture of the tablet; %1 is the model&apos;s name.</extracomment>
        <translation>%1。每个按键都标有其列表的编号。</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, %2 by %3 its size, %4, %5 its position.</extracomment>
        <translation>%1：%2 × %3 点，左上角位于 %4, %5。</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <extracomment>Read by screen readers; %1 is an item of the display list, such as &quot;Display #1&quot;.</extracomment>
        <translation>数位板的映射区域：%1。</translation>
    </message>
    <message>
        <source>Choose one display first: only one display can be calibrated at a time.</source>
        <translation>请先选择一个显示器：一次只能校准一个显示器。</translation>
    </message>
</context>
<context>
    <name>QVPaneProfiles</name>
    <message>
        <source>No tablet is attached.</source>
        <translation>没有连接数位板。</translation>
    </message>
    <message>
        <source>The tablet is being calibrated. Finish that first.</source>
        <translation>数位板正在校准。请先完成校准。</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Part of the line below the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>压力 %1%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <extracomment>%1 and %2 are degrees, negative for left and up.</extracomment>
        <translation>倾斜 向右 %1°，向下 %2°</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <extracomment>Rotation of the pen about its own axis; %1 is in degrees.</extracomment>
        <translation>旋转 %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <extracomment>Position of the pen; %1 is x, %2 is y.</extracomment>
        <translation>桌面位置 %1, %2</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <extracomment>%1 is the number of the input device.</extracomment>
        <translation>笔编号 %1</translation>
    </message>
</context>
<context>
    <name>QVPressFit</name>
    <message>
        <source>Programs receive %1 % of the full pressure at a quarter of it, %2 % at half and %3 % at three quarters.</source>
        <extracomment>Read by screen readers for the new pressure curve; %1 to %3 are percentages.</extracomment>
        <translation>与压力最大时程序收到的值相比，压力为四分之一时收到 %1%，一半时收到 %2%，四分之三时收到 %3%。</translation>
    </message>
    <message>
        <source>Fit the pressure to your hand</source>
        <extracomment>Title of the dialog that fits the pressure curve to the user&apos;s hand.</extracomment>
        <translation>使压感适应您的手</translation>
    </message>
    <message>
        <source>Pad to press on</source>
        <translation>按压区域</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>压感曲线</translation>
    </message>
    <message>
        <source>Start &amp;Again</source>
        <extracomment>Button: forgets both presses, and asks for the first one again.</extracomment>
        <translation>重新开始(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and leaves the pressure curve as it is.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <extracomment>Button: takes the new pressure curve.</extracomment>
        <translation>使用(&amp;U)</translation>
    </message>
    <message>
        <source>Press on the pad as lightly as you ever do, and lift the pen.</source>
        <translation>以您最轻的力度按压区域，然后抬起笔。</translation>
    </message>
    <message>
        <source>Now press as hard as you ever do, and lift the pen.</source>
        <translation>现在以您最重的力度按压，然后抬起笔。</translation>
    </message>
    <message>
        <source>That was not harder than the first time. Press as hard as you ever do, and lift the pen.</source>
        <translation>这次没有比第一次更重。请以您最重的力度按压，然后抬起笔。</translation>
    </message>
    <message>
        <source>The curve fits your hand as it is.</source>
        <translation>当前压感曲线已适合您的手。</translation>
    </message>
    <message>
        <source>The thick line is the curve that fits your hand: the middle between your lightest and your hardest touch has half of the full effect.</source>
        <translation>粗线是适合您的手的压感曲线：最轻与最重力度的中间值产生一半的效果。</translation>
    </message>
    <message>
        <source>Press here with the pen.</source>
        <translation>用笔在此处按压。</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>Pen</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>笔</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>橡皮擦，序列号 %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>笔，序列号 %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <extracomment>A label below the drawing pad: no pen is near enough for the tablet to detect it.</extracomment>
        <translation>感应范围内没有笔</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <extracomment>Read by screen readers for the pressure curve; %2 to %4 are percentages.</extracomment>
        <translation>阈值 %1，共 200。与压力最大时程序收到的值相比，压力为四分之一时收到 %2%，一半时收到 %3%，四分之三时收到 %4%。</translation>
    </message>
</context>
<context>
    <name>QVProfile</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>配置方案需要名称。</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>名称超过 %1 个字符。</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be shown.</source>
        <translation>名称包含无法显示的字符。</translation>
    </message>
    <message>
        <source>The file is not a profile.</source>
        <translation>这不是配置方案。</translation>
    </message>
    <message>
        <source>The file is a profile of an unsupported version.</source>
        <translation>这是其他版本的配置方案。</translation>
    </message>
</context>
<context>
    <name>QVProfileFolder</name>
    <message>
        <source>There is no profile “%1”.</source>
        <translation>没有配置方案“%1”。</translation>
    </message>
    <message>
        <source>There is already a profile “%1”.</source>
        <translation>已有配置方案“%1”。</translation>
    </message>
</context>
<context>
    <name>QVProfileImport</name>
    <message>
        <source>%1: %2</source>
        <extracomment>What an imported profile sets: %1 is a button, such as &quot;key 3&quot;, %2 its action.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>QVProfileSwitch</name>
    <message>
        <source>Before %1</source>
        <extracomment>The name of a profile with what was set before the profile %1 was used.</extracomment>
        <translation>%1 之前</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>没有配置方案。</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>The name of a profile with the settings of a user who had no profiles for them.</extracomment>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>QVSlotPath</name>
    <message>
        <source>The path contains characters that the tablet&apos;s settings cannot hold.</source>
        <translation>路径中含有数位板设置无法保存的字符。</translation>
    </message>
    <message>
        <source>The path is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>路径超过 %1 个字符。</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Quorvia 数位板</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <extracomment>Page with the actions of the keys; tab title</extracomment>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>数位板示意图</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>左滚动触控条(&amp;L)</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>右滚动触控条(&amp;R)</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>快捷键 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <extracomment>Label of a slider</extracomment>
        <translation>滚动速度(&amp;S)：</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>滚动速度</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <extracomment>Label of a list: the upper button on the barrel of the pen</extracomment>
        <translation>笔的上键(&amp;U)：</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>笔的上键</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <extracomment>Label of a list: the lower button on the barrel of the pen</extracomment>
        <translation>笔的下键(&amp;O)：</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>笔的下键</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <extracomment>Page with pressure curve and drawing pad; tab title</extracomment>
        <translation>笔(&amp;E)</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>Heading of the pressure curve and its slider</extracomment>
        <translation>压感</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <extracomment>Use the same words as at the ends of the slider</extracomment>
        <translation>轻：轻触即可产生较大效果；重：需要更用力才能达到同样效果。</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <extracomment>Vertical axis of the pressure curve; must fit into its height</extracomment>
        <translation>↑ 程序收到的压力</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>压感曲线</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <extracomment>Horizontal axis of the pressure curve</extracomment>
        <translation>下笔的力度 →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>Left end of the pressure slider: a light touch is enough</extracomment>
        <translation>轻(&amp;L)</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>压感，从轻到重</translation>
    </message>
    <message>
        <source>Heavy</source>
        <extracomment>Right end of the pressure slider: you have to press hard</extracomment>
        <translation>重</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <extracomment>Heading of the drawing pad</extracomment>
        <translation>试笔</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>粗细随压力变化(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>不透明度随压力变化(&amp;O)</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <extracomment>Button: clears the drawing pad</extracomment>
        <translation>清除(&amp;R)</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>清空绘图区</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>绘图区</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>在此处用笔或鼠标绘画。</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <extracomment>Label of the current pressure, a number from 0 to 65535</extracomment>
        <translation>压力（最大 65535）：</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <extracomment>Page that maps the tablet to a display; tab title</extracomment>
        <translation>显示器(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <extracomment>Label of the list of displays</extracomment>
        <translation>将数位板映射到(&amp;M)：</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>将数位板映射到</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>笔可以到达的桌面区域。</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <extracomment>Label of a list: how the tablet lies on the desk</extracomment>
        <translation>方向(&amp;O)：</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>如需用另一只手操作按键，请旋转数位板。</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>旋转 180°</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>不旋转</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>报告速度(&amp;R)：</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>报告速度</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>“快速”能更紧密地跟随手的动作。此设置通过 USB 发送到数位板本身。</translation>
    </message>
    <message>
        <source>Fast</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>快速</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>标准</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <extracomment>Button; its corners become those of the display</extracomment>
        <translation>使用整个数位板(&amp;W)</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>整个板面对应所选的桌面区域。</translation>
    </message>
    <message>
        <source>Keep propor&amp;tions</source>
        <extracomment>Button: the tablet gets the proportions of the display, so that circles stay round</extracomment>
        <translation>保持比例(&amp;T)</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>留出数位板的一条不用，使圆形保持不变形。</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <extracomment>Button: opens the calibration</extracomment>
        <translation>校准(&amp;B)…</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>在所选显示器上点触四个十字，使笔尖与指针重合。</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>显示器和数位板示意图</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>恢复为已保存的设置</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open</extracomment>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>保存当前的设置</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>数位板是否已连接？驱动程序是否正在运行？两者就绪后，设置会自动显示在这里。</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <extracomment>In place of a model&apos;s name; %1 is the USB product ID, four hexadecimal digits.</extracomment>
        <translation>未知数位板，产品 %1</translation>
    </message>
    <message>
        <source>%1 is pressed</source>
        <extracomment>Read by screen readers; %1 is the name of a key or of a button of the pen.</extracomment>
        <translation>已按下%1</translation>
    </message>
    <message>
        <source>&amp;Identify displays</source>
        <extracomment>Button: shows on each display which one it is</extracomment>
        <translation>识别显示器(&amp;I)</translation>
    </message>
    <message>
        <source>Shows the number of each display on the display itself, for three seconds.</source>
        <translation>在每个显示器上显示其编号，持续三秒。</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <extracomment>On a display; %1 is its maker and model, %2 and %3 its width and height.</extracomment>
        <translation>%1，%2 × %3 像素</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, such as &quot;Display #1&quot;, %2 its maker and size.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>several settings</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>多项设置</translation>
    </message>
    <message>
        <source>&amp;Fit to My Hand…</source>
        <extracomment>Button: opens a dialog that sets the pressure by two touches</extracomment>
        <translation>适应我的手(&amp;F)…</translation>
    </message>
    <message>
        <source>Press once lightly and once hard to find the curve that fits.</source>
        <translation>轻按一次、重按一次，以找到合适的压感曲线。</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>Log out and in again.</source>
        <translation>请注销后重新登录。</translation>
    </message>
    <message>
        <source>Restart the driver, or log out and in again.</source>
        <translation>请重新启动驱动程序，或注销后重新登录。</translation>
    </message>
    <message>
        <source>Plug the tablet in again. If that does not help, log out and in again.</source>
        <translation>请重新连接数位板。如果仍然无效，请注销后重新登录。</translation>
    </message>
    <message>
        <source>End that program, and plug the tablet in again.</source>
        <translation>请关闭该程序，然后重新连接数位板。</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>没有会话总线。</translation>
    </message>
    <message>
        <source>Log out and in again. Without a desktop, use dbus-run-session.</source>
        <translation>请注销后重新登录。没有桌面时，请使用 dbus-run-session。</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>会话总线没有响应。</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>会话总线有响应。</translation>
    </message>
    <message>
        <source>The driver is running.</source>
        <translation>驱动程序正在运行。</translation>
    </message>
    <message>
        <source>The driver was not running and has been started.</source>
        <translation>驱动程序原先没有运行，现已启动。</translation>
    </message>
    <message>
        <source>No driver is installed.</source>
        <translation>没有安装驱动程序。</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver.</source>
        <translation>请安装软件包 tdsg-driver。</translation>
    </message>
    <message>
        <source>The driver cannot be started.</source>
        <translation>无法启动驱动程序。</translation>
    </message>
    <message>
        <source>Log out and in again. The reason is in the journal of the session.</source>
        <translation>请注销后重新登录。原因记录在会话日志中。</translation>
    </message>
    <message>
        <source>The driver does not answer in time.</source>
        <translation>驱动程序没有及时响应。</translation>
    </message>
    <message>
        <source>The driver answers in time.</source>
        <translation>驱动程序响应及时。</translation>
    </message>
    <message>
        <source>The driver has a tablet of its own, such as a simulated one.</source>
        <translation>驱动程序使用自己的数位板，例如模拟的数位板。</translation>
    </message>
    <message>
        <source>No tablet is connected.</source>
        <translation>没有连接数位板。</translation>
    </message>
    <message>
        <source>Connect the tablet, or switch it on. If it is connected, try another socket or cable.</source>
        <translation>请连接数位板或打开其电源。如果已连接，请换一个接口或一条线缆。</translation>
    </message>
    <message>
        <source>A tablet is connected, but the driver does not use it: %1.</source>
        <translation>已连接数位板，但驱动程序没有使用它：%1。</translation>
    </message>
    <message>
        <source>Do what the following lines say. Otherwise, plug the tablet in again, or restart the driver.</source>
        <translation>请按下面各行的提示操作；如果没有提示，请重新连接数位板或重新启动驱动程序。</translation>
    </message>
    <message>
        <source>A tablet is connected: %1.</source>
        <translation>已连接数位板：%1。</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver-access, and plug the tablet in again.</source>
        <translation>请安装软件包 tdsg-driver-access，然后重新连接数位板。</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet.</source>
        <translation>您没有打开数位板的权限。</translation>
    </message>
    <message>
        <source>You may not open /dev/uinput, which the driver needs.</source>
        <translation>您没有打开 /dev/uinput 的权限，而驱动程序需要它。</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet over USB, so its speed cannot be set.</source>
        <translation>您没有通过 USB 打开数位板的权限，因此无法设置其速度。</translation>
    </message>
    <message>
        <source>Install the package qvtblt, and plug the tablet in again.</source>
        <translation>请安装软件包 qvtblt，然后重新连接数位板。</translation>
    </message>
    <message>
        <source>You may open the tablet.</source>
        <translation>您有打开数位板的权限。</translation>
    </message>
    <message>
        <source>Another program has the tablet open: %1.</source>
        <translation>另一个程序打开了数位板：%1。</translation>
    </message>
    <message>
        <source>A program has taken the tablet from the system&apos;s drivers.</source>
        <translation>有程序从系统驱动手中占用了数位板。</translation>
    </message>
    <message>
        <source>None of your programs has the tablet open.</source>
        <translation>您的程序都没有打开数位板。</translation>
    </message>
    <message>
        <source>There is no settings file.</source>
        <translation>没有设置文件。</translation>
    </message>
    <message>
        <source>Restart the driver, which makes the file.</source>
        <translation>请重新启动驱动程序，它会创建该文件。</translation>
    </message>
    <message>
        <source>The settings file cannot be used.</source>
        <translation>设置文件无法使用。</translation>
    </message>
    <message>
        <source>Move the file away and restart the driver, which makes a new one.</source>
        <translation>请移走该文件并重新启动驱动程序，它会创建新文件。</translation>
    </message>
    <message>
        <source>The settings file cannot be written.</source>
        <translation>无法写入设置文件。</translation>
    </message>
    <message>
        <source>Give yourself write permission for the file and its folder.</source>
        <translation>请为自己添加该文件及其文件夹的写入权限。</translation>
    </message>
    <message>
        <source>The disk with the settings file has no room left.</source>
        <translation>设置文件所在的磁盘已满。</translation>
    </message>
    <message>
        <source>Delete something from this disk.</source>
        <translation>请从该磁盘上删除一些内容。</translation>
    </message>
    <message>
        <source>The settings file can be read and written.</source>
        <translation>设置文件可以读写。</translation>
    </message>
    <message>
        <source>No settings have been sent yet.</source>
        <translation>尚未发送任何设置。</translation>
    </message>
    <message>
        <source>The driver has not accepted the last change.</source>
        <translation>驱动程序没有接受上一次更改。</translation>
    </message>
    <message>
        <source>The driver has accepted the settings.</source>
        <translation>驱动程序已接受设置。</translation>
    </message>
    <message>
        <source>The panel is not installed.</source>
        <translation>设置面板没有安装。</translation>
    </message>
    <message>
        <source>Install the package qvtblt.</source>
        <translation>请安装软件包 qvtblt。</translation>
    </message>
    <message>
        <source>The panel does not fit the version of Qt: it was built for %1.</source>
        <translation>设置面板与 Qt 版本不符：它是为 %1 构建的。</translation>
    </message>
    <message>
        <source>Install the panel of the same release as the desktop.</source>
        <translation>请安装与桌面同一发行版本的设置面板。</translation>
    </message>
    <message>
        <source>The panel matches the version of Qt, %1.</source>
        <translation>设置面板与 Qt 版本 %1 相符。</translation>
    </message>
    <message>
        <source>There is no desktop.</source>
        <translation>没有桌面。</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen if the desktop&apos;s own settings map the pen to all displays.</source>
        <translation>如果桌面自身的设置把笔映射到所有显示器，就可以选择笔所用的显示器。</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen.</source>
        <translation>可以选择笔所用的显示器。</translation>
    </message>
    <message>
        <source>The driver was not checked.</source>
        <translation>未检查驱动程序。</translation>
    </message>
    <message>
        <source>The driver was not asked.</source>
        <translation>没有询问驱动程序。</translation>
    </message>
    <message>
        <source>Access to the tablet was not checked.</source>
        <translation>没有检查数位板的访问权限。</translation>
    </message>
    <message>
        <source>Other programs were not checked.</source>
        <translation>没有检查其他程序。</translation>
    </message>
    <message>
        <source>The settings file was not checked.</source>
        <translation>没有检查设置文件。</translation>
    </message>
    <message>
        <source>Sending settings was not checked.</source>
        <translation>没有检查设置的发送。</translation>
    </message>
    <message>
        <source>The choice of the pen&apos;s display was not checked.</source>
        <translation>没有检查笔所用显示器的选择。</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>Self-Check</source>
        <extracomment>Title of the window that says what is wrong with tablet, driver and panel.</extracomment>
        <translation>自检</translation>
    </message>
    <message>
        <source>What was checked</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>检查的项目</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <extracomment>Button of the self-check.</extracomment>
        <translation>重新检查(&amp;G)</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <extracomment>Button of the self-check: copies what was found to the clipboard.</extracomment>
        <translation>复制报告(&amp;R)</translation>
    </message>
    <message>
        <source>For the person who helps you. It contains no personal data.</source>
        <translation>供帮助您的人使用，不含任何个人信息。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>没有发现问题。</translation>
    </message>
    <message>
        <source>Something is wrong. Begin with the first problem:</source>
        <translation>有问题。请从第一个问题开始：</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未检查</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is OK, Problem or Not checked, %2 what was found.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>platform::ApplicationChooser</name>
    <message>
        <source>Choose an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>选择应用程序</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Shown in the empty search field above the list of applications.</extracomment>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search for an application</source>
        <translation>搜索应用程序</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>No application matches the search.</source>
        <translation>没有与搜索匹配的应用程序。</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <extracomment>Button: choose a file that is not in the list of applications.</extracomment>
        <translation>其他文件(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: leaves the dialog without choosing an application.</extracomment>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;hoose</source>
        <extracomment>Button: takes the selected application.</extracomment>
        <translation>选择(&amp;H)</translation>
    </message>
</context>
</TS>
