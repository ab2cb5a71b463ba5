<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>OpenPanel</name>
    <message>
        <source>Choose an application</source>
        <translation>Anwendung auswählen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Das ist keine Anwendung: Bitte einen Desktop-Eintrag, ein AppImage oder ein Anwendungspaket wählen.</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Zu den gespeicherten Einstellungen zurückkehren</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Die jetzigen Einstellungen speichern</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <translation>Die Einstellungen wurden nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <translation>Die Einstellungen des Tabletts lassen sich nicht laden, deshalb zeigen die Seiten sie nicht: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>Der Treiber des Tabletts hat die letzte Änderung nicht angenommen. Läuft er?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Er&amp;neut versuchen</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <translation>Er&amp;neut senden</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <translation>Die Einstellungen des Tabletts konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>Soll das Fenster geschlossen und sollen die Änderungen verworfen werden?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <translation>&amp;Offen lassen</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <translation>Die Einstellungen des vorigen Tabletts wurden nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <translation>Kreuz 1 von 4, oben links.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <translation>Kreuz 2 von 4, oben rechts.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <translation>Kreuz 3 von 4, unten rechts.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <translation>Kreuz 4 von 4, unten links.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <translation>Kalibrierung abgeschlossen</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <translation>Kalibrierung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Druck %1 %</translation>
    </message>
</context>
<context>
    <name>QVKeyComboBox</name>
    <message>
        <source>No action</source>
        <translation>Keine Aktion</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <translation>Linke Maustaste</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <translation>Rechte Maustaste</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <translation>Mittlere Maustaste</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <translation>Maustaste „Zurück“</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <translation>Anwendung öffnen …</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <translation>Tasten drücken …</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <translation>Zum nächsten Bildschirm</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <translation>Feinführung (halten)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <translation>Tablett anhalten</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <translation>Bis zu drei Tasten wählen, in der Reihenfolge des Drückens</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Gewählte Tasten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Die letzte Taste entfernen</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehlstaste</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Key Combination</source>
        <translation>Tastenkombination</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>Von diesem Modell gibt es kein Bild.</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <translation>%1. Jede Taste trägt die Nummer ihrer Liste.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <translation>%1: %2 mal %3 Punkte, die linke obere Ecke bei %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <translation>Das Tablett ist abgebildet auf: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: all displays cannot be calibrated together.</source>
        <translation>Zuerst einen Bildschirm wählen: Alle zusammen lassen sich nicht kalibrieren.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Druck %1 %</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <translation>Neigung %1° nach rechts, %2° nach unten</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <translation>Drehung %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <translation>Bei %1, %2 auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <translation>Stift Nummer %1</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <translation>Radierer, Seriennummer %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <translation>Stift, Seriennummer %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <translation>Kein Stift in Reichweite</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <translation>Schwelle %1 von 200. Programme erhalten bei einem Viertel des vollen Drucks %2 % davon, bei der Hälfte %3 % und bei drei Vierteln %4 %.</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Quorvia-Tablett</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <translation>Expresstaste 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <translation>Expresstaste 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <translation>Expresstaste 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <translation>Expresstaste 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <translation>&amp;Linker Rollstreifen</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <translation>Expresstaste 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <translation>Expresstaste 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <translation>Expresstaste 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <translation>Expresstaste 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <translation>Expresstaste 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <translation>Expresstaste 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <translation>Expresstaste 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <translation>Expresstaste 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <translation>&amp;Rechter Rollstreifen</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <translation>Expresstaste 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <translation>Expresstaste 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <translation>Expresstaste 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <translation>Expresstaste 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <translation>Rolltem&amp;po:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Rolltempo</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <translation>&amp;Obere Stifttaste:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Obere Stifttaste</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <translation>&amp;Untere Stifttaste:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Untere Stifttaste</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Bildschirm</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>Meldegeschwindigkeit</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Zu den gespeicherten Einstellungen zurückkehren</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Die jetzigen Einstellungen speichern</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <translation>Unbekanntes Tablett, Produkt %1</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Bild des Tabletts</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <translation>Tablett abbil&amp;den auf:</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>Tablett abbilden auf</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>Der Teil der Arbeitsfläche, den der Stift erreicht.</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>Das Tablett drehen, damit die Tasten unter der anderen Hand liegen.</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <translation>Um 180° gedreht</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <translation>Nicht gedreht</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>&amp;Meldegeschwindigkeit:</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>„Schnell“ folgt der Hand genauer. Die Einstellung wird auch über USB an das Tablett selbst gesendet.</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <translation>&amp;Ganzes Tablett nutzen</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Bildet das ganze Tablett auf den gewählten Teil der Arbeitsfläche ab.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>&amp;Proportionen wahren</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>Lässt einen Streifen des Tabletts frei, damit Kreise rund bleiben.</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>Bild der Bildschirme und des Tabletts</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <translation>&amp;Kalibrieren …</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>Vier Kreuze auf dem gewählten Bildschirm berühren, um den Zeiger am Stift auszurichten.</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <translation>St&amp;ift</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <translation>Leicht: Schon eine sanfte Berührung wirkt stark. Fest: Für dieselbe Wirkung drücken Sie stärker.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <translation>↑ Was Programme erhalten</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Druckkurve</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <translation>Wie stark Sie drücken →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Leicht</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Druck, von leicht bis fest</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <translation>Den Stift ausprobieren</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>Br&amp;eite folgt dem Druck</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>Deckkra&amp;ft folgt dem Druck</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Lee&amp;ren</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>Die Zeichenfläche leeren</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>Zeichnen Sie hier mit dem Stift oder der Maus.</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <translation>Druck, von 65535:</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>Ist das Tablett angeschlossen? Läuft sein Treiber? Die Einstellungen erscheinen hier, sobald beides der Fall ist.</translation>
    </message>
</context>
</TS>
