<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Quick settings</source>
        <translation>Ajustes rápidos</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Pelo</translation>
    </message>
    <message>
        <source>Sets the key for this colour of hair. Auto suits most portraits.</source>
        <translation>Ajusta el croma a este color de pelo. Auto sirve para la mayoría de los retratos.</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Castaño</translation>
    </message>
    <message>
        <source>Blond</source>
        <translation>Rubio</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>How much of the background shows through veils, glasses and fine hair.</source>
        <translation>Cuánto fondo se ve a través de velos, gafas y pelo fino.</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Screen shadows</source>
        <translation>Sombras</translation>
    </message>
    <message>
        <source>How much shadow lies on the screen behind the subject.</source>
        <translation>Cuánta sombra hay en la pantalla detrás del sujeto.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Some</source>
        <translation>Algo</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscura</translation>
    </message>
    <message>
        <source>Remove green of the background</source>
        <translation>Quitar el verde del fondo</translation>
    </message>
    <message>
        <source>Is kept with the picture; it changes no slider.</source>
        <translation>Se guarda con la imagen; no cambia ningún control.</translation>
    </message>
    <message>
        <source>Remove a green tint</source>
        <translation>Quitar un tono verde</translation>
    </message>
    <message>
        <source>Takes more of the screen&apos;s light off skin and hair.</source>
        <translation>Quita más luz de la pantalla de la piel y el pelo.</translation>
    </message>
    <message>
        <source>Bring green back</source>
        <translation>Recuperar verde</translation>
    </message>
    <message>
        <source>Keeps some of the green of clothes.</source>
        <translation>Conserva algo del verde de la ropa.</translation>
    </message>
    <message>
        <source>Bring more green back</source>
        <translation>Recuperar más verde</translation>
    </message>
    <message>
        <source>Keeps most of the green of clothes.</source>
        <translation>Conserva casi todo el verde de la ropa.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Croma</translation>
    </message>
    <message>
        <source>Remove green</source>
        <translation>Quitar verde</translation>
    </message>
    <message>
        <source>How much green goes from hair. To the right more goes.</source>
        <translation>Cuánto verde se quita del pelo. A la derecha se quita más.</translation>
    </message>
    <message>
        <source>Dark areas</source>
        <translation>Zonas oscuras</translation>
    </message>
    <message>
        <source>Brings dark hair and clothes back. To the right more comes back; to the left shadows on the screen go.</source>
        <translation>Recupera pelo y ropa oscuros. A la derecha vuelve más; a la izquierda se van las sombras de la pantalla.</translation>
    </message>
    <message>
        <source>White areas</source>
        <translation>Zonas blancas</translation>
    </message>
    <message>
        <source>Keeps white and light clothes clean. To the right it acts on more of the light tones.</source>
        <translation>Mantiene limpia la ropa blanca y clara. A la derecha actúa sobre más tonos claros.</translation>
    </message>
    <message>
        <source>Green tint</source>
        <translation>Tono verde</translation>
    </message>
    <message>
        <source>The screen&apos;s green light on the subject. To the left more of it is taken off, to the right more is kept.</source>
        <translation>La luz verde de la pantalla sobre el sujeto. A la izquierda se quita más, a la derecha se conserva más.</translation>
    </message>
    <message>
        <source>How solid veils, glasses and edges are. To the right they become more solid.</source>
        <translation>Lo sólidos que son velos, gafas y bordes. A la derecha se vuelven más sólidos.</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance de blancos</translation>
    </message>
    <message>
        <source>Shifts the subject between green and magenta where the screen shines through.</source>
        <translation>Desplaza el sujeto entre verde y magenta donde se trasluce la pantalla.</translation>
    </message>
    <message>
        <source>Screen brightness</source>
        <translation>Brillo de la pantalla</translation>
    </message>
    <message>
        <source>Takes the screen for brighter or darker than it was measured.</source>
        <translation>Toma la pantalla por más clara o más oscura de lo medido.</translation>
    </message>
    <message>
        <source>Show the portrait without a key</source>
        <translation>Mostrar el retrato sin croma</translation>
    </message>
    <message>
        <source>The portrait as it was taken, over the background.</source>
        <translation>El retrato tal como se tomó, sobre el fondo.</translation>
    </message>
    <message>
        <source>Keep bright greys see-through</source>
        <translation>Dejar translúcidos los grises claros</translation>
    </message>
    <message>
        <source>Bright, nearly grey parts such as glass are not taken for solid.</source>
        <translation>Las partes claras y casi grises, como el vidrio, no se toman por sólidas.</translation>
    </message>
    <message>
        <source>Show what the key takes</source>
        <translation>Mostrar lo que se quita</translation>
    </message>
    <message>
        <source>Marks the parts of the picture that the key removes.</source>
        <translation>Marca las partes de la imagen que quita el croma.</translation>
    </message>
    <message>
        <source>Screen and edges</source>
        <translation>Pantalla y bordes</translation>
    </message>
    <message>
        <source>Smooth edges</source>
        <translation>Suavizar bordes</translation>
    </message>
    <message>
        <source>Softens the outline in the full picture. 0 leaves it as the key made it.</source>
        <translation>Suaviza el contorno en la imagen completa. 0 lo deja como lo hizo el croma.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mezcla</translation>
    </message>
    <message>
        <source>Best is slower and cleaner in fine hair.</source>
        <translation>Óptima es más lenta y más limpia en el pelo fino.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Óptima</translation>
    </message>
    <message>
        <source>Blue screen</source>
        <translation>Pantalla azul</translation>
    </message>
    <message>
        <source>The screen is blue and not green.</source>
        <translation>La pantalla es azul y no verde.</translation>
    </message>
    <message>
        <source>Transparent picture</source>
        <translation>Imagen transparente</translation>
    </message>
    <message>
        <source>Saves the subject alone, without a background. It wants PNG or TIFF.</source>
        <translation>Guarda solo el sujeto, sin fondo. Requiere PNG o TIFF.</translation>
    </message>
    <message>
        <source>Hair and fine detail</source>
        <translation>Pelo y detalle fino</translation>
    </message>
    <message>
        <source>Look for hair</source>
        <translation>Buscar pelo</translation>
    </message>
    <message>
        <source>Finds the colour of the hair in the picture and keys it with care.</source>
        <translation>Encuentra el color del pelo en la imagen y lo recorta con cuidado.</translation>
    </message>
    <message>
        <source>Remove shadows on the screen</source>
        <translation>Quitar las sombras de la pantalla</translation>
    </message>
    <message>
        <source>Clears green shadows that the subject throws on the screen.</source>
        <translation>Elimina las sombras verdes que el sujeto proyecta en la pantalla.</translation>
    </message>
    <message>
        <source>No green screen</source>
        <translation>Sin pantalla verde</translation>
    </message>
    <message>
        <source>The portrait has no screen; nothing is keyed.</source>
        <translation>El retrato no tiene pantalla; no se recorta nada.</translation>
    </message>
    <message>
        <source>Refined key</source>
        <translation>Croma refinado</translation>
    </message>
    <message>
        <source>A second look at hair and edges. Takes a little longer.</source>
        <translation>Una segunda mirada al pelo y los bordes. Tarda un poco más.</translation>
    </message>
    <message>
        <source>Soft edges</source>
        <translation>Bordes suaves</translation>
    </message>
    <message>
        <source>Edges of the refined key. To the left they are hard, to the right soft.</source>
        <translation>Bordes del croma refinado. A la izquierda duros, a la derecha suaves.</translation>
    </message>
    <message>
        <source>Fine hair</source>
        <translation>Pelo fino</translation>
    </message>
    <message>
        <source>Fine detail of the refined key. To the right more single hairs come back.</source>
        <translation>Detalle fino del croma refinado. A la derecha vuelven más cabellos sueltos.</translation>
    </message>
    <message>
        <source>Green of its own</source>
        <translation>Verde propio</translation>
    </message>
    <message>
        <source>Green that belongs to the subject. To the right the refined key keeps more.</source>
        <translation>Verde que pertenece al sujeto. A la derecha el croma refinado conserva más.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Makes the layer darker to the left, brighter to the right.</source>
        <translation>Oscurece la capa a la izquierda y la aclara a la derecha.</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>The distance of light and dark. 50 leaves it as it is.</source>
        <translation>La distancia entre claro y oscuro. 50 la deja como está.</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Paler colours to the left, stronger ones to the right.</source>
        <translation>Colores más pálidos a la izquierda, más intensos a la derecha.</translation>
    </message>
    <message>
        <source>Lift shadows</source>
        <translation>Aclarar sombras</translation>
    </message>
    <message>
        <source>Brightens the dark parts and leaves the light ones.</source>
        <translation>Aclara las partes oscuras y deja las claras.</translation>
    </message>
    <message>
        <source>Lower highlights</source>
        <translation>Bajar las luces</translation>
    </message>
    <message>
        <source>Darkens the brightest parts, such as shiny skin.</source>
        <translation>Oscurece las partes más claras, como la piel brillante.</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Makes fine detail crisper.</source>
        <translation>Hace más nítido el detalle fino.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Less red to the left, more to the right.</source>
        <translation>Menos rojo a la izquierda, más a la derecha.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Less green to the left, more to the right.</source>
        <translation>Menos verde a la izquierda, más a la derecha.</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Less blue to the left, more to the right.</source>
        <translation>Menos azul a la izquierda, más a la derecha.</translation>
    </message>
    <message>
        <source>Cooler</source>
        <translation>Más frío</translation>
    </message>
    <message>
        <source>Takes warmth out of the light.</source>
        <translation>Quita calidez a la luz.</translation>
    </message>
    <message>
        <source>Warmer</source>
        <translation>Más cálido</translation>
    </message>
    <message>
        <source>Puts warmth into the light.</source>
        <translation>Da calidez a la luz.</translation>
    </message>
    <message>
        <source>Place and size</source>
        <translation>Posición y tamaño</translation>
    </message>
    <message>
        <source>Size, percent</source>
        <translation>Tamaño, por ciento</translation>
    </message>
    <message>
        <source>100 percent fits the layer to the picture. To the right it grows.</source>
        <translation>100 por ciento ajusta la capa a la imagen. A la derecha crece.</translation>
    </message>
    <message>
        <source>Left, right</source>
        <translation>Izquierda, derecha</translation>
    </message>
    <message>
        <source>Moves the layer, in thousandths of the picture&apos;s width.</source>
        <translation>Mueve la capa, en milésimas del ancho de la imagen.</translation>
    </message>
    <message>
        <source>Down, up</source>
        <translation>Abajo, arriba</translation>
    </message>
    <message>
        <source>Moves the layer, in thousandths of the picture&apos;s height.</source>
        <translation>Mueve la capa, en milésimas del alto de la imagen.</translation>
    </message>
    <message>
        <source>Rotate and flip</source>
        <translation>Girar y voltear</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Turns the layer by quarters.</source>
        <translation>Gira la capa por cuartos.</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Enderezar</translation>
    </message>
    <message>
        <source>Tilts the layer by degrees. The number takes tenths.</source>
        <translation>Inclina la capa por grados. El número admite décimas.</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Left and right change places.</source>
        <translation>Izquierda y derecha se intercambian.</translation>
    </message>
    <message>
        <source>Cuts this much of the portrait off, in percent, such as the edge of the screen.</source>
        <translation>Recorta esta parte del retrato, en por ciento, como el borde de la pantalla.</translation>
    </message>
    <message>
        <source>Clip the portrait</source>
        <translation>Recortar el retrato</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
