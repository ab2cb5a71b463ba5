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
    <name>ApplicationsDialog</name>
    <message>
        <source>Applications of the Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Applications du profil</translation>
    </message>
    <message>
        <source>With “Follow Applications”, the profile “%1” is used while one of these applications is in front:</source>
        <extracomment>%1 is the name of a profile; the quotation marks are those of the menu item.</extracomment>
        <translation>Avec «&#xa0;Suivre les applications&#xa0;», le profil «&#xa0;%1&#xa0;» est utilisé tant qu’une de ces applications est au premier plan&#xa0;:</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Applications</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <extracomment>Button: chooses another application for the list.</extracomment>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>Button: takes the selected application out of the list.</extracomment>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Annuler</translation>
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
        <translation>bouton haut du stylet</translation>
    </message>
    <message>
        <source>lower pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>bouton bas du stylet</translation>
    </message>
    <message>
        <source>key %1</source>
        <extracomment>After &quot;Undo:&quot;; %1 is the number of an express key.</extracomment>
        <translation>touche %1</translation>
    </message>
    <message>
        <source>pressure</source>
        <extracomment>After &quot;Undo:&quot;: the pressure curve.</extracomment>
        <translation>pression</translation>
    </message>
    <message>
        <source>pen speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>vitesse du stylet</translation>
    </message>
    <message>
        <source>left scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>bande tactile gauche</translation>
    </message>
    <message>
        <source>right scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>bande tactile droite</translation>
    </message>
    <message>
        <source>scroll speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>vitesse de défilement</translation>
    </message>
    <message>
        <source>display</source>
        <extracomment>After &quot;Undo:&quot;: the display that the tablet is mapped to.</extracomment>
        <translation>écran</translation>
    </message>
    <message>
        <source>report speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>vitesse d’envoi</translation>
    </message>
    <message>
        <source>orientation</source>
        <extracomment>After &quot;Undo:&quot;: how the tablet lies on the desk.</extracomment>
        <translation>orientation</translation>
    </message>
    <message>
        <source>area of the tablet</source>
        <extracomment>After &quot;Undo:&quot;: the part of the tablet that is in use.</extracomment>
        <translation>zone de la tablette</translation>
    </message>
</context>
<context>
    <name>FollowService</name>
    <message>
        <source>Your session has no bus that answers.</source>
        <translation>Votre session n’a pas de bus qui réponde.</translation>
    </message>
    <message>
        <source>Your session has no systemd user manager, which would start the service.</source>
        <translation>Votre session n’a pas de gestionnaire d’utilisateur systemd, qui lancerait le service.</translation>
    </message>
    <message>
        <source>The service %1 is not installed.</source>
        <extracomment>%1 is the name of a service of systemd.</extracomment>
        <translation>Le service %1 n’est pas installé.</translation>
    </message>
    <message>
        <source>The service %1 cannot be turned on: it is %2.</source>
        <extracomment>%1 is the name of a service of systemd, %2 one of systemd&apos;s words, such as &quot;masked&quot;.</extracomment>
        <translation>Le service %1 ne peut pas être activé&#xa0;: il est %2.</translation>
    </message>
    <message>
        <source>“Follow Applications” was not changed: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>«&#xa0;Suivre les applications&#xa0;» n’a pas été modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Profiles do not follow applications now: the service does not run. What “systemctl --user status qvtblt-follow” prints may say why.</source>
        <extracomment>The words in quotation marks are a command.</extracomment>
        <translation>Les profils ne suivent pas les applications pour le moment : le service ne fonctionne pas. Ce qu’affiche « systemctl --user status qvtblt-follow » peut en donner la raison.</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Importer un profil</translation>
    </message>
    <message>
        <source>What is in the profile</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Ce que contient le profil</translation>
    </message>
    <message>
        <source>It changes nothing.</source>
        <translation>Il ne change rien.</translation>
    </message>
    <message>
        <source>It changes:</source>
        <translation>Il modifie&#xa0;:</translation>
    </message>
    <message>
        <source>Left out, because it does not fit your tablet:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Il laisse de côté, car cela ne convient pas à votre tablette&#xa0;:</translation>
    </message>
    <message>
        <source>It is for these applications:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Il est destiné à ces applications&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <extracomment>Button: keeps what is in the file as a profile.</extracomment>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>The profile will be in the list as “%1”. It is not used yet.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Le profil sera dans la liste sous le nom «&#xa0;%1&#xa0;». Il n’est pas encore utilisé.</translation>
    </message>
    <message>
        <source>Some of its buttons would start an application. Allow only what you know and trust; the others do nothing.</source>
        <translation>Certains de ses boutons lanceraient une application. N’autorisez que ce que vous connaissez et à quoi vous faites confiance&#xa0;; les autres ne font rien.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Let this button start it</source>
        <extracomment>Check box: a button of the tablet may start the application whose path is above.</extracomment>
        <translation>Laisser ce bouton la lancer</translation>
    </message>
    <message>
        <source>%1: let this button start %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1&#xa0;: laisser ce bouton lancer %2</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>Applications</source>
        <extracomment>Kind of files in the dialog for choosing an application.</extracomment>
        <translation>Applications</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Ce n’est pas une application&#xa0;: choisissez une entrée de bureau, une AppImage ou un paquet d’application.</translation>
    </message>
    <message>
        <source>Choose the file of an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Choisir le fichier d’une application</translation>
    </message>
