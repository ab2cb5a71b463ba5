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
    <name>ApplicationsDialog</name>
    <message>
        <source>Applications of the Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Aplicaciones del perfil</translation>
    </message>
    <message>
        <source>With “Follow Applications”, the profile “%1” is used while one of these applications is in front:</source>
        <extracomment>%1 is the name of a profile; the quotation marks are those of the menu item.</extracomment>
        <translation>Con «Seguir a las aplicaciones», el perfil «%1» se usa mientras una de estas aplicaciones está en primer plano:</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <extracomment>Button: chooses another application for the list.</extracomment>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <extracomment>Button: takes the selected application out of the list.</extracomment>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <extracomment>Button: takes the list of applications.</extracomment>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>EntryName</name>
    <message>
        <source>upper pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>botón superior del lápiz</translation>
    </message>
    <message>
        <source>lower pen button</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>botón inferior del lápiz</translation>
    </message>
    <message>
        <source>key %1</source>
        <extracomment>After &quot;Undo:&quot;; %1 is the number of an express key.</extracomment>
        <translation>tecla %1</translation>
    </message>
    <message>
        <source>pressure</source>
        <extracomment>After &quot;Undo:&quot;: the pressure curve.</extracomment>
        <translation>presión</translation>
    </message>
    <message>
        <source>pen speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>velocidad del lápiz</translation>
    </message>
    <message>
        <source>left scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>banda táctil izquierda</translation>
    </message>
    <message>
        <source>right scroll strip</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>banda táctil derecha</translation>
    </message>
    <message>
        <source>scroll speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>velocidad de desplazamiento</translation>
    </message>
    <message>
        <source>display</source>
        <extracomment>After &quot;Undo:&quot;: the display that the tablet is mapped to.</extracomment>
        <translation>pantalla</translation>
    </message>
    <message>
        <source>report speed</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>velocidad de envío</translation>
    </message>
    <message>
        <source>orientation</source>
        <extracomment>After &quot;Undo:&quot;: how the tablet lies on the desk.</extracomment>
        <translation>orientación</translation>
    </message>
    <message>
        <source>area of the tablet</source>
        <extracomment>After &quot;Undo:&quot;: the part of the tablet that is in use.</extracomment>
        <translation>área de la tableta</translation>
    </message>
</context>
<context>
    <name>FollowService</name>
    <message>
        <source>Your session has no bus that answers.</source>
        <translation>Su sesión no tiene ningún bus que responda.</translation>
    </message>
    <message>
        <source>Your session has no systemd user manager, which would start the service.</source>
        <translation>Su sesión no tiene un gestor de usuario de systemd, que iniciaría el servicio.</translation>
    </message>
    <message>
        <source>The service %1 is not installed.</source>
        <extracomment>%1 is the name of a service of systemd.</extracomment>
        <translation>El servicio %1 no está instalado.</translation>
    </message>
    <message>
        <source>The service %1 cannot be turned on: it is %2.</source>
        <extracomment>%1 is the name of a service of systemd, %2 one of systemd&apos;s words, such as &quot;masked&quot;.</extracomment>
        <translation>No se puede activar el servicio %1: está %2.</translation>
    </message>
    <message>
        <source>“Follow Applications” was not changed: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>«Seguir a las aplicaciones» no se ha cambiado: %1</translation>
    </message>
    <message>
        <source>Profiles do not follow applications now: the service does not run. What “systemctl --user status qvtblt-follow” prints may say why.</source>
        <extracomment>The words in quotation marks are a command.</extracomment>
        <translation>Los perfiles no siguen ahora a las aplicaciones: el servicio no está en ejecución. Lo que muestra «systemctl --user status qvtblt-follow» puede indicar el motivo.</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Importar un perfil</translation>
    </message>
    <message>
        <source>What is in the profile</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Lo que contiene el perfil</translation>
    </message>
    <message>
        <source>It changes nothing.</source>
        <translation>No cambia nada.</translation>
    </message>
    <message>
        <source>It changes:</source>
        <translation>Cambia:</translation>
    </message>
    <message>
        <source>Left out, because it does not fit your tablet:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Omite, porque no es para su tableta:</translation>
    </message>
    <message>
        <source>It is for these applications:</source>
        <extracomment>Heading of a list.</extracomment>
        <translation>Es para estas aplicaciones:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <extracomment>Button: keeps what is in the file as a profile.</extracomment>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>The profile will be in the list as “%1”. It is not used yet.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>El perfil estará en la lista como «%1». Aún no se usa.</translation>
    </message>
    <message>
        <source>Some of its buttons would start an application. Allow only what you know and trust; the others do nothing.</source>
        <translation>Algunos de sus botones iniciarían una aplicación. Permita solo lo que conozca y en lo que confíe; los demás no hacen nada.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Let this button start it</source>
        <extracomment>Check box: a button of the tablet may start the application whose path is above.</extracomment>
        <translation>Permitir que este botón la inicie</translation>
    </message>
    <message>
        <source>%1: let this button start %2</source>
        <extracomment>Read by screen readers; %1 is a button of the tablet, %2 the path of an application.</extracomment>
        <translation>%1: permitir que este botón inicie %2</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>Applications</source>
        <extracomment>Kind of files in the dialog for choosing an application.</extracomment>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Esto no es una aplicación: elija una entrada de escritorio, una AppImage o un paquete de aplicación.</translation>
    </message>
    <message>
        <source>Choose the file of an application</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Elegir el archivo de una aplicación</translation>
    </message>
