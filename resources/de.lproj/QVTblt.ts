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
    <name>ApplicationsDialog</name>
    <message>
        <source>Applications of the Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Anwendungen des Profils</translation>
    </message>
    <message>
        <source>With “Follow Applications”, the profile “%1” is used while one of these applications is in front:</source>
        <extracomment>%1 is the name of a profile; the quotation marks are those of the menu item.</extracomment>
        <translation>Mit „Anwendungen folgen“ wird das Profil „%1“ verwendet, solange eine dieser Anwendungen vorn ist:</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <extracomment>Button: chooses another application for the list.</extracomment>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>Button: takes the selected application out of the list.</extracomment>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <extracomment>Button: takes the list of applications.</extracomment>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>EntryName</name>
    <message>
        <source>upper pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>obere Stifttaste</translation>
    </message>
    <message>
        <source>lower pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>untere Stifttaste</translation>
    </message>
    <message>
        <source>key %1</source>
        <extracomment>After &quot;Undo:&quot;; %1 is the number of an express key.</extracomment>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>pressure</source>
        <extracomment>After &quot;Undo:&quot;: the pressure curve.</extracomment>
        <translation>Druck</translation>
    </message>
    <message>
        <source>pen speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>Stiftgeschwindigkeit</translation>
    </message>
    <message>
        <source>left scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>linker Rollstreifen</translation>
    </message>
    <message>
        <source>right scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>rechter Rollstreifen</translation>
    </message>
    <message>
        <source>scroll speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>Rolltempo</translation>
    </message>
    <message>
        <source>display</source>
        <extracomment>After &quot;Undo:&quot;: the display that the tablet is mapped to.</extracomment>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>report speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>Meldegeschwindigkeit</translation>
    </message>
    <message>
        <source>orientation</source>
        <extracomment>After &quot;Undo:&quot;: how the tablet lies on the desk.</extracomment>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>area of the tablet</source>
        <extracomment>After &quot;Undo:&quot;: the part of the tablet that is in use.</extracomment>
        <translation>Fläche des Tabletts</translation>
    </message>
</context>
<context>
    <name>FollowService</name>
    <message>
        <source>Your session has no bus that answers.</source>
        <translation>Ihre Sitzung hat keinen Bus, der antwortet.</translation>
    </message>
    <message>
        <source>Your session has no systemd user manager, which would start the service.</source>
        <translation>Ihre Sitzung hat keine systemd-Benutzerverwaltung, die den Dienst starten würde.</translation>
    </message>
    <message>
        <source>The service %1 is not installed.</source>
        <extracomment>%1 is the name of a service of systemd.</extracomment>
        <translation>Der Dienst %1 ist nicht installiert.</translation>
    </message>
    <message>
        <source>The service %1 cannot be turned on: it is %2.</source>
        <extracomment>%1 is the name of a service of systemd, %2 one of systemd&apos;s words, such as &quot;masked&quot;.</extracomment>
        <translation>Der Dienst %1 lässt sich nicht einschalten: Er ist %2.</translation>
    </message>
    <message>
        <source>“Follow Applications” was not changed: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>„Anwendungen folgen“ wurde nicht geändert: %1</translation>
    </message>
    <message>
        <source>Profiles do not follow applications now: the service does not run. What “systemctl --user status qvtblt-follow” prints may say why.</source>
        <extracomment>The words in quotation marks are a command.</extracomment>
        <translation>Profile folgen den Anwendungen jetzt nicht: Der Dienst läuft nicht. Die Ausgabe von „systemctl --user status qvtblt-follow“ sagt vielleicht, warum.</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil importieren</translation>
    </message>
    <message>
        <source>What is in the profile</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Was im Profil steht</translation>
    </message>
    <message>
        <source>It changes nothing.</source>
        <translation>Es ändert nichts.</translation>
    </message>
    <message>
        <source>It changes:</source>
        <translation>Es ändert:</translation>
    </message>
    <message>
        <source>Left out, because it does not fit your tablet:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Es lässt weg, weil es nicht zu Ihrem Tablett passt:</translation>
    </message>
    <message>
        <source>It is for these applications:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Es ist für diese Anwendungen:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <extracomment>Button: keeps what is in the file as a profile.</extracomment>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>The profile will be in the list as “%1”. It is not used yet.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Das Profil steht dann als „%1“ in der Liste. Verwendet wird es noch nicht.</translation>
    </message>
    <message>
        <source>Some of its buttons would start an application. Allow only what you know and trust; the others do nothing.</source>
        <translation>Einige seiner Tasten würden eine Anwendung starten. Erlauben Sie nur, was Sie kennen und wem Sie vertrauen; die anderen tun nichts.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Let this button start it</source>
        <extracomment>Check box: a button of the tablet may start the application whose path is above.</extracomment>
        <translation>Diese Taste darf sie starten</translation>
    </message>
    <message>
        <source>%1: let this button start %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: Diese Taste darf %2 starten</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>Applications</source>
        <extracomment>Kind of files in the dialog for choosing an application.</extracomment>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Das ist keine Anwendung: Bitte einen Desktop-Eintrag, ein AppImage oder ein Anwendungspaket wählen.</translation>
    </message>
    <message>
        <source>Choose the file of an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Datei einer Anwendung auswählen</translation>
    </message>