</context>
<context>
    <name>PaneEdits</name>
    <message>
        <source>Edit</source>
        <extracomment>Button beside the tabs, which opens a menu with Undo and Redo.</extracomment>
        <translation>Édition</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Revenir aux réglages enregistrés</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open.</extracomment>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Enregistrer les réglages actuels</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Les réglages n’ont pas été enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Les réglages de la tablette ne peuvent pas être chargés, les pages ne les montrent donc pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>Le pilote de la tablette n’a pas pris en compte le dernier changement. Est-il en cours d’exécution&#xa0;?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <extracomment>Button: saves or loads the settings again.</extracomment>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <extracomment>Button: sends the settings to the driver again.</extracomment>
        <translation>Re&amp;nvoyer</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Les réglages de la tablette n’ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>Fermer la fenêtre et abandonner les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <extracomment>Button: the window stays open, with its unsaved changes.</extracomment>
        <translation>&amp;Garder ouverte</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Les réglages de la tablette précédente n’ont pas été enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Find the &amp;Problem…</source>
        <extracomment>Button where no tablet is found: opens the self-check.</extracomment>
        <translation>Chercher le &amp;problème…</translation>
    </message>
    <message>
        <source>Check the tablet, its driver and the panel</source>
        <translation>Vérifier la tablette, son pilote et le panneau</translation>
    </message>
    <message>
        <source>The monitor that you chose for the tablet is now display %1.</source>
        <extracomment>%1 is a number in the list of displays.</extracomment>
        <translation>L’écran que vous avez choisi pour la tablette porte maintenant le numéro %1.</translation>
    </message>
    <message>
        <source>Choose Displa&amp;y %1</source>
        <extracomment>Button: maps the tablet to the display with the number %1.</extracomment>
        <translation>Choi&amp;sir l’écran %1</translation>
    </message>
