<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionText</name>
    <message>
        <source>No action</source>
        <extracomment>Action of a tablet key; must fit into the narrow lists of the key page.</extracomment>
        <translation>Keine Aktion</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Linke Maustaste</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Rechte Maustaste</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Mittlere Maustaste</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <extracomment>The mouse button that goes back, as in a browser; must fit into a narrow list.</extracomment>
        <translation>Maustaste „Zurück“</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <extracomment>Action of a tablet key, which asks for the application; must fit into a narrow list.</extracomment>
        <translation>Anwendung öffnen …</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>Action of a tablet key, which asks for keys; must fit into a narrow list.</extracomment>
        <translation>Tasten drücken …</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <extracomment>Maps the tablet to the next of several displays; must fit into a narrow list.</extracomment>
        <translation>Zum nächsten Bildschirm</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <extracomment>Slows the pointer down while the key is held; must fit into a narrow list.</extracomment>
        <translation>Feinführung (halten)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <extracomment>The pen is ignored until the key is pressed again; must fit into a narrow list.</extracomment>
        <translation>Tablett anhalten</translation>
    </message>
    <message>
        <source>Open an application (unknown path)</source>
        <extracomment>Action of a tablet key.</extracomment>
        <translation>Eine Anwendung öffnen (Pfad unbekannt)</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Action of a tablet key; %1 is the path of an application.</extracomment>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Press no keys</source>
        <extracomment>Action of a tablet key: a key combination without keys.</extracomment>
        <translation>Keine Tasten drücken</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>Action of a tablet key; %1 is a key combination, such as &quot;Ctrl Z&quot;.</extracomment>
        <translation>%1 drücken</translation>
    </message>
    <message>
        <source>No action: the strip is off</source>
        <extracomment>Action of a scroll strip.</extracomment>
        <translation>Keine Aktion: Der Streifen ist aus</translation>
    </message>
    <message>
        <source>Scroll at speed %1</source>
        <extracomment>Action of a scroll strip; %1 is 1 to 10.</extracomment>
        <translation>Mit Tempo %1 rollen</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>The pen is paused</source>
        <extracomment>The user has pressed a key of the tablet that pauses it.</extracomment>
        <translation>Der Stift macht Pause</translation>
    </message>
    <message>
        <source>The pen works again</source>
        <translation>Der Stift arbeitet wieder</translation>
    </message>
    <message>
        <source>The pen is on display #%1 (%2)</source>
        <extracomment>The pen is now on this display, %1 in the panel&apos;s list, with a connector such as DP-1.</extracomment>
        <translation>Der Stift ist auf Bildschirm #%1 (%2)</translation>
    </message>
</context>
<context>
    <name>TabletSurface</name>
    <message>
        <source>Surface</source>
        <extracomment>Read by screen readers: the part of the tablet on which the pen draws.</extracomment>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>The tablet&apos;s surface. Press the mouse here to touch it with the pen. The arrow keys move the pen, with Shift in large steps; the space bar holds it down.</source>
        <translation>Die Fläche des Tabletts. Die Maus hier drücken, um sie mit dem Stift zu berühren. Die Pfeiltasten bewegen den Stift, mit Umschalt in großen Schritten; die Leertaste hält ihn unten.</translation>
    </message>
    <message>
        <source>The pen is down at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>Der Stift ist unten bei %1, %2.</translation>
    </message>
    <message>
        <source>The pen is up at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>Der Stift ist oben bei %1, %2.</translation>
    </message>
</context>
<context>
    <name>TabletWindow</name>
    <message>
        <source>Tablet</source>
        <extracomment>Read by screen readers: the list of tablet models.</extracomment>
        <translation>Tablett</translation>
    </message>
    <message>
        <source>The model that is attached.</source>
        <translation>Das angeschlossene Modell.</translation>
    </message>
    <message>
        <source>No tablet</source>
        <extracomment>First item of the list of tablet models: none is attached.</extracomment>
        <translation>Kein Tablett</translation>
    </message>
    <message>
        <source>&amp;Tablet:</source>
        <extracomment>Label of the list of tablet models.</extracomment>
        <translation>&amp;Tablett:</translation>
    </message>
    <message>
        <source>Pen:</source>
        <extracomment>Label of a line such as &quot;Pen: down at 100, 200&quot;.</extracomment>
        <translation>Stift:</translation>
    </message>
    <message>
        <source>Panel:</source>
        <extracomment>Label of a line such as &quot;Panel: calibrating: it gets pen reports&quot;; the settings panel.</extracomment>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Frame:</source>
        <extracomment>Label of the line that explains the frame drawn on the surface.</extracomment>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>Pressed:</source>
        <extracomment>Label of the line that shows the action of the key pressed last.</extracomment>
        <translation>Gedrückt:</translation>
    </message>
    <message>
        <source>The tablet could not be attached: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Das Tablett konnte nicht angeschlossen werden: %1</translation>
    </message>
    <message>
        <source>Virtual tablet</source>
        <extracomment>Window title.</extracomment>
        <translation>Virtuelles Tablett</translation>
    </message>
    <message>
        <source>Virtual tablet: %1</source>
        <extracomment>Window title; %1 is the model&apos;s name.</extracomment>
        <translation>Virtuelles Tablett: %1</translation>
    </message>
    <message>
        <source>No tablet is attached. Choose one above.</source>
        <translation>Kein Tablett ist angeschlossen. Oben eines wählen.</translation>
    </message>
    <message>
        <source>no key yet; press one to see its action</source>
        <extracomment>Follows the label &quot;Pressed:&quot;.</extracomment>
        <translation>noch keine Taste; eine drücken, um ihre Aktion zu sehen</translation>
    </message>
    <message>
        <source>Key %1</source>
        <extracomment>Name of an express key of the tablet; %1 is its number.</extracomment>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Obere Stifttaste</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Untere Stifttaste</translation>
    </message>
    <message>
        <source>Left scroll strip</source>
        <translation>Linker Rollstreifen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a key and what it does</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>unknown until the panel sends its settings</source>
        <translation>unbekannt, bis die Einstellungen gesendet werden</translation>
    </message>
    <message>
        <source>the part that covers the screen, x %1 to %2, y %3 to %4</source>
        <extracomment>Follows the label &quot;Frame:&quot;; x and y are ranges in tablet units.</extracomment>
        <translation>der Teil, der den Bildschirm abdeckt, x %1 bis %2, y %3 bis %4</translation>
    </message>
    <message>
        <source>calibrating: it gets pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>Kalibrierung läuft: Stiftdaten werden gesendet</translation>
    </message>
    <message>
        <source>not calibrating: it gets no pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>keine Kalibrierung: Stiftdaten werden nicht gesendet</translation>
    </message>
    <message>
        <source>down at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>unten bei %1, %2</translation>
    </message>
    <message>
        <source>up at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>oben bei %1, %2</translation>
    </message>
</context>
</TS>