</context>
<context>
    <name>PaneEdits</name>
    <message>
        <source>Edit</source>
        <extracomment>Button beside the tabs, which opens a menu with Undo and Redo.</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <extracomment>Menu item; %1 is what was edited, such as &quot;key 3&quot;.</extracomment>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Volver a los ajustes guardados</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open.</extracomment>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Guardar los ajustes actuales</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Los ajustes no se han guardado: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>No se pueden cargar los ajustes de la tableta, por lo que las páginas no los muestran: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>El controlador de la tableta no ha aceptado el último cambio. ¿Está en marcha?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <extracomment>Button: saves or loads the settings again.</extracomment>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <extracomment>Button: sends the settings to the driver again.</extracomment>
        <translation>&amp;Enviar de nuevo</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>No se pudieron guardar los ajustes de la tableta: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>¿Cerrar la ventana y descartar los cambios?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <extracomment>Button: the window stays open, with its unsaved changes.</extracomment>
        <translation>&amp;Mantener abierta</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <extracomment>%1 is the reason, in English.</extracomment>
        <translation>Los ajustes de la tableta anterior no se han guardado: %1</translation>
    </message>
    <message>
        <source>Find the &amp;Problem…</source>
        <extracomment>Button where no tablet is found: opens the self-check.</extracomment>
        <translation>&amp;Buscar el problema…</translation>
    </message>
    <message>
        <source>Check the tablet, its driver and the panel</source>
        <translation>Comprobar la tableta, su controlador y el panel</translation>
    </message>
    <message>
        <source>The monitor that you chose for the tablet is now display %1.</source>
        <extracomment>%1 is a number in the list of displays.</extracomment>
        <translation>La pantalla que eligió para la tableta es ahora la número %1.</translation>
    </message>
    <message>
        <source>Choose Displa&amp;y %1</source>
        <extracomment>Button: maps the tablet to the display with the number %1.</extracomment>
        <translation>&amp;Seleccionar la pantalla %1</translation>
    </message>
