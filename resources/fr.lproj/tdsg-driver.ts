<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionText</name>
    <message>
        <source>No action</source>
        <extracomment>Action of a tablet key; must fit into the narrow lists of the key page.</extracomment>
        <translation>Aucune action</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Souris&#xa0;: bouton gauche</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Souris&#xa0;: bouton droit</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <extracomment>Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.</extracomment>
        <translation>Souris&#xa0;: bouton central</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <extracomment>The mouse button that goes back, as in a browser; must fit into a narrow list.</extracomment>
        <translation>Souris&#xa0;: bouton Précédent</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <extracomment>Action of a tablet key, which asks for the application; must fit into a narrow list.</extracomment>
        <translation>Ouvrir une application…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>Action of a tablet key, which asks for keys; must fit into a narrow list.</extracomment>
        <translation>Touches du clavier…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <extracomment>Maps the tablet to the next of several displays; must fit into a narrow list.</extracomment>
        <translation>Passer à l’écran suivant</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <extracomment>Slows the pointer down while the key is held; must fit into a narrow list.</extracomment>
        <translation>Précision (maintenir)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <extracomment>The pen is ignored until the key is pressed again; must fit into a narrow list.</extracomment>
        <translation>Suspendre la tablette</translation>
    </message>
    <message>
        <source>Open an application (unknown path)</source>
        <extracomment>Action of a tablet key.</extracomment>
        <translation>Ouvrir une application (chemin inconnu)</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Action of a tablet key; %1 is the path of an application.</extracomment>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Press no keys</source>
        <extracomment>Action of a tablet key: a key combination without keys.</extracomment>
        <translation>N’appuyer sur aucune touche</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>Action of a tablet key; %1 is a key combination, such as &quot;Ctrl Z&quot;.</extracomment>
        <translation>Appuyer sur %1</translation>
    </message>
    <message>
        <source>No action: the strip is off</source>
        <extracomment>Action of a scroll strip.</extracomment>
        <translation>Aucune action&#xa0;: la bande est désactivée</translation>
    </message>
    <message>
        <source>Scroll at speed %1</source>
        <extracomment>Action of a scroll strip; %1 is 1 to 10.</extracomment>
        <translation>Défiler à la vitesse %1</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>The pen is paused</source>
        <extracomment>The user has pressed a key of the tablet that pauses it.</extracomment>
        <translation>Le stylet est suspendu</translation>
    </message>
    <message>
        <source>The pen works again</source>
        <translation>Le stylet fonctionne à nouveau</translation>
    </message>
    <message>
        <source>The pen is on display #%1 (%2)</source>
        <extracomment>The pen is now on this display, %1 in the panel&apos;s list, with a connector such as DP-1.</extracomment>
        <translation>Le stylet est sur l’écran #%1 (%2)</translation>
    </message>
</context>
<context>
    <name>TabletSurface</name>
    <message>
        <source>Surface</source>
        <extracomment>Read by screen readers: the part of the tablet on which the pen draws.</extracomment>
        <translation>Surface</translation>
    </message>
    <message>
        <source>The tablet&apos;s surface. Press the mouse here to touch it with the pen. The arrow keys move the pen, with Shift in large steps; the space bar holds it down.</source>
        <translation>La surface de la tablette. Appuyez ici avec la souris pour la toucher avec le stylet. Les touches fléchées déplacent le stylet, avec Maj par grands pas&#xa0;; la barre d’espace le maintient appuyé.</translation>
    </message>
    <message>
        <source>The pen is down at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>Le stylet est posé en %1, %2.</translation>
    </message>
    <message>
        <source>The pen is up at %1, %2.</source>
        <extracomment>Read by screen readers; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>Le stylet est levé en %1, %2.</translation>
    </message>