</context>
<context>
    <name>PaneEdits</name>
    <message>
        <source>Edit</source>
        <extracomment>Button beside the tabs, which opens a menu with Undo and Redo.</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Zu den gespeicherten Einstellungen zurückkehren</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open.</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Die jetzigen Einstellungen speichern</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Die Einstellungen wurden nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Die Einstellungen des Tabletts lassen sich nicht laden, deshalb zeigen die Seiten sie nicht: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>Der Treiber des Tabletts hat die letzte Änderung nicht angenommen. Läuft er?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <extracomment>Button: saves or loads the settings again.</extracomment>
        <translation>Er&amp;neut versuchen</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <extracomment>Button: sends the settings to the driver again.</extracomment>
        <translation>Er&amp;neut senden</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Die Einstellungen des Tabletts konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>Soll das Fenster geschlossen und sollen die Änderungen verworfen werden?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <extracomment>Button: the window stays open, with its unsaved changes.</extracomment>
        <translation>&amp;Offen lassen</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Die Einstellungen des vorigen Tabletts wurden nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Find the &amp;Problem…</source>
        <extracomment>Button where no tablet is found: opens the self-check.</extracomment>
        <translation>&amp;Fehler suchen …</translation>
    </message>
    <message>
        <source>Check the tablet, its driver and the panel</source>
        <translation>Tablett, Treiber und Einstellungen prüfen</translation>
    </message>
    <message>
        <source>The monitor that you chose for the tablet is now display %1.</source>
        <extracomment>%1 is a number in the list of displays.</extracomment>
        <translation>Der Bildschirm, den Sie für das Tablett gewählt haben, hat jetzt die Nummer %1.</translation>
    </message>
    <message>
        <source>Choose Displa&amp;y %1</source>
        <extracomment>Button: maps the tablet to the display with the number %1.</extracomment>
        <translation>Bildschirm %1 &amp;wählen</translation>
    </message>