</context>
<context>
    <name>ProfileBar</name>
    <message>
        <source>None</source>
        <extracomment>Item of the list of profiles, while the settings are those of none.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <extracomment>Label of the list of profiles; a profile is a set of all settings of the tablet.</extracomment>
        <translation>Per&amp;fil:</translation>
    </message>
    <message>
        <source>Each profile has all settings of the tablet for one kind of work.</source>
        <extracomment>Describes the list of profiles.</extracomment>
        <translation>Cada perfil tiene todos los ajustes de la tableta para un tipo de trabajo.</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <extracomment>Button: saves the current settings as a profile, and asks for its name.</extracomment>
        <translation>Guardar co&amp;mo…</translation>
    </message>
    <message>
        <source>Save the current settings as a profile</source>
        <translation>Guardar los ajustes actuales como perfil</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>Button beside the list of profiles: opens a menu with what else can be done with them.</extracomment>
        <translation>Más</translation>
    </message>
    <message>
        <source>Manage the profiles</source>
        <translation>Gestionar los perfiles</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <extracomment>Menu item: gives the current profile another name.</extracomment>
        <translation>Cambiar &amp;nombre…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <extracomment>Menu item: makes a copy of the current profile.</extracomment>
        <translation>&amp;Duplicar…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <extracomment>Menu item: deletes the current profile.</extracomment>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Applications…</source>
        <extracomment>Menu item: which applications the current profile is for.</extracomment>
        <translation>&amp;Aplicaciones…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <extracomment>Menu item: takes a profile from a file.</extracomment>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <extracomment>Menu item: writes the current profile into a file.</extracomment>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>&amp;Follow Applications</source>
        <extracomment>Menu item with a check mark: profiles change with the application in front.</extracomment>
        <translation>&amp;Seguir a las aplicaciones</translation>
    </message>
    <message>
        <source>Use a profile while one of its applications is in front</source>
        <extracomment>Describes the menu item &quot;Follow Applications&quot;.</extracomment>
        <translation>Usar un perfil mientras una de sus aplicaciones está en primer plano</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Guardar el perfil</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>Button: saves the settings under the name.</extracomment>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace it with the current settings?</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>Ya hay un perfil «%1». ¿Sustituirlo por los ajustes actuales?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>Button: a profile that is there is replaced.</extracomment>
        <translation>&amp;Sustituir</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Cambiar el nombre del perfil</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <extracomment>Button: gives the profile the name.</extracomment>
        <translation>C&amp;ambiar</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Duplicar el perfil</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <extracomment>Button: makes a copy of the profile with the name.</extracomment>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Delete the profile “%1”? The tablet keeps its settings.</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>¿Eliminar el perfil «%1»? La tableta conserva sus ajustes.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: deletes a profile.</extracomment>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Choose a Profile to Import</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Elegir un perfil para importar</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>Kind of files in the dialog for choosing a profile.</extracomment>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Export Profile</source>
        <extracomment>Title of the dialog.</extracomment>
        <translation>Exportar el perfil</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button of a question: does nothing.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Follow Applications (not running)</source>
        <extracomment>The same menu item, where the service that does it is on, but has ended.</extracomment>
        <translation>&amp;Seguir a las aplicaciones (no en ejecución)</translation>
    </message>
</context>
<context>
    <name>ProfileNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <extracomment>Label of the field for a profile&apos;s name.</extracomment>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and changes nothing.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Cruz 1 de 4, arriba a la izquierda.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Cruz 2 de 4, arriba a la derecha.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Cruz 3 de 4, abajo a la derecha.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <extracomment>Read by screen readers: the cross to touch next, of four in the corners of the display.</extracomment>
        <translation>Cruz 4 de 4, abajo a la izquierda.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <extracomment>Heading of the question whether to keep the calibration.</extracomment>
        <translation>Calibración terminada</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <extracomment>Heading of the message that the crosses were touched in a wrong order.</extracomment>
        <translation>Calibración fallida</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <extracomment>Title of the window with the crosses.</extracomment>
        <translation>Calibración</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Read by screen readers for the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Presión %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Key Combination</source>
        <translation>Combinación de teclas</translation>
    </message>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <extracomment>Shown in the empty field of chosen keys; must fit into it</extracomment>
        <translation>Elija hasta tres teclas, en el orden en que se pulsan</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Teclas elegidas</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <extracomment>Button: removes the key chosen last</extracomment>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Quitar la última tecla</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>Name of the key Esc</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Minus</source>
        <extracomment>Name of the key -</extracomment>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Plus</source>
        <extracomment>Name of the key +</extracomment>
        <translation>Más</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>Name of the key Bksp</extracomment>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Control</source>
        <extracomment>Name of the key Ctrl</extracomment>
        <translation>Control</translation>
    </message>
    <message>
        <source>Command</source>
        <extracomment>Name of the key Cmd, the Windows or Super key</extracomment>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Page up</source>
        <extracomment>Name of the key PgUp</extracomment>
        <translation>Retroceder página</translation>
    </message>
    <message>
        <source>Page down</source>
        <extracomment>Name of the key PgDn</extracomment>
        <translation>Avanzar página</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>No hay ninguna imagen de este modelo.</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <extracomment>Read by screen readers for the picture of the tablet; %1 is the model&apos;s name.</extracomment>
        <translation>%1. Cada tecla lleva el número de su lista.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, %2 by %3 its size, %4, %5 its position.</extracomment>
        <translation>%1: %2 por %3 puntos, con la esquina superior izquierda en %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <extracomment>Read by screen readers; %1 is an item of the display list, such as &quot;Display #1&quot;.</extracomment>
        <translation>La tableta está asignada a: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: only one display can be calibrated at a time.</source>
        <translation>Elija primero una pantalla: solo se puede calibrar una a la vez.</translation>
    </message>