</context>
<context>
    <name>tavrin::Binder</name>
    <message>
        <source>Reset %1</source>
        <translation>Restablecer %1</translation>
    </message>
</context>
<context>
    <name>tavrin::ChoiceRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::Commands</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Croma</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Lo que hace</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>Move a slider; with Shift finer, with Ctrl coarser</source>
        <translation>Mueven un control; con Mayús más fino, con Ctrl más grueso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Put the default of a slider back</source>
        <translation>Devolver un control a su valor inicial</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Ampliar en torno al puntero</translation>
    </message>
    <message>
        <source>Space or middle button</source>
        <translation>Espacio o botón central</translation>
    </message>
    <message>
        <source>Hold and drag to move the picture</source>
        <translation>Mantener y arrastrar para mover la imagen</translation>
    </message>
</context>
<context>
    <name>tavrin::ControlRow</name>
    <message>
        <source>Changed; a click puts the default back</source>
        <translation>Cambiado; un clic devuelve el valor inicial</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Restablecer %1</translation>
    </message>
</context>
<context>
    <name>tavrin::GroupBox</name>
    <message>
        <source>Fold the group away, or open it</source>
        <translation>Plegar el grupo o abrirlo</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>restablecer</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Restablecer %1</translation>
    </message>
    <message>
        <source>Put all defaults of this group back</source>
        <translation>Devolver todo el grupo a sus valores iniciales</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>plegado</translation>
    </message>
    <message>
        <source>open</source>
        <translation>abierto</translation>
    </message>