</context>
<context>
    <name>ProfileBar</name>
    <message>
        <source>None</source>
        <extracomment>Item of the list of profiles, while the settings are those of none.</extracomment>
        <translation>Keines</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <extracomment>Label of the list of profiles; a profile is a set of all settings of the tablet.</extracomment>
        <translation>Pro&amp;fil:</translation>
    </message>
    <message>
        <source>Each profile has all settings of the tablet for one kind of work.</source>
        <extracomment>Describes the list of profiles.</extracomment>
        <translation>Jedes Profil enthält alle Einstellungen des Tabletts für eine Art von Arbeit.</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <extracomment>Button: saves the current settings as a profile, and asks for its name.</extracomment>
        <translation>Spei&amp;chern unter …</translation>
    </message>
    <message>
        <source>Save the current settings as a profile</source>
        <translation>Die jetzigen Einstellungen als Profil speichern</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>Button beside the list of profiles: opens a menu with what else can be done with them.</extracomment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Manage the profiles</source>
        <translation>Die Profile verwalten</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <extracomment>Menu item: gives the current profile another name.</extracomment>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <extracomment>Menu item: makes a copy of the current profile.</extracomment>
        <translation>&amp;Duplizieren …</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <extracomment>Menu item: deletes the current profile.</extracomment>
        <translation>&amp;Löschen …</translation>
    </message>
    <message>
        <source>&amp;Applications…</source>
        <extracomment>Menu item: which applications the current profile is for.</extracomment>
        <translation>&amp;Anwendungen …</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <extracomment>Menu item: takes a profile from a file.</extracomment>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <extracomment>Menu item: writes the current profile into a file.</extracomment>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Follow Applications</source>
        <extracomment>Menu item with a check mark: profiles change with the application in front.</extracomment>
        <translation>Anwendungen &amp;folgen</translation>
    </message>
    <message>
        <source>Use a profile while one of its applications is in front</source>
        <extracomment>Describes the menu item &quot;Follow Applications&quot;.</extracomment>
        <translation>Ein Profil verwenden, solange eine seiner Anwendungen vorn ist</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>Button: saves the settings under the name.</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace it with the current settings?</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Es gibt schon ein Profil „%1“. Soll es durch die jetzigen Einstellungen ersetzt werden?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>Button: a profile that is there is replaced.</extracomment>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <extracomment>Button: gives the profile the name.</extracomment>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil duplizieren</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <extracomment>Button: makes a copy of the profile with the name.</extracomment>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Delete the profile “%1”? The tablet keeps its settings.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Soll das Profil „%1“ gelöscht werden? Das Tablett behält seine Einstellungen.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: deletes a profile.</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Choose a Profile to Import</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil zum Importieren auswählen</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Export Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Profil exportieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button of a question: does nothing.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Follow Applications (not running)</source>
        <extracomment>The same menu item, where the service that does it is on, but has ended.</extracomment>
        <translation>Anwendungen &amp;folgen (läuft nicht)</translation>
    </message>
</context>
<context>
    <name>ProfileNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <extracomment>Label of the field for a profile&apos;s name.</extracomment>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Kreuz 1 von 4, oben links.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Kreuz 2 von 4, oben rechts.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Kreuz 3 von 4, unten rechts.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Kreuz 4 von 4, unten links.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <extracomment>Heading of the question whether to keep the calibration.</extracomment>
        <translation>Kalibrierung abgeschlossen</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <extracomment>Heading of the message that the crosses were touched in a wrong order.</extracomment>
        <translation>Kalibrierung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <extracomment>Title of the window with the crosses.</extracomment>
        <translation>Kalibrierung</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Read by screen readers for the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Druck %1 %</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <extracomment>Shown in the empty field of chosen keys; must fit into it</extracomment>
        <translation>Bis zu drei Tasten wählen, in der Reihenfolge des Drückens</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Gewählte Tasten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: removes the key chosen last</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Die letzte Taste entfernen</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>Name of the key Esc</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Minus</source>
        <extracomment>Name of the key -</extracomment>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Plus</source>
        <extracomment>Name of the key +</extracomment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>Name of the key Bksp</extracomment>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Control</source>
        <extracomment>Name of the key Ctrl</extracomment>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>Name of the key Cmd, the Windows or Super key</extracomment>
        <translation>Befehlstaste</translation>
    </message>
    <message>
        <source>Page up</source>
        <extracomment>Name of the key PgUp</extracomment>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page down</source>
        <extracomment>Name of the key PgDn</extracomment>
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
        <extracomment>Read by screen readers for the picture of the tablet; %1 is the model&apos;s name.</extracomment>
        <translation>%1. Jede Taste trägt die Nummer ihrer Liste.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, %2 by %3 its size, %4, %5 its position.</extracomment>
        <translation>%1: %2 mal %3 Punkte, die linke obere Ecke bei %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <extracomment>Read by screen readers; %1 is an item of the display list, such as &quot;Display #1&quot;.</extracomment>
        <translation>Das Tablett ist abgebildet auf: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: only one display can be calibrated at a time.</source>
        <translation>Zuerst einen Bildschirm wählen: Es lässt sich immer nur einer kalibrieren.</translation>
    </message>
