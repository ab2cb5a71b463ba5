<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ActionText</name>
    <message>
        <source>No action</source>
        <extracomment>Action of a tablet key; must fit into the narrow lists of the key page.</extracomment>
        <translation>Ninguna acción</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Botón izquierdo del ratón</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Botón derecho del ratón</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Botón central del ratón</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <extracomment>The mouse button that goes back, as in a browser; must fit into a narrow list.</extracomment>
        <translation>Botón Atrás del ratón</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <extracomment>Action of a tablet key, which asks for the application; must fit into a narrow list.</extracomment>
        <translation>Abrir una aplicación…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>Action of a tablet key, which asks for keys; must fit into a narrow list.</extracomment>
        <translation>Pulsar teclas…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <extracomment>Maps the tablet to the next of several displays; must fit into a narrow list.</extracomment>
        <translation>Ir a la pantalla siguiente</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <extracomment>Slows the pointer down while the key is held; must fit into a narrow list.</extracomment>
        <translation>Precisión (mantener)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <extracomment>The pen is ignored until the key is pressed again; must fit into a narrow list.</extracomment>
        <translation>Pausar la tableta</translation>
    </message>
    <message>
        <source>Open an application (unknown path)</source>
        <extracomment>Action of a tablet key.</extracomment>
        <translation>Abrir una aplicación (ruta desconocida)</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Action of a tablet key; %1 is the path of an application.</extracomment>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Press no keys</source>
        <extracomment>Action of a tablet key: a key combination without keys.</extracomment>
        <translation>No pulsar ninguna tecla</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>Action of a tablet key; %1 is a key combination, such as &quot;Ctrl Z&quot;.</extracomment>
        <translation>Pulsar %1</translation>
    </message>
    <message>
        <source>No action: the strip is off</source>
        <extracomment>Action of a scroll strip.</extracomment>
        <translation>Ninguna acción: la banda está desactivada</translation>
    </message>
    <message>
        <source>Scroll at speed %1</source>
        <extracomment>Action of a scroll strip; %1 is 1 to 10.</extracomment>
        <translation>Desplazar a velocidad %1</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>The pen is paused</source>
        <extracomment>The user has pressed a key of the tablet that pauses it.</extracomment>
        <translation>El lápiz está en pausa</translation>
    </message>
    <message>
        <source>The pen works again</source>
        <translation>El lápiz vuelve a funcionar</translation>
    </message>
    <message>
        <source>The pen is on display #%1 (%2)</source>
        <extracomment>The pen is now on this display, %1 in the panel&apos;s list, with a connector such as DP-1.</extracomment>
        <translation>El lápiz está en la pantalla #%1 (%2)</translation>
    </message>
</context>
<context>
    <name>TabletSurface</name>
    <message>
        <source>Surface</source>
        <extracomment>Read by screen readers: the part of the tablet on which the pen draws.</extracomment>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>The tablet&apos;s surface. Press the mouse here to touch it with the pen. The arrow keys move the pen, with Shift in large steps; the space bar holds it down.</source>
        <translation>La superficie de la tableta. Pulse aquí con el ratón para tocarla con el lápiz. Las teclas de flecha mueven el lápiz, con Mayús a grandes pasos; la barra espaciadora lo mantiene apretado.</translation>
    </message>
    <message>
        <source>The pen is down at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>El lápiz está apoyado en %1, %2.</translation>
    </message>
    <message>
        <source>The pen is up at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>El lápiz está levantado en %1, %2.</translation>
    </message>
</context>
<context>
    <name>TabletWindow</name>
    <message>
        <source>Tablet</source>
        <extracomment>Read by screen readers: the list of tablet models.</extracomment>
        <translation>Tableta</translation>
    </message>
    <message>
        <source>The model that is attached.</source>
        <translation>El modelo que está conectado.</translation>
    </message>
    <message>
        <source>No tablet</source>
        <extracomment>First item of the list of tablet models: none is attached.</extracomment>
        <translation>Ninguna tableta</translation>
    </message>
    <message>
        <source>&amp;Tablet:</source>
        <extracomment>Label of the list of tablet models.</extracomment>
        <translation>&amp;Tableta:</translation>
    </message>
    <message>
        <source>Pen:</source>
        <extracomment>Label of a line such as &quot;Pen: down at 100, 200&quot;.</extracomment>
        <translation>Lápiz:</translation>
    </message>
    <message>
        <source>Panel:</source>
        <extracomment>Label of a line such as &quot;Panel: calibrating: it gets pen reports&quot;; the settings panel.</extracomment>
        <translation>Ajustes:</translation>
    </message>
    <message>
        <source>Frame:</source>
        <extracomment>Label of the line that explains the frame drawn on the surface.</extracomment>
        <translation>Marco:</translation>
    </message>
    <message>
        <source>Pressed:</source>
        <extracomment>Label of the line that shows the action of the key pressed last.</extracomment>
        <translation>Pulsado:</translation>
    </message>
    <message>
        <source>The tablet could not be attached: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>No se ha podido conectar la tableta: %1</translation>
    </message>
    <message>
        <source>Virtual tablet</source>
        <extracomment>Window title.</extracomment>
        <translation>Tableta virtual</translation>
    </message>
    <message>
        <source>Virtual tablet: %1</source>
        <extracomment>Window title; %1 is the model&apos;s name.</extracomment>
        <translation>Tableta virtual: %1</translation>
    </message>
    <message>
        <source>No tablet is attached. Choose one above.</source>
        <translation>No hay ninguna tableta conectada. Elija una arriba.</translation>
    </message>
    <message>
        <source>no key yet; press one to see its action</source>
        <extracomment>Follows the label &quot;Pressed:&quot;.</extracomment>
        <translation>ninguna tecla todavía; pulse una para ver qué hace</translation>
    </message>
    <message>
        <source>Key %1</source>
        <extracomment>Name of an express key of the tablet; %1 is its number.</extracomment>
        <translation>Tecla %1</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Botón superior del lápiz</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Botón inferior del lápiz</translation>
    </message>
    <message>
        <source>Left scroll strip</source>
        <translation>Banda táctil izquierda</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a key and what it does</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>unknown until the panel sends its settings</source>
        <translation>se desconoce hasta que se envíen los ajustes</translation>
    </message>
    <message>
        <source>the part that covers the screen, x %1 to %2, y %3 to %4</source>
        <extracomment>Follows the label &quot;Frame:&quot;; x and y are ranges in tablet units.</extracomment>
        <translation>la parte que cubre la pantalla, x de %1 a %2, y de %3 a %4</translation>
    </message>
    <message>
        <source>calibrating: it gets pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>calibrando: reciben los datos del lápiz</translation>
    </message>
    <message>
        <source>not calibrating: it gets no pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>sin calibrar: no reciben datos del lápiz</translation>
    </message>
    <message>
        <source>down at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>apretado en %1, %2</translation>
    </message>
    <message>
        <source>up at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>levantado en %1, %2</translation>
    </message>
</context>
</TS>