</context>
<context>
    <name>ProfileBar</name>
    <message>
        <source>None</source>
        <extracomment>Item of the list of profiles, while the settings are those of none.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <extracomment>Label of the list of profiles; a profile is a set of all settings of the tablet.</extracomment>
        <translation>&amp;Profil&#xa0;:</translation>
    </message>
    <message>
        <source>Each profile has all settings of the tablet for one kind of work.</source>
        <extracomment>Describes the list of profiles.</extracomment>
        <translation>Chaque profil contient tous les réglages de la tablette pour un type de travail.</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <extracomment>Button: saves the current settings as a profile, and asks for its name.</extracomment>
        <translation>Enregistrer so&amp;us…</translation>
    </message>
    <message>
        <source>Save the current settings as a profile</source>
        <translation>Enregistrer les réglages actuels comme profil</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>Button beside the list of profiles: opens a menu with what else can be done with them.</extracomment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Manage the profiles</source>
        <translation>Gérer les profils</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <extracomment>Menu item: gives the current profile another name.</extracomment>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <extracomment>Menu item: makes a copy of the current profile.</extracomment>
        <translation>&amp;Dupliquer…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <extracomment>Menu item: deletes the current profile.</extracomment>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Applications…</source>
        <extracomment>Menu item: which applications the current profile is for.</extracomment>
        <translation>&amp;Applications…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <extracomment>Menu item: takes a profile from a file.</extracomment>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <extracomment>Menu item: writes the current profile into a file.</extracomment>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>&amp;Follow Applications</source>
        <extracomment>Menu item with a check mark: profiles change with the application in front.</extracomment>
        <translation>Suivre &amp;les applications</translation>
    </message>
    <message>
        <source>Use a profile while one of its applications is in front</source>
        <extracomment>Describes the menu item &quot;Follow Applications&quot;.</extracomment>
        <translation>Utiliser un profil tant qu’une de ses applications est au premier plan</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>Button: saves the settings under the name.</extracomment>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace it with the current settings?</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Il y a déjà un profil «&#xa0;%1&#xa0;». Le remplacer par les réglages actuels&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>Button: a profile that is there is replaced.</extracomment>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Renommer le profil</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <extracomment>Button: gives the profile the name.</extracomment>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Dupliquer le profil</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <extracomment>Button: makes a copy of the profile with the name.</extracomment>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Delete the profile “%1”? The tablet keeps its settings.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Supprimer le profil «&#xa0;%1&#xa0;»&#xa0;? La tablette garde ses réglages.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: deletes a profile.</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Choose a Profile to Import</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Choisir un profil à importer</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Profils</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Export Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Exporter le profil</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button of a question: does nothing.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Follow Applications (not running)</source>
        <extracomment>The same menu item, where the service that does it is on, but has ended.</extracomment>
        <translation>Suivre &amp;les applications (arrêté)</translation>
    </message>
</context>
<context>
    <name>ProfileNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <extracomment>Label of the field for a profile&apos;s name.</extracomment>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Croix 1 sur 4, en haut à gauche.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Croix 2 sur 4, en haut à droite.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Croix 3 sur 4, en bas à droite.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Croix 4 sur 4, en bas à gauche.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <extracomment>Heading of the question whether to keep the calibration.</extracomment>
        <translation>Calibrage terminé</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <extracomment>Heading of the message that the crosses were touched in a wrong order.</extracomment>
        <translation>Échec du calibrage</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <extracomment>Title of the window with the crosses.</extracomment>
        <translation>Calibrage</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Read by screen readers for the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Pression %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Key Combination</source>
        <translation>Combinaison de touches</translation>
    </message>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <extracomment>Shown in the empty field of chosen keys; must fit into it</extracomment>
        <translation>Choisissez jusqu’à trois touches, dans l’ordre d’appui</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Touches choisies</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: removes the key chosen last</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Retirer la dernière touche</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>Name of the key Esc</extracomment>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Minus</source>
        <extracomment>Name of the key -</extracomment>
        <translation>Moins</translation>
    </message>
    <message>
        <source>Plus</source>
        <extracomment>Name of the key +</extracomment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>Name of the key Bksp</extracomment>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Control</source>
        <extracomment>Name of the key Ctrl</extracomment>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>Name of the key Cmd, the Windows or Super key</extracomment>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Page up</source>
        <extracomment>Name of the key PgUp</extracomment>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page down</source>
        <extracomment>Name of the key PgDn</extracomment>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>Il n’y a pas d’image de ce modèle.</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <extracomment>Read by screen readers for the picture of the tablet; %1 is the model&apos;s name.</extracomment>
        <translation>%1. Chaque touche porte le numéro de sa liste.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, %2 by %3 its size, %4, %5 its position.</extracomment>
        <translation>%1&#xa0;: %2 sur %3 points, coin supérieur gauche à %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <extracomment>Read by screen readers; %1 is an item of the display list, such as &quot;Display #1&quot;.</extracomment>
        <translation>La tablette couvre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: only one display can be calibrated at a time.</source>
        <translation>Choisissez d’abord un écran&#xa0;: un seul écran peut être calibré à la fois.</translation>
    </message>