</context>
<context>
    <name>tavrin::MainWindow</name>
    <message>
        <source>Turns the whole layer</source>
        <translation>Gira toda la capa</translation>
    </message>
    <message>
        <source>The colours of the window</source>
        <translation>Los colores de la ventana</translation>
    </message>
    <message>
        <source>Select Foreground File</source>
        <translation>Elegir el archivo del primer plano</translation>
    </message>
    <message>
        <source>Select Background File</source>
        <translation>Elegir el archivo del fondo</translation>
    </message>
    <message>
        <source>Main Window - Adjust/Load Mode</source>
        <translation>Ventana principal - Ajustar/Cargar</translation>
    </message>
    <message>
        <source>Nothing to take back</source>
        <translation>Nada que deshacer</translation>
    </message>
    <message>
        <source>Take back: %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Nothing to do again</source>
        <translation>Nada que rehacer</translation>
    </message>
    <message>
        <source>Do again: %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Nada todavía</translation>
    </message>
    <message>
        <source>The settings cannot be saved.</source>
        <translation>No se pueden guardar los ajustes.</translation>
    </message>
    <message>
        <source>Open State</source>
        <translation>Abrir estado</translation>
    </message>
    <message>
        <source>Save State</source>
        <translation>Guardar estado</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>The picture is not finished yet.</source>
        <translation>La imagen aún no está terminada.</translation>
    </message>
    <message>
        <source>The picture is not frozen.</source>
        <translation>La imagen no está congelada.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>The window closes when everything is saved.</source>
        <translation>La ventana se cierra cuando todo esté guardado.</translation>
    </message>
    <message>
        <source>Place of the background</source>
        <translation>Posición del fondo</translation>
    </message>
    <message>
        <source>Place of the portrait</source>
        <translation>Posición del retrato</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Not everything is as it should be at the start.</source>
        <translation>No todo está como debe al arrancar.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;recientes</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Output size </source>
        <translation>Tamaño de salida </translation>
    </message>
    <message>
        <source>Before, as long as it is held</source>
        <translation>Antes, mientras se mantiene</translation>
    </message>
    <message>
        <source>Hold it to see the portrait as it was taken; the key B does the same</source>
        <translation>Manténgalo para ver el retrato tal como se tomó; la tecla B hace lo mismo</translation>
    </message>
    <message>
        <source>Full picture %1 %</source>
        <translation>Imagen completa %1 %</translation>
    </message>
    <message>
        <source>Progress of the full picture</source>
        <translation>Progreso de la imagen completa</translation>
    </message>
    <message>
        <source>%1 x %2, %3 dpi</source>
        <translation>%1 x %2, %3 ppp</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Guardando...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Return To Lightroom</source>
        <translation>Volver a Lightroom</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open &amp;Portrait...</source>
        <translation>Abrir &amp;retrato...</translation>
    </message>
    <message>
        <source>Opens a portrait in front of a green or blue screen</source>
        <translation>Abre un retrato delante de una pantalla verde o azul</translation>
    </message>
    <message>
        <source>Open &amp;Background...</source>
        <translation>Abrir &amp;fondo...</translation>
    </message>
    <message>
        <source>Lays another picture behind the portrait</source>
        <translation>Pone otra imagen detrás del retrato</translation>
    </message>
    <message>
        <source>Open S&amp;tate...</source>
        <translation>Abrir &amp;estado...</translation>
    </message>
    <message>
        <source>Brings every setting and both pictures back</source>
        <translation>Recupera todos los ajustes y ambas imágenes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Saves the finished picture</source>
        <translation>Guarda la imagen terminada</translation>
    </message>
    <message>
        <source>Save State &amp;As...</source>
        <translation>Guardar estado &amp;como...</translation>
    </message>
    <message>
        <source>Saves every setting, to go on with later</source>
        <translation>Guarda todos los ajustes para seguir más tarde</translation>
    </message>
    <message>
        <source>&amp;Frame New Portraits</source>
        <translation>&amp;Encuadrar los retratos nuevos</translation>
    </message>
    <message>
        <source>Places portraits around their subject</source>
        <translation>Coloca los retratos en torno a su sujeto</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Takes the last change of a setting back</source>
        <translation>Deshace el último cambio de un ajuste</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Does again what was taken back</source>
        <translation>Vuelve a hacer lo que se deshizo</translation>
    </message>
    <message>
        <source>&amp;Find a Control</source>
        <translation>&amp;Buscar un control</translation>
    </message>
    <message>
        <source>Searches the controls by words</source>
        <translation>Busca los controles por palabras</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajustar</translation>
    </message>
    <message>
        <source>Shows the whole picture</source>
        <translation>Muestra toda la imagen</translation>
    </message>
    <message>
        <source>A Little &amp;Larger</source>
        <translation>Un poco &amp;mayor</translation>
    </message>
    <message>
        <source>A tenth larger</source>
        <translation>Una décima parte mayor</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>A pixel of the picture on a pixel of the screen</source>
        <translation>Un píxel de la imagen en un píxel de la pantalla</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Mayor</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Before (hold the key)</source>
        <translation>Antes (mantener la tecla)</translation>
    </message>
    <message>
        <source>The portrait as it was taken</source>
        <translation>El retrato tal como se tomó</translation>
    </message>
    <message>
        <source>&amp;Alpha</source>
        <translation>&amp;Alfa</translation>
    </message>
    <message>
        <source>What the key leaves of the portrait: dark stays, light goes</source>
        <translation>Lo que queda del retrato: lo oscuro queda, lo claro se va</translation>
    </message>
    <message>
        <source>Save the State with Every &amp;Picture</source>
        <translation>Guardar el estado con cada &amp;imagen</translation>
    </message>
    <message>
        <source>Writes a state file of the same name beside each saved picture</source>
        <translation>Escribe un archivo de estado del mismo nombre junto a cada imagen guardada</translation>
    </message>
    <message>
        <source>&amp;Controls</source>
        <translation>&amp;Controles</translation>
    </message>
    <message>
        <source>Folds the controls away, or shows them</source>
        <translation>Oculta o muestra los controles</translation>
    </message>
    <message>
        <source>Full &amp;Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>Nothing but the program on the screen</source>
        <translation>Solo el programa en la pantalla</translation>
    </message>
    <message>
        <source>Colours of the &amp;Desktop</source>
        <translation>Colores del &amp;escritorio</translation>
    </message>
    <message>
        <source>L&amp;ight Colours</source>
        <translation>Colores &amp;claros</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>Colores &amp;oscuros</translation>
    </message>
    <message>
        <source>Portrait: Upright</source>
        <translation>Retrato: derecho</translation>
    </message>
    <message>
        <source>Portrait: 90 Degrees</source>
        <translation>Retrato: 90 grados</translation>
    </message>
    <message>
        <source>Portrait: 270 Degrees</source>
        <translation>Retrato: 270 grados</translation>
    </message>
    <message>
        <source>Background: Upright</source>
        <translation>Fondo: derecho</translation>
    </message>
    <message>
        <source>Background: 90 Degrees</source>
        <translation>Fondo: 90 grados</translation>
    </message>
    <message>
        <source>Background: 270 Degrees</source>
        <translation>Fondo: 270 grados</translation>
    </message>
    <message>
        <source>&amp;Freeze into the Background</source>
        <translation>&amp;Congelar en el fondo</translation>
    </message>
    <message>
        <source>The picture becomes the background, and another portrait can go before it</source>
        <translation>La imagen pasa a ser el fondo y otro retrato puede ir delante</translation>
    </message>
    <message>
        <source>&amp;Clear the Freeze</source>
        <translation>&amp;Quitar lo congelado</translation>
    </message>
    <message>
        <source>Portrait and background are what their files are again</source>
        <translation>Retrato y fondo vuelven a ser los de sus archivos</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>Cada tecla y lo que hace</translation>
    </message>