</context>
<context>
    <name>TabletWindow</name>
    <message>
        <source>Tablet</source>
        <extracomment>Read by screen readers: the list of tablet models.</extracomment>
        <translation>Tablette</translation>
    </message>
    <message>
        <source>The model that is attached.</source>
        <translation>Le modèle qui est branché.</translation>
    </message>
    <message>
        <source>No tablet</source>
        <extracomment>First item of the list of tablet models: none is attached.</extracomment>
        <translation>Aucune tablette</translation>
    </message>
    <message>
        <source>&amp;Tablet:</source>
        <extracomment>Label of the list of tablet models.</extracomment>
        <translation>&amp;Tablette&#xa0;:</translation>
    </message>
    <message>
        <source>Pen:</source>
        <extracomment>Label of a line such as &quot;Pen: down at 100, 200&quot;.</extracomment>
        <translation>Stylet&#xa0;:</translation>
    </message>
    <message>
        <source>Panel:</source>
        <extracomment>Label of a line such as &quot;Panel: calibrating: it gets pen reports&quot;; the settings panel.</extracomment>
        <translation>Réglages&#xa0;:</translation>
    </message>
    <message>
        <source>Frame:</source>
        <extracomment>Label of the line that explains the frame drawn on the surface.</extracomment>
        <translation>Cadre&#xa0;:</translation>
    </message>
    <message>
        <source>Pressed:</source>
        <extracomment>Label of the line that shows the action of the key pressed last.</extracomment>
        <translation>Appui&#xa0;:</translation>
    </message>
    <message>
        <source>The tablet could not be attached: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>La tablette n’a pas pu être connectée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Virtual tablet</source>
        <extracomment>Window title.</extracomment>
        <translation>Tablette virtuelle</translation>
    </message>
    <message>
        <source>Virtual tablet: %1</source>
        <extracomment>Window title; %1 is the model&apos;s name.</extracomment>
        <translation>Tablette virtuelle&#xa0;: %1</translation>
    </message>
    <message>
        <source>No tablet is attached. Choose one above.</source>
        <translation>Aucune tablette n’est branchée. Choisissez-en une ci-dessus.</translation>
    </message>
    <message>
        <source>no key yet; press one to see its action</source>
        <extracomment>Follows the label &quot;Pressed:&quot;.</extracomment>
        <translation>aucune touche pour l’instant&#xa0;; appuyez sur l’une d’elles pour voir ce qu’elle fait</translation>
    </message>
    <message>
        <source>Key %1</source>
        <extracomment>Name of an express key of the tablet; %1 is its number.</extracomment>
        <translation>Touche %1</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Bouton haut du stylet</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Bouton bas du stylet</translation>
    </message>
    <message>
        <source>Left scroll strip</source>
        <translation>Bande tactile gauche</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a key and what it does</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>unknown until the panel sends its settings</source>
        <translation>inconnu tant que les réglages n’ont pas été envoyés</translation>
    </message>
    <message>
        <source>the part that covers the screen, x %1 to %2, y %3 to %4</source>
        <extracomment>Follows the label &quot;Frame:&quot;; x and y are ranges in tablet units.</extracomment>
        <translation>la partie qui couvre l’écran, x de %1 à %2, y de %3 à %4</translation>
    </message>
    <message>
        <source>calibrating: it gets pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>calibrage en cours&#xa0;: ils reçoivent les données du stylet</translation>
    </message>
    <message>
        <source>not calibrating: it gets no pen reports</source>
        <extracomment>Follows the label &quot;Panel:&quot;.</extracomment>
        <translation>pas de calibrage&#xa0;: ils ne reçoivent aucune donnée du stylet</translation>
    </message>
    <message>
        <source>down at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>appuyé en %1, %2</translation>
    </message>
    <message>
        <source>up at %1, %2</source>
        <extracomment>Follows the label &quot;Pen:&quot;; %1 is x, %2 is y, in tablet units.</extracomment>
        <translation>levé en %1, %2</translation>
    </message>
</context>
</TS>