</context>
<context>
    <name>QVPaneProfiles</name>
    <message>
        <source>No tablet is attached.</source>
        <translation>Aucune tablette n’est branchée.</translation>
    </message>
    <message>
        <source>The tablet is being calibrated. Finish that first.</source>
        <translation>La tablette est en cours de calibrage. Terminez-le d’abord.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Part of the line below the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Pression %1&#xa0;%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <extracomment>%1 and %2 are degrees, negative for left and up.</extracomment>
        <translation>Inclinaison %1° à droite, %2° vers le bas</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <extracomment>Rotation of the pen about its own axis; %1 is in degrees.</extracomment>
        <translation>Rotation %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <extracomment>Position of the pen; %1 is x, %2 is y.</extracomment>
        <translation>À %1, %2 du bureau</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <extracomment>%1 is the number of the input device.</extracomment>
        <translation>Stylet numéro %1</translation>
    </message>
</context>
<context>
    <name>QVPressFit</name>
    <message>
        <source>Programs receive %1 % of the full pressure at a quarter of it, %2 % at half and %3 % at three quarters.</source>
        <extracomment>Read by screen readers for the new pressure curve; %1 to %3 are percentages.</extracomment>
        <translation>Les programmes reçoivent %1 % de la pression maximale à un quart de celle-ci, %2 % à la moitié et %3 % aux trois quarts.</translation>
    </message>
    <message>
        <source>Fit the pressure to your hand</source>
        <extracomment>Title of the dialog that fits the pressure curve to the user&apos;s hand.</extracomment>
        <translation>Ajuster la pression à votre main</translation>
    </message>
    <message>
        <source>Pad to press on</source>
        <translation>Surface où appuyer</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Courbe de pression</translation>
    </message>
    <message>
        <source>Start &amp;Again</source>
        <extracomment>Button: forgets both presses, and asks for the first one again.</extracomment>
        <translation>&amp;Recommencer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and leaves the pressure curve as it is.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <extracomment>Button: takes the new pressure curve.</extracomment>
        <translation>&amp;Utiliser</translation>
    </message>
    <message>
        <source>Press on the pad as lightly as you ever do, and lift the pen.</source>
        <translation>Appuyez sur la surface aussi légèrement qu’il vous arrive de le faire, puis levez le stylet.</translation>
    </message>
    <message>
        <source>Now press as hard as you ever do, and lift the pen.</source>
        <translation>Appuyez maintenant aussi fort qu’il vous arrive de le faire, puis levez le stylet.</translation>
    </message>
    <message>
        <source>That was not harder than the first time. Press as hard as you ever do, and lift the pen.</source>
        <translation>Ce n’était pas plus fort que la première fois. Appuyez aussi fort qu’il vous arrive de le faire, puis levez le stylet.</translation>
    </message>
    <message>
        <source>The curve fits your hand as it is.</source>
        <translation>La courbe convient déjà à votre main.</translation>
    </message>
    <message>
        <source>The thick line is the curve that fits your hand: the middle between your lightest and your hardest touch has half of the full effect.</source>
        <translation>La ligne épaisse est la courbe qui convient à votre main&#xa0;: le milieu entre votre toucher le plus léger et le plus fort a la moitié de l’effet.</translation>
    </message>
    <message>
        <source>Press here with the pen.</source>
        <translation>Appuyez ici avec le stylet.</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Pen</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Stylet</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Gomme, numéro de série %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Stylet, numéro de série %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <extracomment>A label below the drawing pad: no pen is near enough for the tablet to detect it.</extracomment>
        <translation>Aucun stylet à portée</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <extracomment>Read by screen readers for the pressure curve; %2 to %4 are percentages.</extracomment>
        <translation>Seuil %1 sur 200. Les programmes reçoivent %2&#xa0;% de la pression maximale à un quart de celle-ci, %3&#xa0;% à la moitié et %4&#xa0;% aux trois quarts.</translation>
    </message>