</context>
<context>
    <name>tavrin::MessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Show the reason</source>
        <translation>Mostrar el motivo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>tavrin::MouseMode</name>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>A drag on the picture moves the layer</source>
        <translation>Arrastrar en la imagen mueve la capa</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escalar</translation>
    </message>
    <message>
        <source>A drag up makes the layer larger, a drag down smaller</source>
        <translation>Arrastrar hacia arriba agranda la capa, hacia abajo la reduce</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Drags act on the portrait</source>
        <translation>Arrastrar actúa sobre el retrato</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Drags act on the background</source>
        <translation>Arrastrar actúa sobre el fondo</translation>
    </message>
    <message>
        <source>Mouse: %1</source>
        <translation>Ratón: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureFiles</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>State files (*.qlx)</source>
        <translation>Archivos de estado (*.qlx)</translation>
    </message>
    <message>
        <source>The state file cannot be opened.</source>
        <translation>No se puede abrir el archivo de estado.</translation>
    </message>
    <message>
        <source>The state file cannot be saved.</source>
        <translation>No se puede guardar el archivo de estado.</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Drop a portrait on the left half
and a background on the right half,
or open them from the File menu.</source>
        <translation>Suelte un retrato en la mitad izquierda
y un fondo en la derecha,
o ábralos desde el menú Archivo.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
</context>
<context>
    <name>tavrin::SidePanel</name>
    <message>
        <source>Adjust</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Search the controls</source>
        <translation>Buscar los controles</translation>
    </message>
    <message>
        <source>Finds a control by words of its name, its tip or its setting</source>
        <translation>Encuentra un control por palabras de su nombre, su ayuda o su ajuste</translation>
    </message>
    <message>
        <source>No control has these words.</source>
        <translation>Ningún control tiene estas palabras.</translation>
    </message>
    <message>
        <source>Adjust: %1</source>
        <translation>Ajustar: %1</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>The controls below change the portrait</source>
        <translation>Los controles de abajo cambian el retrato</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>The controls below change the background</source>
        <translation>Los controles de abajo cambian el fondo</translation>
    </message>
</context>
<context>
    <name>tavrin::SizeBox</name>
    <message>
        <source>Output size</source>
        <translation>Tamaño de salida</translation>
    </message>
    <message>
        <source>Size and resolution of the finished picture</source>
        <translation>Tamaño y resolución de la imagen terminada</translation>
    </message>
    <message>
        <source>%1 (this picture only)</source>
        <translation>%1 (solo esta imagen)</translation>
    </message>
</context>
<context>
    <name>tavrin::SliderRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1, número</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number; %2 stays as it was.</source>
        <translation>«%1» no es un número; %2 queda como estaba.</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3; it was set to %4.</source>
        <translation>%1 va de %2 a %3; se ha puesto en %4.</translation>
    </message>
</context>
</TS>