</context>
<context>
    <name>QVPaneProfiles</name>
    <message>
        <source>No tablet is attached.</source>
        <translation>Es ist kein Tablett angeschlossen.</translation>
    </message>
    <message>
        <source>The tablet is being calibrated. Finish that first.</source>
        <translation>Das Tablett wird gerade kalibriert. Schließen Sie das zuerst ab.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Part of the line below the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Druck %1 %</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <extracomment>%1 and %2 are degrees, negative for left and up.</extracomment>
        <translation>Neigung %1° nach rechts, %2° nach unten</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <extracomment>Rotation of the pen about its own axis; %1 is in degrees.</extracomment>
        <translation>Drehung %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <extracomment>Position of the pen; %1 is x, %2 is y.</extracomment>
        <translation>Bei %1, %2 auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <extracomment>%1 is the number of the input device.</extracomment>
        <translation>Stift Nummer %1</translation>
    </message>
</context>
<context>
    <name>QVPressFit</name>
    <message>
        <source>Programs receive %1 % of the full pressure at a quarter of it, %2 % at half and %3 % at three quarters.</source>
        <extracomment>Read by screen readers for the new pressure curve; %1 to %3 are percentages.</extracomment>
        <translation>Programme erhalten bei einem Viertel des vollen Drucks %1 % davon, bei der Hälfte %2 % und bei drei Vierteln %3 %.</translation>
    </message>
    <message>
        <source>Fit the pressure to your hand</source>
        <extracomment>Title of the dialog that fits the pressure curve to the user&apos;s hand.</extracomment>
        <translation>Druck an die Hand anpassen</translation>
    </message>
    <message>
        <source>Pad to press on</source>
        <translation>Fläche zum Drücken</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Druckkurve</translation>
    </message>
    <message>
        <source>Start &amp;Again</source>
        <extracomment>Button: forgets both presses, and asks for the first one again.</extracomment>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and leaves the pressure curve as it is.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <extracomment>Button: takes the new pressure curve.</extracomment>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Press on the pad as lightly as you ever do, and lift the pen.</source>
        <translation>So leicht auf die Fläche drücken, wie Sie es je tun, und den Stift abheben.</translation>
    </message>
    <message>
        <source>Now press as hard as you ever do, and lift the pen.</source>
        <translation>Jetzt so fest drücken, wie Sie es je tun, und den Stift abheben.</translation>
    </message>
    <message>
        <source>That was not harder than the first time. Press as hard as you ever do, and lift the pen.</source>
        <translation>Das war nicht fester als beim ersten Mal. So fest drücken, wie Sie es je tun, und den Stift abheben.</translation>
    </message>
    <message>
        <source>The curve fits your hand as it is.</source>
        <translation>Die Kurve passt schon so zu Ihrer Hand.</translation>
    </message>
    <message>
        <source>The thick line is the curve that fits your hand: the middle between your lightest and your hardest touch has half of the full effect.</source>
        <translation>Die dicke Linie ist die Kurve, die zu Ihrer Hand passt: Die Mitte zwischen Ihrem leichtesten und Ihrem festesten Druck hat die halbe Wirkung.</translation>
    </message>
    <message>
        <source>Press here with the pen.</source>
        <translation>Hier mit dem Stift drücken.</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Pen</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Radierer, Seriennummer %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Stift, Seriennummer %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <extracomment>A label below the drawing pad: no pen is near enough for the tablet to detect it.</extracomment>
        <translation>Kein Stift in Reichweite</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <extracomment>Read by screen readers for the pressure curve; %2 to %4 are percentages.</extracomment>
        <translation>Schwelle %1 von 200. Programme erhalten bei einem Viertel des vollen Drucks %2 % davon, bei der Hälfte %3 % und bei drei Vierteln %4 %.</translation>
    </message>