</context>
<context>
    <name>QVProfile</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un profil a besoin d’un nom.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>Le nom dépasse %1 caractères.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be shown.</source>
        <translation>Le nom contient des caractères qui ne peuvent pas être affichés.</translation>
    </message>
    <message>
        <source>The file is not a profile.</source>
        <translation>Ce n’est pas un profil.</translation>
    </message>
    <message>
        <source>The file is a profile of an unsupported version.</source>
        <translation>C’est un profil d’une autre version.</translation>
    </message>
</context>
<context>
    <name>QVProfileFolder</name>
    <message>
        <source>There is no profile “%1”.</source>
        <translation>Il n’y a pas de profil «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is already a profile “%1”.</source>
        <translation>Il y a déjà un profil «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QVProfileImport</name>
    <message>
        <source>%1: %2</source>
        <extracomment>What an imported profile sets: %1 is a button, such as &quot;key 3&quot;, %2 its action.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>QVProfileSwitch</name>
    <message>
        <source>Before %1</source>
        <extracomment>The name of a profile with what was set before the profile %1 was used.</extracomment>
        <translation>Avant %1</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>Il n’y a pas de profils.</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>The name of a profile with the settings of a user who had no profiles for them.</extracomment>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>QVSlotPath</name>
    <message>
        <source>The path contains characters that the tablet&apos;s settings cannot hold.</source>
        <translation>Le chemin contient des caractères que les réglages de la tablette ne peuvent pas contenir.</translation>
    </message>
    <message>
        <source>The path is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>Le chemin dépasse %1 caractères.</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Tablette Quorvia</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <extracomment>Page with the actions of the keys; tab title</extracomment>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Image de la tablette</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>Bande tactile &amp;gauche</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>Bande tactile &amp;droite</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Touche rapide 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <extracomment>Label of a slider</extracomment>
        <translation>Dé&amp;filement&#xa0;:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Vitesse de défilement</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <extracomment>Label of a list: the upper button on the barrel of the pen</extracomment>
        <translation>Bouton &amp;haut du stylet&#xa0;:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Bouton haut du stylet</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <extracomment>Label of a list: the lower button on the barrel of the pen</extracomment>
        <translation>Bouton &amp;bas du stylet&#xa0;:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Bouton bas du stylet</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <extracomment>Page with pressure curve and drawing pad; tab title</extracomment>
        <translation>St&amp;ylet</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>Heading of the pressure curve and its slider</extracomment>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <extracomment>Use the same words as at the ends of the slider</extracomment>
        <translation>Léger&#xa0;: un toucher délicat produit déjà beaucoup d’effet. Fort&#xa0;: il faut appuyer davantage pour le même effet.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <extracomment>Vertical axis of the pressure curve; must fit into its height</extracomment>
        <translation>↑ Ce que reçoivent les programmes</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Courbe de pression</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <extracomment>Horizontal axis of the pressure curve</extracomment>
        <translation>Force de votre appui →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>Left end of the pressure slider: a light touch is enough</extracomment>
        <translation>&amp;Léger</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Pression, de léger à fort</translation>
    </message>
    <message>
        <source>Heavy</source>
        <extracomment>Right end of the pressure slider: you have to press hard</extracomment>
        <translation>Fort</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <extracomment>Heading of the drawing pad</extracomment>
        <translation>Essayer le stylet</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>Épa&amp;isseur selon la pression</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>&amp;Opacité selon la pression</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <extracomment>Button: clears the drawing pad</extracomment>
        <translation>E&amp;ffacer</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>Effacer la zone de dessin</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>Zone de dessin</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>Dessinez ici avec le stylet ou la souris.</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <extracomment>Label of the current pressure, a number from 0 to 65535</extracomment>
        <translation>Pression, sur 65535&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <extracomment>Page that maps the tablet to a display; tab title</extracomment>
        <translation>É&amp;cran</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <extracomment>Label of the list of displays</extracomment>
        <translation>&amp;Faire correspondre à&#xa0;:</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>Faire correspondre la tablette à</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>La partie du bureau que le stylet atteint.</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <extracomment>Label of a list: how the tablet lies on the desk</extracomment>
        <translation>&amp;Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>Tournez la tablette pour que ses touches soient sous l’autre main.</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>Pivotée de 180°</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>Non pivotée</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>&amp;Vitesse d’envoi&#xa0;:</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>Vitesse d’envoi</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>«&#xa0;Rapide&#xa0;» suit la main de plus près. Le réglage est aussi transmis à la tablette elle-même, par USB.</translation>
    </message>
    <message>
        <source>Fast</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <extracomment>Button; its corners become those of the display</extracomment>
        <translation>Utiliser toute &amp;la tablette</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Toute la tablette couvre la partie choisie du bureau.</translation>
    </message>
    <message>
        <source>Keep propor&amp;tions</source>
        <extracomment>Button: the tablet gets the proportions of the display, so that circles stay round</extracomment>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>Laisse une bande de la tablette inutilisée, pour que les cercles restent ronds.</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <extracomment>Button: opens the calibration</extracomment>
        <translation>Cali&amp;brer…</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>Touchez quatre croix sur l’écran choisi pour aligner le pointeur sur le stylet.</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>Image des écrans et de la tablette</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Revenir aux réglages enregistrés</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open</extracomment>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Enregistrer les réglages actuels</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>La tablette est-elle connectée&#xa0;? Son pilote est-il en cours d’exécution&#xa0;? Les réglages apparaissent ici dès que les deux sont disponibles.</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <extracomment>In place of a model&apos;s name; %1 is the USB product ID, four hexadecimal digits.</extracomment>
        <translation>Tablette inconnue, produit %1</translation>
    </message>
    <message>
        <source>%1 is pressed</source>
        <extracomment>Read by screen readers; %1 is the name of a key or of a button of the pen.</extracomment>
        <translation>%1&#xa0;: appuyé</translation>
    </message>
    <message>
        <source>&amp;Identify displays</source>
        <extracomment>Button: shows on each display which one it is</extracomment>
        <translation>&amp;Identifier les écrans</translation>
    </message>
    <message>
        <source>Shows the number of each display on the display itself, for three seconds.</source>
        <translation>Affiche pendant trois secondes le numéro de chaque écran sur l’écran lui-même.</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <extracomment>On a display; %1 is its maker and model, %2 and %3 its width and height.</extracomment>
        <translation>%1, %2 × %3 pixels</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, such as &quot;Display #1&quot;, %2 its maker and size.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>several settings</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>plusieurs réglages</translation>
    </message>
    <message>
        <source>&amp;Fit to My Hand…</source>
        <extracomment>Button: opens a dialog that sets the pressure by two touches</extracomment>
        <translation>A&amp;juster à ma main…</translation>
    </message>
    <message>
        <source>Press once lightly and once hard to find the curve that fits.</source>
        <translation>Appuyez une fois légèrement et une fois fort pour trouver la courbe qui convient.</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>Log out and in again.</source>
        <translation>Fermez la session et ouvrez-la de nouveau.</translation>
    </message>
    <message>
        <source>Restart the driver, or log out and in again.</source>
        <translation>Redémarrez le pilote, ou fermez la session et ouvrez-la de nouveau.</translation>
    </message>
    <message>
        <source>Plug the tablet in again. If that does not help, log out and in again.</source>
        <translation>Rebranchez la tablette. Si cela ne suffit pas, fermez la session et ouvrez-la de nouveau.</translation>
    </message>
    <message>
        <source>End that program, and plug the tablet in again.</source>
        <translation>Fermez ce programme et rebranchez la tablette.</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>Il n&apos;y a pas de bus de session.</translation>
    </message>
    <message>
        <source>Log out and in again. Without a desktop, use dbus-run-session.</source>
        <translation>Fermez la session et ouvrez-la de nouveau. Sans bureau, utilisez dbus-run-session.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>Le bus de session ne répond pas.</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>Le bus de session répond.</translation>
    </message>
    <message>
        <source>The driver is running.</source>
        <translation>Le pilote fonctionne.</translation>
    </message>
    <message>
        <source>The driver was not running and has been started.</source>
        <translation>Le pilote ne fonctionnait pas et a été démarré.</translation>
    </message>
    <message>
        <source>No driver is installed.</source>
        <translation>Aucun pilote n&apos;est installé.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver.</source>
        <translation>Installez le paquet tdsg-driver.</translation>
    </message>
    <message>
        <source>The driver cannot be started.</source>
        <translation>Le pilote ne peut pas être démarré.</translation>
    </message>
    <message>
        <source>Log out and in again. The reason is in the journal of the session.</source>
        <translation>Fermez la session et ouvrez-la de nouveau. La raison se trouve dans le journal de la session.</translation>
    </message>
    <message>
        <source>The driver does not answer in time.</source>
        <translation>Le pilote ne répond pas à temps.</translation>
    </message>
    <message>
        <source>The driver answers in time.</source>
        <translation>Le pilote répond à temps.</translation>
    </message>
    <message>
        <source>The driver has a tablet of its own, such as a simulated one.</source>
        <translation>Le pilote a sa propre tablette, par exemple une tablette simulée.</translation>
    </message>
    <message>
        <source>No tablet is connected.</source>
        <translation>Aucune tablette n&apos;est branchée.</translation>
    </message>
    <message>
        <source>Connect the tablet, or switch it on. If it is connected, try another socket or cable.</source>
        <translation>Branchez la tablette ou allumez-la. Si elle est branchée, essayez une autre prise ou un autre câble.</translation>
    </message>
    <message>
        <source>A tablet is connected, but the driver does not use it: %1.</source>
        <translation>Une tablette est branchée, mais le pilote ne l&apos;utilise pas&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Do what the following lines say. Otherwise, plug the tablet in again, or restart the driver.</source>
        <translation>Faites ce que disent les lignes suivantes. Sinon, rebranchez la tablette ou redémarrez le pilote.</translation>
    </message>
    <message>
        <source>A tablet is connected: %1.</source>
        <translation>Une tablette est branchée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver-access, and plug the tablet in again.</source>
        <translation>Installez le paquet tdsg-driver-access et rebranchez la tablette.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;ouvrir la tablette.</translation>
    </message>
    <message>
        <source>You may not open /dev/uinput, which the driver needs.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;ouvrir /dev/uinput, dont le pilote a besoin.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet over USB, so its speed cannot be set.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;ouvrir la tablette par USB&#xa0;: sa vitesse ne peut pas être réglée.</translation>
    </message>
    <message>
        <source>Install the package qvtblt, and plug the tablet in again.</source>
        <translation>Installez le paquet qvtblt et rebranchez la tablette.</translation>
    </message>
    <message>
        <source>You may open the tablet.</source>
        <translation>Vous avez le droit d&apos;ouvrir la tablette.</translation>
    </message>
    <message>
        <source>Another program has the tablet open: %1.</source>
        <translation>Un autre programme a ouvert la tablette&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A program has taken the tablet from the system&apos;s drivers.</source>
        <translation>Un programme a pris la tablette aux pilotes du système.</translation>
    </message>
    <message>
        <source>None of your programs has the tablet open.</source>
        <translation>Aucun de vos programmes n&apos;a ouvert la tablette.</translation>
    </message>
    <message>
        <source>There is no settings file.</source>
        <translation>Il n&apos;y a pas de fichier de réglages.</translation>
    </message>
    <message>
        <source>Restart the driver, which makes the file.</source>
        <translation>Redémarrez le pilote, qui crée le fichier.</translation>
    </message>
    <message>
        <source>The settings file cannot be used.</source>
        <translation>Le fichier de réglages est inutilisable.</translation>
    </message>
    <message>
        <source>Move the file away and restart the driver, which makes a new one.</source>
        <translation>Déplacez le fichier et redémarrez le pilote, qui en crée un nouveau.</translation>
    </message>
    <message>
        <source>The settings file cannot be written.</source>
        <translation>Le fichier de réglages ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Give yourself write permission for the file and its folder.</source>
        <translation>Donnez-vous le droit d&apos;écrire le fichier et son dossier.</translation>
    </message>
    <message>
        <source>The disk with the settings file has no room left.</source>
        <translation>Il n&apos;y a plus de place sur le disque du fichier de réglages.</translation>
    </message>
    <message>
        <source>Delete something from this disk.</source>
        <translation>Supprimez quelque chose de ce disque.</translation>
    </message>
    <message>
        <source>The settings file can be read and written.</source>
        <translation>Le fichier de réglages peut être lu et écrit.</translation>
    </message>
    <message>
        <source>No settings have been sent yet.</source>
        <translation>Aucun réglage n&apos;a encore été envoyé.</translation>
    </message>
    <message>
        <source>The driver has not accepted the last change.</source>
        <translation>Le pilote n&apos;a pas accepté la dernière modification.</translation>
    </message>
    <message>
        <source>The driver has accepted the settings.</source>
        <translation>Le pilote a accepté les réglages.</translation>
    </message>
    <message>
        <source>The panel is not installed.</source>
        <translation>Le panneau n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Install the package qvtblt.</source>
        <translation>Installez le paquet qvtblt.</translation>
    </message>
    <message>
        <source>The panel does not fit the version of Qt: it was built for %1.</source>
        <translation>Le panneau ne correspond pas à la version de Qt&#xa0;: il a été compilé pour la %1.</translation>
    </message>
    <message>
        <source>Install the panel of the same release as the desktop.</source>
        <translation>Installez le panneau de la même version que le bureau.</translation>
    </message>
    <message>
        <source>The panel matches the version of Qt, %1.</source>
        <translation>Le panneau correspond à la version de Qt, %1.</translation>
    </message>
    <message>
        <source>There is no desktop.</source>
        <translation>Il n&apos;y a pas de bureau.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen if the desktop&apos;s own settings map the pen to all displays.</source>
        <translation>L&apos;écran du stylet peut être choisi si les réglages du bureau associent le stylet à tous les écrans.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen.</source>
        <translation>L&apos;écran du stylet peut être choisi.</translation>
    </message>
    <message>
        <source>The driver was not checked.</source>
        <translation>Le pilote n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>The driver was not asked.</source>
        <translation>Le pilote n’a pas été interrogé.</translation>
    </message>
    <message>
        <source>Access to the tablet was not checked.</source>
        <translation>L’accès à la tablette n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>Other programs were not checked.</source>
        <translation>Les autres programmes n’ont pas été vérifiés.</translation>
    </message>
    <message>
        <source>The settings file was not checked.</source>
        <translation>Le fichier de réglages n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>Sending settings was not checked.</source>
        <translation>L’envoi des réglages n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>The choice of the pen&apos;s display was not checked.</source>
        <translation>Le choix de l’écran du stylet n’a pas été vérifié.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>Self-Check</source>
        <extracomment>Title of the window that says what is wrong with tablet, driver and panel.</extracomment>
        <translation>Autodiagnostic</translation>
    </message>
    <message>
        <source>What was checked</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Ce qui a été vérifié</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <extracomment>Button of the self-check.</extracomment>
        <translation>&amp;Vérifier de nouveau</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <extracomment>Button of the self-check: copies what was found to the clipboard.</extracomment>
        <translation>Copier le &amp;rapport</translation>
    </message>
    <message>
        <source>For the person who helps you. It contains no personal data.</source>
        <translation>Pour qui vous aide. Il ne contient rien de personnel.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>Aucun problème n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>Something is wrong. Begin with the first problem:</source>
        <translation>Quelque chose ne va pas. Commencez par le premier problème&#xa0;:</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non vérifié</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is OK, Problem or Not checked, %2 what was found.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>platform::ApplicationChooser</name>
    <message>
        <source>Choose an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Choisir une application</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Shown in the empty search field above the list of applications.</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search for an application</source>
        <translation>Rechercher une application</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>No application matches the search.</source>
        <translation>Aucune application ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <extracomment>Button: choose a file that is not in the list of applications.</extracomment>
        <translation>A&amp;utre fichier…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: leaves the dialog without choosing an application.</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>C&amp;hoose</source>
        <extracomment>Button: takes the selected application.</extracomment>
        <translation>C&amp;hoisir</translation>
    </message>
</context>
</TS>
