<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>OpenPanel</name>
    <message>
        <source>Choose an application</source>
        <translation>Choisir une application</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Ce n’est pas une application&#xa0;: choisissez une entrée de bureau, une AppImage ou un paquet d’application.</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Revenir aux réglages enregistrés</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Enregistrer les réglages actuels</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <translation>Les réglages n’ont pas été enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <translation>Les réglages de la tablette ne peuvent pas être chargés, les pages ne les montrent donc pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>Le pilote de la tablette n’a pas pris en compte le dernier changement. Est-il en cours d’exécution&#xa0;?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <translation>Re&amp;nvoyer</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <translation>Les réglages de la tablette n’ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>Fermer la fenêtre et abandonner les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <translation>&amp;Garder ouverte</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <translation>Les réglages de la tablette précédente n’ont pas été enregistrés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <translation>Croix 1 sur 4, en haut à gauche.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <translation>Croix 2 sur 4, en haut à droite.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <translation>Croix 3 sur 4, en bas à droite.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <translation>Croix 4 sur 4, en bas à gauche.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <translation>Calibrage terminé</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <translation>Échec du calibrage</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <translation>Calibrage</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Pression %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>QVKeyComboBox</name>
    <message>
        <source>No action</source>
        <translation>Aucune action</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <translation>Souris&#xa0;: bouton gauche</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <translation>Souris&#xa0;: bouton droit</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <translation>Souris&#xa0;: bouton central</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <translation>Souris&#xa0;: bouton Précédent</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <translation>Ouvrir une application…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <translation>Touches du clavier…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <translation>Passer à l’écran suivant</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <translation>Précision (maintenir)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <translation>Suspendre la tablette</translation>
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
        <translation>Choisissez jusqu’à trois touches, dans l’ordre d’appui</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Touches choisies</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Retirer la dernière touche</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page down</source>
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
        <translation>%1. Chaque touche porte le numéro de sa liste.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <translation>%1&#xa0;: %2 sur %3 points, coin supérieur gauche à %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <translation>La tablette couvre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: all displays cannot be calibrated together.</source>
        <translation>Choisissez d’abord un écran&#xa0;: tous les écrans ne peuvent pas être calibrés ensemble.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Pression %1&#xa0;%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <translation>Inclinaison %1° à droite, %2° vers le bas</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <translation>Rotation %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <translation>À %1, %2 du bureau</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <translation>Stylet numéro %1</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stylet</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <translation>Gomme, numéro de série %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <translation>Stylet, numéro de série %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <translation>Aucun stylet à portée</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <translation>Seuil %1 sur 200. Les programmes reçoivent %2&#xa0;% de la pression maximale à un quart de celle-ci, %3&#xa0;% à la moitié et %4&#xa0;% aux trois quarts.</translation>
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
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Image de la tablette</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <translation>Touche rapide 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <translation>Touche rapide 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <translation>Touche rapide 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <translation>Touche rapide 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <translation>Bande tactile &amp;gauche</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <translation>Touche rapide 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <translation>Touche rapide 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <translation>Touche rapide 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <translation>Touche rapide 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <translation>Touche rapide 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <translation>Touche rapide 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <translation>Touche rapide 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <translation>Touche rapide 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <translation>Bande tactile &amp;droite</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <translation>Touche rapide 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <translation>Touche rapide 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <translation>Touche rapide 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <translation>Touche rapide 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <translation>Dé&amp;filement&#xa0;:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Vitesse de défilement</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <translation>Bouton &amp;haut du stylet&#xa0;:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Bouton haut du stylet</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <translation>Bouton &amp;bas du stylet&#xa0;:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Bouton bas du stylet</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <translation>St&amp;ylet</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <translation>Léger&#xa0;: un toucher délicat produit déjà beaucoup d’effet. Fort&#xa0;: il faut appuyer davantage pour le même effet.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <translation>↑ Ce que reçoivent les programmes</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Courbe de pression</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <translation>Force de votre appui →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Léger</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Pression, de léger à fort</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <translation>Essayer le stylet</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>É&amp;paisseur selon la pression</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>&amp;Opacité selon la pression</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
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
        <translation>Pression, sur 65535&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>É&amp;cran</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
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
        <translation>Pivotée de 180°</translation>
    </message>
    <message>
        <source>Not rotated</source>
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
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <translation>&amp;Utiliser toute la tablette</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Toute la tablette couvre la partie choisie du bureau.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>Laisse une bande de la tablette inutilisée, pour que les cercles restent ronds.</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
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
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Revenir aux réglages enregistrés</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
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
        <translation>Tablette inconnue, produit %1</translation>
    </message>
</context>
</TS>