</context>
<context>
    <name>QVPaneProfiles</name>
    <message>
        <source>No tablet is attached.</source>
        <translation>No hay ninguna tableta conectada.</translation>
    </message>
    <message>
        <source>The tablet is being calibrated. Finish that first.</source>
        <translation>La tableta se está calibrando. Termine primero la calibración.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <extracomment>Part of the line below the drawing pad; %1 is 0 to 100.</extracomment>
        <translation>Presión %1&#xa0;%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <extracomment>%1 and %2 are degrees, negative for left and up.</extracomment>
        <translation>Inclinación %1° a la derecha, %2° hacia abajo</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <extracomment>Rotation of the pen about its own axis; %1 is in degrees.</extracomment>
        <translation>Rotación %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <extracomment>Position of the pen; %1 is x, %2 is y.</extracomment>
        <translation>En %1, %2 del escritorio</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <extracomment>%1 is the number of the input device.</extracomment>
        <translation>Lápiz número %1</translation>
    </message>
</context>
<context>
    <name>QVPressFit</name>
    <message>
        <source>Programs receive %1 % of the full pressure at a quarter of it, %2 % at half and %3 % at three quarters.</source>
        <extracomment>Read by screen readers for the new pressure curve; %1 to %3 are percentages.</extracomment>
        <translation>Los programas reciben el %1 % de la presión máxima a un cuarto de ella, el %2 % a la mitad y el %3 % a tres cuartos.</translation>
    </message>
    <message>
        <source>Fit the pressure to your hand</source>
        <extracomment>Title of the dialog that fits the pressure curve to the user&apos;s hand.</extracomment>
        <translation>Ajustar la presión a su mano</translation>
    </message>
    <message>
        <source>Pad to press on</source>
        <translation>Superficie para presionar</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Curva de presión</translation>
    </message>
    <message>
        <source>Start &amp;Again</source>
        <extracomment>Button: forgets both presses, and asks for the first one again.</extracomment>
        <translation>&amp;Empezar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: closes the dialog, and leaves the pressure curve as it is.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <extracomment>Button: takes the new pressure curve.</extracomment>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>Press on the pad as lightly as you ever do, and lift the pen.</source>
        <translation>Presione la superficie tan suavemente como lo haga alguna vez y levante el lápiz.</translation>
    </message>
    <message>
        <source>Now press as hard as you ever do, and lift the pen.</source>
        <translation>Ahora presione tan fuerte como lo haga alguna vez y levante el lápiz.</translation>
    </message>
    <message>
        <source>That was not harder than the first time. Press as hard as you ever do, and lift the pen.</source>
        <translation>No ha sido más fuerte que la primera vez. Presione tan fuerte como lo haga alguna vez y levante el lápiz.</translation>
    </message>
    <message>
        <source>The curve fits your hand as it is.</source>
        <translation>La curva ya se ajusta a su mano.</translation>
    </message>
    <message>
        <source>The thick line is the curve that fits your hand: the middle between your lightest and your hardest touch has half of the full effect.</source>
        <translation>La línea gruesa es la curva que se ajusta a su mano: el punto medio entre su toque más suave y el más fuerte tiene la mitad del efecto.</translation>
    </message>
    <message>
        <source>Press here with the pen.</source>
        <translation>Presione aquí con el lápiz.</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Goma</translation>
    </message>
    <message>
        <source>Pen</source>
        <extracomment>The end of the pen that is near the tablet; a label below the drawing pad.</extracomment>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Goma, número de serie %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <extracomment>A label below the drawing pad.</extracomment>
        <translation>Lápiz, número de serie %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <extracomment>A label below the drawing pad: no pen is near enough for the tablet to detect it.</extracomment>
        <translation>Ningún lápiz al alcance</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <extracomment>Read by screen readers for the pressure curve; %2 to %4 are percentages.</extracomment>
        <translation>Umbral %1 de 200. Los programas reciben el %2&#xa0;% de la presión máxima a un cuarto de ella, el %3&#xa0;% a la mitad y el %4&#xa0;% a tres cuartos.</translation>
    </message>