</context>
<context>
    <name>QVProfile</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Ein Profil braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>Der Name ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be shown.</source>
        <translation>Der Name enthält Zeichen, die nicht angezeigt werden können.</translation>
    </message>
    <message>
        <source>The file is not a profile.</source>
        <translation>Das ist kein Profil.</translation>
    </message>
    <message>
        <source>The file is a profile of an unsupported version.</source>
        <translation>Das ist ein Profil einer anderen Version.</translation>
    </message>
</context>
<context>
    <name>QVProfileFolder</name>
    <message>
        <source>There is no profile “%1”.</source>
        <translation>Es gibt kein Profil „%1“.</translation>
    </message>
    <message>
        <source>There is already a profile “%1”.</source>
        <translation>Es gibt schon ein Profil „%1“.</translation>
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
        <translation>Vor %1</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>Es gibt keine Profile.</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>The name of a profile with the settings of a user who had no profiles for them.</extracomment>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>QVSlotPath</name>
    <message>
        <source>The path contains characters that the tablet&apos;s settings cannot hold.</source>
        <translation>Der Pfad enthält Zeichen, die die Einstellungen des Tabletts nicht aufnehmen können.</translation>
    </message>
    <message>
        <source>The path is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>Der Pfad ist länger als %1 Zeichen.</translation>
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
        <extracomment>Page with the actions of the keys; tab title</extracomment>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>&amp;Linker Rollstreifen</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>&amp;Rechter Rollstreifen</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Expresstaste 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <extracomment>Label of a slider</extracomment>
        <translation>Rolltem&amp;po:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Rolltempo</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <extracomment>Label of a list: the upper button on the barrel of the pen</extracomment>
        <translation>&amp;Obere Stifttaste:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Obere Stifttaste</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <extracomment>Label of a list: the lower button on the barrel of the pen</extracomment>
        <translation>&amp;Untere Stifttaste:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Untere Stifttaste</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <extracomment>Page that maps the tablet to a display; tab title</extracomment>
        <translation>&amp;Bildschirm</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>Meldegeschwindigkeit</translation>
    </message>
    <message>
        <source>Fast</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Zu den gespeicherten Einstellungen zurückkehren</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Die jetzigen Einstellungen speichern</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <extracomment>In place of a model&apos;s name; %1 is the USB product ID, four hexadecimal digits.</extracomment>
        <translation>Unbekanntes Tablett, Produkt %1</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Bild des Tabletts</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <extracomment>Label of the list of displays</extracomment>
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
        <extracomment>Label of a list: how the tablet lies on the desk</extracomment>
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
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>Um 180° gedreht</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <extracomment>How the tablet lies on the desk</extracomment>
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
        <extracomment>Button; its corners become those of the display</extracomment>
        <translation>&amp;Ganzes Tablett nutzen</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Bildet das ganze Tablett auf den gewählten Teil der Arbeitsfläche ab.</translation>
    </message>
    <message>
        <source>Keep propor&amp;tions</source>
        <extracomment>Button: the tablet gets the proportions of the display, so that circles stay round</extracomment>
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
        <extracomment>Button: opens the calibration</extracomment>
        <translation>&amp;Kalibrieren …</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>Vier Kreuze auf dem gewählten Bildschirm berühren, um den Zeiger am Stift auszurichten.</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <extracomment>Page with pressure curve and drawing pad; tab title</extracomment>
        <translation>St&amp;ift</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>Heading of the pressure curve and its slider</extracomment>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <extracomment>Use the same words as at the ends of the slider</extracomment>
        <translation>Leicht: Schon eine sanfte Berührung wirkt stark. Fest: Für dieselbe Wirkung drücken Sie stärker.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <extracomment>Vertical axis of the pressure curve; must fit into its height</extracomment>
        <translation>↑ Was Programme erhalten</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Druckkurve</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <extracomment>Horizontal axis of the pressure curve</extracomment>
        <translation>Wie stark Sie drücken →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>Left end of the pressure slider: a light touch is enough</extracomment>
        <translation>&amp;Leicht</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Druck, von leicht bis fest</translation>
    </message>
    <message>
        <source>Heavy</source>
        <extracomment>Right end of the pressure slider: you have to press hard</extracomment>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <extracomment>Heading of the drawing pad</extracomment>
        <translation>Den Stift ausprobieren</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>Br&amp;eite folgt dem Druck</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>&amp;Deckkraft folgt dem Druck</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <extracomment>Button: clears the drawing pad</extracomment>
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
        <extracomment>Label of the current pressure, a number from 0 to 65535</extracomment>
        <translation>Druck, von 65535:</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>Ist das Tablett angeschlossen? Läuft sein Treiber? Die Einstellungen erscheinen hier, sobald beides der Fall ist.</translation>
    </message>
    <message>
        <source>%1 is pressed</source>
        <extracomment>Read by screen readers; %1 is the name of a key or of a button of the pen.</extracomment>
        <translation>%1 ist gedrückt</translation>
    </message>
    <message>
        <source>&amp;Identify displays</source>
        <extracomment>Button: shows on each display which one it is</extracomment>
        <translation>Bildschirmnummern &amp;zeigen</translation>
    </message>
    <message>
        <source>Shows the number of each display on the display itself, for three seconds.</source>
        <translation>Zeigt die Nummer jedes Bildschirms drei Sekunden lang auf ihm selbst an.</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <extracomment>On a display; %1 is its maker and model, %2 and %3 its width and height.</extracomment>
        <translation>%1, %2 × %3 Pixel</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, such as &quot;Display #1&quot;, %2 its maker and size.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>several settings</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>mehrere Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Fit to My Hand…</source>
        <extracomment>Button: opens a dialog that sets the pressure by two touches</extracomment>
        <translation>An die &amp;Hand anpassen …</translation>
    </message>
    <message>
        <source>Press once lightly and once hard to find the curve that fits.</source>
        <translation>Einmal leicht und einmal fest drücken, um die passende Kurve zu finden.</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>Log out and in again.</source>
        <translation>Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Restart the driver, or log out and in again.</source>
        <translation>Starten Sie den Treiber neu, oder melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Plug the tablet in again. If that does not help, log out and in again.</source>
        <translation>Stecken Sie das Tablett neu ein. Wenn das nicht hilft, melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>End that program, and plug the tablet in again.</source>
        <translation>Beenden Sie dieses Programm, und stecken Sie das Tablett neu ein.</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>Es gibt keinen Sitzungsbus.</translation>
    </message>
    <message>
        <source>Log out and in again. Without a desktop, use dbus-run-session.</source>
        <translation>Melden Sie sich ab und wieder an. Ohne Arbeitsfläche hilft dbus-run-session.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>Der Sitzungsbus antwortet nicht.</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>Der Sitzungsbus antwortet.</translation>
    </message>
    <message>
        <source>The driver is running.</source>
        <translation>Der Treiber läuft.</translation>
    </message>
    <message>
        <source>The driver was not running and has been started.</source>
        <translation>Der Treiber lief nicht und wurde gestartet.</translation>
    </message>
    <message>
        <source>No driver is installed.</source>
        <translation>Es ist kein Treiber installiert.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver.</source>
        <translation>Installieren Sie das Paket tdsg-driver.</translation>
    </message>
    <message>
        <source>The driver cannot be started.</source>
        <translation>Der Treiber lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>Log out and in again. The reason is in the journal of the session.</source>
        <translation>Melden Sie sich ab und wieder an. Der Grund steht im Journal der Sitzung.</translation>
    </message>
    <message>
        <source>The driver does not answer in time.</source>
        <translation>Der Treiber antwortet nicht rechtzeitig.</translation>
    </message>
    <message>
        <source>The driver answers in time.</source>
        <translation>Der Treiber antwortet rechtzeitig.</translation>
    </message>
    <message>
        <source>The driver has a tablet of its own, such as a simulated one.</source>
        <translation>Der Treiber hat ein eigenes Tablett, etwa ein simuliertes.</translation>
    </message>
    <message>
        <source>No tablet is connected.</source>
        <translation>Es ist kein Tablett angeschlossen.</translation>
    </message>
    <message>
        <source>Connect the tablet, or switch it on. If it is connected, try another socket or cable.</source>
        <translation>Schließen Sie das Tablett an, oder schalten Sie es ein. Ist es angeschlossen, versuchen Sie eine andere Buchse oder ein anderes Kabel.</translation>
    </message>
    <message>
        <source>A tablet is connected, but the driver does not use it: %1.</source>
        <translation>Ein Tablett ist angeschlossen, aber der Treiber nutzt es nicht: %1.</translation>
    </message>
    <message>
        <source>Do what the following lines say. Otherwise, plug the tablet in again, or restart the driver.</source>
        <translation>Folgen Sie den nächsten Zeilen. Stecken Sie sonst das Tablett neu ein, oder starten Sie den Treiber neu.</translation>
    </message>
    <message>
        <source>A tablet is connected: %1.</source>
        <translation>Ein Tablett ist angeschlossen: %1.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver-access, and plug the tablet in again.</source>
        <translation>Installieren Sie das Paket tdsg-driver-access, und stecken Sie das Tablett neu ein.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet.</source>
        <translation>Sie haben keine Berechtigung, das Tablett zu öffnen.</translation>
    </message>
    <message>
        <source>You may not open /dev/uinput, which the driver needs.</source>
        <translation>Sie dürfen /dev/uinput nicht öffnen, das der Treiber braucht.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet over USB, so its speed cannot be set.</source>
        <translation>Sie dürfen das Tablett nicht über USB öffnen, daher lässt sich seine Geschwindigkeit nicht einstellen.</translation>
    </message>
    <message>
        <source>Install the package qvtblt, and plug the tablet in again.</source>
        <translation>Installieren Sie das Paket qvtblt, und stecken Sie das Tablett neu ein.</translation>
    </message>
    <message>
        <source>You may open the tablet.</source>
        <translation>Sie dürfen das Tablett öffnen.</translation>
    </message>
    <message>
        <source>Another program has the tablet open: %1.</source>
        <translation>Ein anderes Programm hat das Tablett geöffnet: %1.</translation>
    </message>
    <message>
        <source>A program has taken the tablet from the system&apos;s drivers.</source>
        <translation>Ein Programm hat den Treibern des Systems das Tablett weggenommen.</translation>
    </message>
    <message>
        <source>None of your programs has the tablet open.</source>
        <translation>Keines Ihrer Programme hat das Tablett geöffnet.</translation>
    </message>
    <message>
        <source>There is no settings file.</source>
        <translation>Es gibt keine Einstellungsdatei.</translation>
    </message>
    <message>
        <source>Restart the driver, which makes the file.</source>
        <translation>Starten Sie den Treiber neu, der die Datei anlegt.</translation>
    </message>
    <message>
        <source>The settings file cannot be used.</source>
        <translation>Die Einstellungsdatei ist unbrauchbar.</translation>
    </message>
    <message>
        <source>Move the file away and restart the driver, which makes a new one.</source>
        <translation>Verschieben Sie die Datei, und starten Sie den Treiber neu, der eine neue anlegt.</translation>
    </message>
    <message>
        <source>The settings file cannot be written.</source>
        <translation>Die Einstellungsdatei lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Give yourself write permission for the file and its folder.</source>
        <translation>Geben Sie sich Schreibrechte für die Datei und ihren Ordner.</translation>
    </message>
    <message>
        <source>The disk with the settings file has no room left.</source>
        <translation>Auf dem Datenträger mit der Einstellungsdatei ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>Delete something from this disk.</source>
        <translation>Löschen Sie etwas von diesem Datenträger.</translation>
    </message>
    <message>
        <source>The settings file can be read and written.</source>
        <translation>Die Einstellungsdatei lässt sich lesen und schreiben.</translation>
    </message>
    <message>
        <source>No settings have been sent yet.</source>
        <translation>Es wurden noch keine Einstellungen gesendet.</translation>
    </message>
    <message>
        <source>The driver has not accepted the last change.</source>
        <translation>Der Treiber hat die letzte Änderung nicht angenommen.</translation>
    </message>
    <message>
        <source>The driver has accepted the settings.</source>
        <translation>Der Treiber hat die Einstellungen angenommen.</translation>
    </message>
    <message>
        <source>The panel is not installed.</source>
        <translation>Die Einstellungen sind nicht installiert.</translation>
    </message>
    <message>
        <source>Install the package qvtblt.</source>
        <translation>Installieren Sie das Paket qvtblt.</translation>
    </message>
    <message>
        <source>The panel does not fit the version of Qt: it was built for %1.</source>
        <translation>Die Einstellungen passen nicht zur Version von Qt: Sie wurden für %1 gebaut.</translation>
    </message>
    <message>
        <source>Install the panel of the same release as the desktop.</source>
        <translation>Installieren Sie die Einstellungen aus derselben Ausgabe wie die Arbeitsfläche.</translation>
    </message>
    <message>
        <source>The panel matches the version of Qt, %1.</source>
        <translation>Die Einstellungen passen zur Version von Qt, %1.</translation>
    </message>
    <message>
        <source>There is no desktop.</source>
        <translation>Es gibt keine Arbeitsfläche.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen if the desktop&apos;s own settings map the pen to all displays.</source>
        <translation>Der Bildschirm des Stifts lässt sich wählen, wenn die Einstellungen der Arbeitsfläche den Stift allen Bildschirmen zuordnen.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen.</source>
        <translation>Der Bildschirm des Stifts ist wählbar.</translation>
    </message>
    <message>
        <source>The driver was not checked.</source>
        <translation>Der Treiber wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>The driver was not asked.</source>
        <translation>Der Treiber wurde nicht gefragt.</translation>
    </message>
    <message>
        <source>Access to the tablet was not checked.</source>
        <translation>Der Zugriff auf das Tablett wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>Other programs were not checked.</source>
        <translation>Andere Programme wurden nicht geprüft.</translation>
    </message>
    <message>
        <source>The settings file was not checked.</source>
        <translation>Die Einstellungsdatei wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>Sending settings was not checked.</source>
        <translation>Das Senden der Einstellungen wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>The choice of the pen&apos;s display was not checked.</source>
        <translation>Die Wahl des Bildschirms für den Stift wurde nicht geprüft.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>Self-Check</source>
        <extracomment>Title of the window that says what is wrong with tablet, driver and panel.</extracomment>
        <translation>Selbstprüfung</translation>
    </message>
    <message>
        <source>What was checked</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Was geprüft wurde</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <extracomment>Button of the self-check.</extracomment>
        <translation>E&amp;rneut prüfen</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <extracomment>Button of the self-check: copies what was found to the clipboard.</extracomment>
        <translation>&amp;Bericht kopieren</translation>
    </message>
    <message>
        <source>For the person who helps you. It contains no personal data.</source>
        <translation>Für alle, die Ihnen helfen. Er enthält nichts Persönliches.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>Es wurde kein Fehler gefunden.</translation>
    </message>
    <message>
        <source>Something is wrong. Begin with the first problem:</source>
        <translation>Etwas stimmt nicht. Beginnen Sie mit dem ersten Problem:</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
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
        <translation>Anwendung auswählen</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Shown in the empty search field above the list of applications.</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search for an application</source>
        <translation>Nach einer Anwendung suchen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>No application matches the search.</source>
        <translation>Keine Anwendung passt zur Suche.</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <extracomment>Button: choose a file that is not in the list of applications.</extracomment>
        <translation>Andere &amp;Datei …</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: leaves the dialog without choosing an application.</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>C&amp;hoose</source>
        <extracomment>Button: takes the selected application.</extracomment>
        <translation>Aus&amp;wählen</translation>
    </message>
</context>
</TS>