</context>
<context>
    <name>QVProfile</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un perfil necesita un nombre.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>El nombre tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be shown.</source>
        <translation>El nombre contiene caracteres que no se pueden mostrar.</translation>
    </message>
    <message>
        <source>The file is not a profile.</source>
        <translation>No es un perfil.</translation>
    </message>
    <message>
        <source>The file is a profile of an unsupported version.</source>
        <translation>Es un perfil de otra versión.</translation>
    </message>
</context>
<context>
    <name>QVProfileFolder</name>
    <message>
        <source>There is no profile “%1”.</source>
        <translation>No hay ningún perfil «%1».</translation>
    </message>
    <message>
        <source>There is already a profile “%1”.</source>
        <translation>Ya hay un perfil «%1».</translation>
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
        <translation>Antes de %1</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>No hay perfiles.</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>The name of a profile with the settings of a user who had no profiles for them.</extracomment>
        <translation>Predeterminado</translation>
    </message>
</context>
<context>
    <name>QVSlotPath</name>
    <message>
        <source>The path contains characters that the tablet&apos;s settings cannot hold.</source>
        <translation>La ruta contiene caracteres que los ajustes de la tableta no admiten.</translation>
    </message>
    <message>
        <source>The path is longer than %1 characters.</source>
        <extracomment>%1 is a number of characters.</extracomment>
        <translation>La ruta tiene más de %1 caracteres.</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Tableta Quorvia</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <extracomment>Page with the actions of the keys; tab title</extracomment>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Imagen de la tableta</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>Banda táctil &amp;izquierda</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <extracomment>Check box; must fit into the narrow column of the key page</extracomment>
        <translation>Banda táctil &amp;derecha</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <extracomment>Read by screen readers; the express keys are buttons on the tablet</extracomment>
        <translation>Tecla rápida 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <extracomment>Label of a slider</extracomment>
        <translation>Despla&amp;zamiento:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Velocidad de desplazamiento</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <extracomment>Label of a list: the upper button on the barrel of the pen</extracomment>
        <translation>Lápiz, botón &amp;superior:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Botón superior del lápiz</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <extracomment>Label of a list: the lower button on the barrel of the pen</extracomment>
        <translation>Lápiz, botón i&amp;nferior:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Botón inferior del lápiz</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <extracomment>Page with pressure curve and drawing pad; tab title</extracomment>
        <translation>&amp;Lápiz</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>Heading of the pressure curve and its slider</extracomment>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <extracomment>Use the same words as at the ends of the slider</extracomment>
        <translation>Suave: un toque ligero ya produce mucho efecto. Fuerte: hay que apretar más para el mismo efecto.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <extracomment>Vertical axis of the pressure curve; must fit into its height</extracomment>
        <translation>↑ Lo que reciben los programas</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Curva de presión</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <extracomment>Horizontal axis of the pressure curve</extracomment>
        <translation>Fuerza con que aprieta →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <extracomment>Left end of the pressure slider: a light touch is enough</extracomment>
        <translation>&amp;Suave</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Presión, de suave a fuerte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <extracomment>Right end of the pressure slider: you have to press hard</extracomment>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <extracomment>Heading of the drawing pad</extracomment>
        <translation>Probar el lápiz</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>Gr&amp;osor según la presión</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>Op&amp;acidad según la presión</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <extracomment>Button: clears the drawing pad</extracomment>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>Borrar la zona de dibujo</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>Zona de dibujo</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>Dibuje aquí con el lápiz o el ratón.</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <extracomment>Label of the current pressure, a number from 0 to 65535</extracomment>
        <translation>Presión, de 65535:</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <extracomment>Page that maps the tablet to a display; tab title</extracomment>
        <translation>&amp;Pantalla</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <extracomment>Label of the list of displays</extracomment>
        <translation>&amp;Asignar la tableta a:</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>Asignar la tableta a</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>La parte del escritorio que alcanza el lápiz.</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <extracomment>Label of a list: how the tablet lies on the desk</extracomment>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>Gire la tableta para que sus teclas queden bajo la otra mano.</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>Girada 180°</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <extracomment>How the tablet lies on the desk</extracomment>
        <translation>Sin girar</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>&amp;Velocidad de envío:</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>Velocidad de envío</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>«Rápida» sigue la mano más de cerca. El ajuste se envía también a la propia tableta por USB.</translation>
    </message>
    <message>
        <source>Fast</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Normal</source>
        <extracomment>Report speed of the tablet</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <extracomment>Button; its corners become those of the display</extracomment>
        <translation>&amp;Usar toda la tableta</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Toda la tableta abarca la parte elegida del escritorio.</translation>
    </message>
    <message>
        <source>Keep propor&amp;tions</source>
        <extracomment>Button: the tablet gets the proportions of the display, so that circles stay round</extracomment>
        <translation>Ma&amp;ntener las proporciones</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>Deja sin usar una franja de la tableta, para que los círculos sigan siendo redondos.</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <extracomment>Button: opens the calibration</extracomment>
        <translation>Cali&amp;brar…</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>Toque cuatro cruces en la pantalla elegida para que el puntero coincida con el lápiz.</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>Imagen de las pantallas y la tableta</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: discards the changes since the last save; the window stays open</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Volver a los ajustes guardados</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <extracomment>Button: saves the settings; the window stays open</extracomment>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Guardar los ajustes actuales</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>¿Está conectada la tableta? ¿Está en marcha su controlador? Los ajustes aparecerán aquí en cuanto ambos estén disponibles.</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <extracomment>In place of a model&apos;s name; %1 is the USB product ID, four hexadecimal digits.</extracomment>
        <translation>Tableta desconocida, producto %1</translation>
    </message>
    <message>
        <source>%1 is pressed</source>
        <extracomment>Read by screen readers; %1 is the name of a key or of a button of the pen.</extracomment>
        <translation>%1: pulsado</translation>
    </message>
    <message>
        <source>&amp;Identify displays</source>
        <extracomment>Button: shows on each display which one it is</extracomment>
        <translation>&amp;Identificar pantallas</translation>
    </message>
    <message>
        <source>Shows the number of each display on the display itself, for three seconds.</source>
        <translation>Muestra durante tres segundos el número de cada pantalla en la propia pantalla.</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <extracomment>On a display; %1 is its maker and model, %2 and %3 its width and height.</extracomment>
        <translation>%1, %2 × %3 píxeles</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Read by screen readers; %1 is a display&apos;s name, such as &quot;Display #1&quot;, %2 its maker and size.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>several settings</source>
        <extracomment>After &quot;Undo:&quot;.</extracomment>
        <translation>varios ajustes</translation>
    </message>
    <message>
        <source>&amp;Fit to My Hand…</source>
        <extracomment>Button: opens a dialog that sets the pressure by two touches</extracomment>
        <translation>A&amp;justar a mi mano…</translation>
    </message>
    <message>
        <source>Press once lightly and once hard to find the curve that fits.</source>
        <translation>Presione una vez suavemente y otra con fuerza para encontrar la curva adecuada.</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>Log out and in again.</source>
        <translation>Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Restart the driver, or log out and in again.</source>
        <translation>Reinicie el controlador, o cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Plug the tablet in again. If that does not help, log out and in again.</source>
        <translation>Vuelva a conectar la tableta. Si no basta, cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>End that program, and plug the tablet in again.</source>
        <translation>Cierre ese programa y vuelva a conectar la tableta.</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>No hay bus de sesión.</translation>
    </message>
    <message>
        <source>Log out and in again. Without a desktop, use dbus-run-session.</source>
        <translation>Cierre la sesión y vuelva a iniciarla. Sin escritorio, use dbus-run-session.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>El bus de sesión no responde.</translation>
    </message>
    <message>
        <source>The session bus answers.</source>
        <translation>El bus de sesión responde.</translation>
    </message>
    <message>
        <source>The driver is running.</source>
        <translation>El controlador está en marcha.</translation>
    </message>
    <message>
        <source>The driver was not running and has been started.</source>
        <translation>El controlador no estaba en marcha y se ha iniciado.</translation>
    </message>
    <message>
        <source>No driver is installed.</source>
        <translation>No hay ningún controlador instalado.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver.</source>
        <translation>Instale el paquete tdsg-driver.</translation>
    </message>
    <message>
        <source>The driver cannot be started.</source>
        <translation>No se puede iniciar el controlador.</translation>
    </message>
    <message>
        <source>Log out and in again. The reason is in the journal of the session.</source>
        <translation>Cierre la sesión y vuelva a iniciarla. El motivo está en el registro de la sesión.</translation>
    </message>
    <message>
        <source>The driver does not answer in time.</source>
        <translation>El controlador no responde a tiempo.</translation>
    </message>
    <message>
        <source>The driver answers in time.</source>
        <translation>El controlador responde a tiempo.</translation>
    </message>
    <message>
        <source>The driver has a tablet of its own, such as a simulated one.</source>
        <translation>El controlador tiene una tableta propia, por ejemplo una simulada.</translation>
    </message>
    <message>
        <source>No tablet is connected.</source>
        <translation>No hay ninguna tableta conectada.</translation>
    </message>
    <message>
        <source>Connect the tablet, or switch it on. If it is connected, try another socket or cable.</source>
        <translation>Conecte la tableta o enciéndala. Si está conectada, pruebe con otro puerto u otro cable.</translation>
    </message>
    <message>
        <source>A tablet is connected, but the driver does not use it: %1.</source>
        <translation>Hay una tableta conectada, pero el controlador no la usa: %1.</translation>
    </message>
    <message>
        <source>Do what the following lines say. Otherwise, plug the tablet in again, or restart the driver.</source>
        <translation>Haga lo que dicen las líneas siguientes. Si no dicen nada, vuelva a conectar la tableta o reinicie el controlador.</translation>
    </message>
    <message>
        <source>A tablet is connected: %1.</source>
        <translation>Hay una tableta conectada: %1.</translation>
    </message>
    <message>
        <source>Install the package tdsg-driver-access, and plug the tablet in again.</source>
        <translation>Instale el paquete tdsg-driver-access y vuelva a conectar la tableta.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet.</source>
        <translation>No tiene permiso para abrir la tableta.</translation>
    </message>
    <message>
        <source>You may not open /dev/uinput, which the driver needs.</source>
        <translation>No tiene permiso para abrir /dev/uinput, que el controlador necesita.</translation>
    </message>
    <message>
        <source>You do not have permission to open the tablet over USB, so its speed cannot be set.</source>
        <translation>No tiene permiso para abrir la tableta por USB, así que no se puede ajustar su velocidad.</translation>
    </message>
    <message>
        <source>Install the package qvtblt, and plug the tablet in again.</source>
        <translation>Instale el paquete qvtblt y vuelva a conectar la tableta.</translation>
    </message>
    <message>
        <source>You may open the tablet.</source>
        <translation>Tiene permiso para abrir la tableta.</translation>
    </message>
    <message>
        <source>Another program has the tablet open: %1.</source>
        <translation>Otro programa tiene abierta la tableta: %1.</translation>
    </message>
    <message>
        <source>A program has taken the tablet from the system&apos;s drivers.</source>
        <translation>Un programa ha quitado la tableta a los controladores del sistema.</translation>
    </message>
    <message>
        <source>None of your programs has the tablet open.</source>
        <translation>Ninguno de sus programas tiene abierta la tableta.</translation>
    </message>
    <message>
        <source>There is no settings file.</source>
        <translation>No hay archivo de ajustes.</translation>
    </message>
    <message>
        <source>Restart the driver, which makes the file.</source>
        <translation>Reinicie el controlador, que crea el archivo.</translation>
    </message>
    <message>
        <source>The settings file cannot be used.</source>
        <translation>El archivo de ajustes no se puede usar.</translation>
    </message>
    <message>
        <source>Move the file away and restart the driver, which makes a new one.</source>
        <translation>Mueva el archivo a otro lugar y reinicie el controlador, que crea uno nuevo.</translation>
    </message>
    <message>
        <source>The settings file cannot be written.</source>
        <translation>No se puede escribir en el archivo de ajustes.</translation>
    </message>
    <message>
        <source>Give yourself write permission for the file and its folder.</source>
        <translation>Dese permiso para escribir en el archivo y en su carpeta.</translation>
    </message>
    <message>
        <source>The disk with the settings file has no room left.</source>
        <translation>No queda espacio en el disco del archivo de ajustes.</translation>
    </message>
    <message>
        <source>Delete something from this disk.</source>
        <translation>Borre algo de ese disco.</translation>
    </message>
    <message>
        <source>The settings file can be read and written.</source>
        <translation>El archivo de ajustes se puede leer y escribir.</translation>
    </message>
    <message>
        <source>No settings have been sent yet.</source>
        <translation>Aún no se ha enviado ningún ajuste.</translation>
    </message>
    <message>
        <source>The driver has not accepted the last change.</source>
        <translation>El controlador no ha aceptado el último cambio.</translation>
    </message>
    <message>
        <source>The driver has accepted the settings.</source>
        <translation>El controlador ha aceptado los ajustes.</translation>
    </message>
    <message>
        <source>The panel is not installed.</source>
        <translation>El panel no está instalado.</translation>
    </message>
    <message>
        <source>Install the package qvtblt.</source>
        <translation>Instale el paquete qvtblt.</translation>
    </message>
    <message>
        <source>The panel does not fit the version of Qt: it was built for %1.</source>
        <translation>El panel no corresponde a la versión de Qt: se compiló para la %1.</translation>
    </message>
    <message>
        <source>Install the panel of the same release as the desktop.</source>
        <translation>Instale el panel de la misma versión que el escritorio.</translation>
    </message>
    <message>
        <source>The panel matches the version of Qt, %1.</source>
        <translation>El panel corresponde a la versión de Qt, la %1.</translation>
    </message>
    <message>
        <source>There is no desktop.</source>
        <translation>No hay escritorio.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen if the desktop&apos;s own settings map the pen to all displays.</source>
        <translation>La pantalla del lápiz se puede elegir si los ajustes del propio escritorio asignan el lápiz a todas las pantallas.</translation>
    </message>
    <message>
        <source>The pen&apos;s display can be chosen.</source>
        <translation>Se puede elegir la pantalla del lápiz.</translation>
    </message>
    <message>
        <source>The driver was not checked.</source>
        <translation>No se ha comprobado el controlador.</translation>
    </message>
    <message>
        <source>The driver was not asked.</source>
        <translation>No se ha preguntado al controlador.</translation>
    </message>
    <message>
        <source>Access to the tablet was not checked.</source>
        <translation>No se ha comprobado el acceso a la tableta.</translation>
    </message>
    <message>
        <source>Other programs were not checked.</source>
        <translation>No se han comprobado otros programas.</translation>
    </message>
    <message>
        <source>The settings file was not checked.</source>
        <translation>No se ha comprobado el archivo de ajustes.</translation>
    </message>
    <message>
        <source>Sending settings was not checked.</source>
        <translation>No se ha comprobado el envío de ajustes.</translation>
    </message>
    <message>
        <source>The choice of the pen&apos;s display was not checked.</source>
        <translation>No se ha comprobado la elección de la pantalla del lápiz.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>Self-Check</source>
        <extracomment>Title of the window that says what is wrong with tablet, driver and panel.</extracomment>
        <translation>Autocomprobación</translation>
    </message>
    <message>
        <source>What was checked</source>
        <extracomment>Name of the list, for screen readers.</extracomment>
        <translation>Lo que se ha comprobado</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <extracomment>Button of the self-check.</extracomment>
        <translation>Comprobar de &amp;nuevo</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <extracomment>Button of the self-check: copies what was found to the clipboard.</extracomment>
        <translation>Copiar el &amp;informe</translation>
    </message>
    <message>
        <source>For the person who helps you. It contains no personal data.</source>
        <translation>Para quien le ayude. No contiene nada personal.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>No se ha encontrado ningún problema.</translation>
    </message>
    <message>
        <source>Something is wrong. Begin with the first problem:</source>
        <translation>Algo no va bien. Empiece por el primer problema:</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Sin comprobar</translation>
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
        <translation>Elegir una aplicación</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Shown in the empty search field above the list of applications.</extracomment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search for an application</source>
        <translation>Buscar una aplicación</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>No application matches the search.</source>
        <translation>Ninguna aplicación coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <extracomment>Button: choose a file that is not in the list of applications.</extracomment>
        <translation>&amp;Otro archivo…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>Button: leaves the dialog without choosing an application.</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>C&amp;hoose</source>
        <extracomment>Button: takes the selected application.</extracomment>
        <translation>&amp;Elegir</translation>
    </message>
</context>
</TS>
