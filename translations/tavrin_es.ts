<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Delivery</name>
    <message>
        <source>%1 took the whole mail and did not say whether it keeps it. It may have gone.</source>
        <translation>%1 recibió el correo entero y no dijo si lo conserva. Puede haber llegado.</translation>
    </message>
    <message>
        <source>The sending was stopped.</source>
        <translation>El envío se detuvo.</translation>
    </message>
    <message>
        <source>The outbox cannot be written to, so nothing was sent.</source>
        <translation>No se puede escribir en la bandeja de salida, así que no se envió nada.</translation>
    </message>
    <message>
        <source>The mail has %1 and %2 takes %3 at most. Nothing was sent; a smaller picture may do.</source>
        <translation>El correo ocupa %1 y %2 acepta como máximo %3. No se envió nada; quizá baste una imagen más pequeña.</translation>
    </message>
    <message>
        <source>%1 does not take the account name or the password.</source>
        <translation>%1 no acepta el nombre de la cuenta o la contraseña.</translation>
    </message>
    <message>
        <source>%1 does not take the account name or the password (%2).</source>
        <translation>%1 no acepta el nombre de la cuenta o la contraseña (%2).</translation>
    </message>
    <message>
        <source>%1 refuses the mail: %2</source>
        <translation>%1 rechaza el correo: %2</translation>
    </message>
    <message>
        <source>No mail server %1 is found: its name is wrong, or there is no network.</source>
        <translation>No se encuentra el servidor de correo %1: su nombre es incorrecto o no hay red.</translation>
    </message>
    <message>
        <source>%1 does not answer on port %2.</source>
        <translation>%1 no responde en el puerto %2.</translation>
    </message>
    <message>
        <source>%1 keeps silent for %2 seconds.</source>
        <translation>%1 lleva %2 segundos sin responder.</translation>
    </message>
    <message>
        <source>%1 offers no encryption (STARTTLS) on port %2, so nothing was sent.</source>
        <translation>%1 no ofrece cifrado (STARTTLS) en el puerto %2, así que no se envió nada.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not to be trusted, so nothing was sent: %2</source>
        <translation>El certificado de %1 no es de confianza, así que no se envió nada: %2</translation>
    </message>
    <message>
        <source>No encrypted connection to %1 comes about; is the port right? %2</source>
        <translation>No se logra una conexión cifrada con %1; ¿es correcto el puerto? %2</translation>
    </message>
    <message>
        <source>The connection to %1 broke off: %2.</source>
        <translation>Se cortó la conexión con %1: %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the mail.</source>
        <translation>No hay memoria suficiente para el correo.</translation>
    </message>
    <message>
        <source>There is no mail server in the settings.</source>
        <translation>No hay ningún servidor de correo en los ajustes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a mail server.</source>
        <translation>«%1» no es el nombre de un servidor de correo.</translation>
    </message>
    <message>
        <source>The account name or the password of the mail server holds a control character.</source>
        <translation>El nombre de la cuenta o la contraseña del servidor de correo contiene un carácter de control.</translation>
    </message>
    <message>
        <source>The port of the mail server is no number from 1 to 65535.</source>
        <translation>El puerto del servidor de correo no es un número de 1 a 65535.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address to send from.</source>
        <translation>«%1» no es una dirección desde la que se pueda enviar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mail address.</source>
        <translation>«%1» no es una dirección de correo.</translation>
    </message>
    <message>
        <source>The library that sends mails cannot be started.</source>
        <translation>No se puede iniciar la biblioteca que envía correos.</translation>
    </message>
    <message>
        <source>Tavrin was closed while the mail was sent.</source>
        <translation>Tavrin se cerró mientras se enviaba el correo.</translation>
    </message>
    <message>
        <source>Tavrin ended while the mail was handed over. It may have gone.</source>
        <translation>Tavrin terminó mientras se entregaba el correo. Puede haber llegado.</translation>
    </message>
    <message>
        <source>The default mail server is not set up: %1.</source>
        <translation>El servidor de correo predeterminado no está configurado: %1.</translation>
    </message>
    <message>
        <source>%1 is missing in %2</source>
        <translation>falta %1 en %2</translation>
    </message>
    <message>
        <source>There is no address to send from: the account name of the mail server is none, and relay-account is missing in %1.</source>
        <translation>No hay dirección desde la que enviar: el nombre de la cuenta del servidor no lo es, y falta relay-account en %1.</translation>
    </message>
    <message>
        <source>The gateway for text messages is not set up: text-gateway is missing in %1.</source>
        <translation>La pasarela de mensajes de texto no está configurada: falta text-gateway en %1.</translation>
    </message>
    <message>
        <source>The outbox is full (mails: %1, MB: %2); it takes %3 mails and %4 MB. Send or discard some of them.</source>
        <translation>La bandeja de salida está llena (correos: %1, MB: %2); admite %3 correos y %4 MB. Envíe o descarte algunos.</translation>
    </message>
    <message>
        <source>The outbox %1 cannot be written to: %2.</source>
        <translation>No se puede escribir en la bandeja de salida %1: %2.</translation>
    </message>
    <message>
        <source>its file system knows no locks</source>
        <translation>su sistema de archivos no admite bloqueos</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be attached: %2.</source>
        <translation>No se puede adjuntar %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read; what is attached lies beside it.</source>
        <translation>No se puede leer %1; lo adjunto está a su lado.</translation>
    </message>
    <message>
        <source>The sender: %1.</source>
        <translation>El remitente: %1.</translation>
    </message>
    <message>
        <source>The address for answers: %1.</source>
        <translation>La dirección para respuestas: %1.</translation>
    </message>
    <message>
        <source>The recipient: %1.</source>
        <translation>El destinatario: %1.</translation>
    </message>
    <message>
        <source>there is no address</source>
        <translation>no hay dirección</translation>
    </message>
    <message>
        <source>the address is too long</source>
        <translation>la dirección es demasiado larga</translation>
    </message>
    <message>
        <source>the address begins with a hyphen</source>
        <translation>la dirección empieza con un guion</translation>
    </message>
    <message>
        <source>the address holds a line break or another control character</source>
        <translation>la dirección contiene un salto de línea u otro carácter de control</translation>
    </message>
    <message>
        <source>the address holds a character that no address has, such as a blank, a comma or a bracket</source>
        <translation>la dirección contiene un carácter que ninguna dirección tiene, como un espacio, una coma o un paréntesis</translation>
    </message>
    <message>
        <source>the address is no text</source>
        <translation>la dirección no es texto</translation>
    </message>
    <message>
        <source>The printing system (CUPS) does not answer; see that it runs.</source>
        <translation>El sistema de impresión (CUPS) no responde; compruebe que está en marcha.</translation>
    </message>
    <message>
        <source>This program was built without a printing system, so there are no printers; a sheet can be saved as a PDF and printed from there.</source>
        <translation>Este programa se compiló sin sistema de impresión, así que no hay impresoras; una hoja se puede guardar como PDF e imprimir desde allí.</translation>
    </message>
    <message>
        <source>There are no printers on this machine.</source>
        <translation>No hay impresoras en este equipo.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>No existe la impresora «%1».</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>No existe la impresora «%1»; ¿quería decir «%2»?</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; takes no jobs at present.</source>
        <translation>La impresora «%1» no acepta trabajos por ahora.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is stopped.</source>
        <translation>La impresora «%1» está detenida.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is stopped: %2.</source>
        <translation>La impresora «%1» está detenida: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print now: %2.</source>
        <translation>La impresora «%1» no puede imprimir ahora: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be asked: %2.</source>
        <translation>No se puede consultar la impresora «%1»: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the sheet: %2.</source>
        <translation>La impresora «%1» no acepta la hoja: %2.</translation>
    </message>
    <message>
        <source>The sheet could not be sent to the printer &quot;%1&quot;: %2.</source>
        <translation>No se pudo enviar la hoja a la impresora «%1»: %2.</translation>
    </message>
    <message>
        <source>its file %1 cannot be read</source>
        <translation>no se puede leer su archivo %1</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>no se indicó el motivo</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>se canceló</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not go on: %2.</source>
        <translation>La impresora «%1» no continúa: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not print it.</source>
        <translation>La impresora «%1» no la imprimió.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not print it: %2.</source>
        <translation>La impresora «%1» no la imprimió: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not give it back. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>La impresora «%1» no la devuelve. Puede que ya esté impresa; mire la impresora antes de enviarla otra vez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not know it any more. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>La impresora «%1» ya no la conoce. Puede que ya esté impresa; mire la impresora antes de enviarla otra vez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be asked. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>No se puede consultar la impresora «%1». Puede que ya esté impresa; mire la impresora antes de enviarla otra vez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has the sheet and does not give it back.</source>
        <translation>La impresora «%1» tiene la hoja y no la devuelve.</translation>
    </message>
    <message>
        <source>The program was ended before the sheet was sent.</source>
        <translation>El programa terminó antes de enviar la hoja.</translation>
    </message>
    <message>
        <source>Another program is at work with this sheet.</source>
        <translation>Otro programa está trabajando con esta hoja.</translation>
    </message>
    <message>
        <source>The folder %1 for sheets that wait cannot be made: %2.</source>
        <translation>No se puede crear la carpeta %1 para las hojas que esperan: %2.</translation>
    </message>
    <message>
        <source>The sheet cannot be kept in %1: %2.</source>
        <translation>No se puede guardar la hoja en %1: %2.</translation>
    </message>
    <message>
        <source>The colour profile %1 cannot be used: %2.</source>
        <translation>El perfil de color %1 no se puede usar: %2.</translation>
    </message>
    <message>
        <source>it is no ICC profile</source>
        <translation>no es un perfil ICC</translation>
    </message>
    <message>
        <source>it is for a printer that takes four inks, and sheets are sent in red, green and blue; take the printer&apos;s RGB profile</source>
        <translation>es para una impresora de cuatro tintas, y las hojas se envían en rojo, verde y azul; use el perfil RGB de la impresora</translation>
    </message>
    <message>
        <source>it is not for red, green and blue</source>
        <translation>no es para rojo, verde y azul</translation>
    </message>
    <message>
        <source>it does not tell how to print</source>
        <translation>no indica cómo imprimir</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>a paper jam</source>
        <translation>un atasco de papel</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>falta la bandeja de papel</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>hay una cubierta abierta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>hay una puerta abierta</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sin tóner</translation>
    </message>
    <message>
        <source>the waste box is full</source>
        <translation>el depósito de residuos está lleno</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>la bandeja de salida de papel está llena</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>falta la bandeja de salida de papel</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>apagada o no conectada</translation>
    </message>
    <message>
        <source>cannot be reached yet</source>
        <translation>aún no se puede alcanzar</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>detenida en parte</translation>
    </message>
    <message>
        <source>held back</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>its driver is incomplete</source>
        <translation>su controlador está incompleto</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>no permission to write into the folder %1</source>
        <translation>sin permiso para escribir en la carpeta %1</translation>
    </message>
    <message>
        <source>the folder %1 can only be read</source>
        <translation>la carpeta %1 es de solo lectura</translation>
    </message>
    <message>
        <source>the file would be larger than this disk allows</source>
        <translation>el archivo sería mayor de lo que admite este disco</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>hay una carpeta con ese nombre</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message>
        <source>%1 is write-protected and stays as it is</source>
        <translation>%1 está protegido contra escritura y queda como está</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 no es un archivo normal</translation>
    </message>
    <message>
        <source>Line %1 of delivery.conf (%2) means nothing.</source>
        <translation>La línea %1 de delivery.conf (%2) no significa nada.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>The file of certificates %1 cannot be read or holds none, so nothing was sent.</source>
        <translation>El archivo de certificados %1 no se puede leer o no contiene ninguno, así que no se envió nada.</translation>
    </message>
    <message>
        <source>out of ink or ribbon</source>
        <translation>sin tinta o cinta</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no full picture to edit.</source>
        <translation>No hay ninguna imagen completa que retocar.</translation>
    </message>
    <message>
        <source>Nothing can be edited: the picture of the silhouette cannot be read.</source>
        <translation>No se puede retocar nada: no se puede leer la imagen de la silueta.</translation>
    </message>
    <message>
        <source>This step cannot be undone: %1.</source>
        <translation>Este paso no se puede deshacer: %1.</translation>
    </message>
    <message>
        <source>This step stays: its file %1 cannot be read.</source>
        <translation>Este paso se queda: no se puede leer su archivo %1.</translation>
    </message>
    <message>
        <source>The last stroke cannot be undone: its file could not be written.</source>
        <translation>El último trazo no se puede deshacer: no se pudo escribir su archivo.</translation>
    </message>
    <message>
        <source>The recording is full: what is done from here on stays in the picture, but no replay has it.</source>
        <translation>La grabación está llena: lo que se haga desde ahora queda en la imagen, pero no se repetirá.</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1, línea %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>no permission to write into the folder %1</source>
        <translation>sin permiso para escribir en la carpeta %1</translation>
    </message>
    <message>
        <source>the folder %1 can only be read</source>
        <translation>la carpeta %1 es de solo lectura</translation>
    </message>
    <message>
        <source>the file would be larger than this disk allows</source>
        <translation>el archivo sería mayor de lo que permite este disco</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ese archivo no existe</translation>
    </message>
    <message>
        <source>that is no file of edits</source>
        <translation>no es un archivo de trazos</translation>
    </message>
    <message>
        <source>it is too large for a file of edits</source>
        <translation>es demasiado grande para un archivo de trazos</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>it does not begin with &quot;%1&quot;</source>
        <translation>no empieza por «%1»</translation>
    </message>
    <message>
        <source>it has no line &quot;view WIDTH HEIGHT&quot;</source>
        <translation>le falta la línea «view WIDTH HEIGHT»</translation>
    </message>
    <message>
        <source>a file of edits begins with &quot;%1&quot;</source>
        <translation>un archivo de trazos empieza por «%1»</translation>
    </message>
    <message>
        <source>only version %1 of files of edits is known here</source>
        <translation>aquí solo se conoce la versión %1 de estos archivos</translation>
    </message>
    <message>
        <source>there is a view already</source>
        <translation>ya hay un view</translation>
    </message>
    <message>
        <source>view takes width and height in pixels, each 1 to 100000</source>
        <translation>view lleva ancho y alto en píxeles, de 1 a 100000</translation>
    </message>
    <message>
        <source>zoom stands before the first item</source>
        <translation>zoom va antes del primer elemento</translation>
    </message>
    <message>
        <source>zoom takes the pixels of a point of the view, 0.001 to 1000</source>
        <translation>zoom lleva los píxeles de un punto de la vista, de 0.001 a 1000</translation>
    </message>
    <message>
        <source>seed takes a whole number from 0 on</source>
        <translation>seed lleva un número entero desde 0</translation>
    </message>
    <message>
        <source>the line &quot;view WIDTH HEIGHT&quot; comes before the items</source>
        <translation>la línea «view WIDTH HEIGHT» va antes de los elementos</translation>
    </message>
    <message>
        <source>an item is a kind and up to four values</source>
        <translation>un elemento es una clase y hasta cuatro valores</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>%1 takes 1 value</source>
        <translation>%1 lleva 1 valor</translation>
    </message>
    <message>
        <source>%1 takes %2 values</source>
        <translation>%1 lleva %2 valores</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 has %2 %3, and it goes from %4 to %5</source>
        <translation>%1 tiene %2 %3, y va de %4 a %5</translation>
    </message>
    <message>
        <source>mouse down</source>
        <translation>botón del ratón pulsado</translation>
    </message>
    <message>
        <source>mouse up</source>
        <translation>botón del ratón soltado</translation>
    </message>
    <message>
        <source>mouse dragged</source>
        <translation>ratón arrastrado</translation>
    </message>
    <message>
        <source>brush</source>
        <translation>pincel</translation>
    </message>
    <message>
        <source>sliders of the brush</source>
        <translation>controles del pincel</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>color</translation>
    </message>
    <message>
        <source>colour from the picture</source>
        <translation>color tomado de la imagen</translation>
    </message>
    <message>
        <source>colour of the selection</source>
        <translation>color de la selección</translation>
    </message>
    <message>
        <source>check box</source>
        <translation>casilla</translation>
    </message>
    <message>
        <source>check box of the selection</source>
        <translation>casilla de la selección</translation>
    </message>
    <message>
        <source>selection</source>
        <translation>selección</translation>
    </message>
    <message>
        <source>key</source>
        <translation>tecla</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>rehacer</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>deshacer</translation>
    </message>
    <message>
        <source>zoom in</source>
        <translation>acercar</translation>
    </message>
    <message>
        <source>zoom home</source>
        <translation>imagen entera</translation>
    </message>
    <message>
        <source>scale of the radius</source>
        <translation>escala del radio</translation>
    </message>
    <message>
        <source>editor entered again</source>
        <translation>aerógrafo abierto de nuevo</translation>
    </message>
    <message>
        <source>selection as it was found</source>
        <translation>selección tal como estaba</translation>
    </message>
    <message>
        <source>anchor</source>
        <translation>ancla</translation>
    </message>
    <message>
        <source>way to the anchor</source>
        <translation>distancia al ancla</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>the character</source>
        <translation>el carácter</translation>
    </message>
    <message>
        <source>the state</source>
        <translation>el estado</translation>
    </message>
    <message>
        <source>red</source>
        <translation>el rojo</translation>
    </message>
    <message>
        <source>green</source>
        <translation>el verde</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>el azul</translation>
    </message>
    <message>
        <source>the slider</source>
        <translation>el control</translation>
    </message>
    <message>
        <source>the radius</source>
        <translation>el radio</translation>
    </message>
    <message>
        <source>the hardness</source>
        <translation>la dureza</translation>
    </message>
    <message>
        <source>the transparency</source>
        <translation>la transparencia</translation>
    </message>
    <message>
        <source>the tolerance</source>
        <translation>la tolerancia</translation>
    </message>
    <message>
        <source>the source</source>
        <translation>el origen</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>la altura</translation>
    </message>
    <message>
        <source>the other height</source>
        <translation>la otra altura</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>el color</translation>
    </message>
    <message>
        <source>the tool&apos;s colour</source>
        <translation>el color de la herramienta</translation>
    </message>
    <message>
        <source>the way across</source>
        <translation>la distancia horizontal</translation>
    </message>
    <message>
        <source>the way down</source>
        <translation>la distancia vertical</translation>
    </message>
    <message>
        <source>Strokes that did not meet the picture: %1 of %2.</source>
        <translation>Trazos que no tocaron la imagen: %1 de %2.</translation>
    </message>
</context>
<context>
    <name>FileFilters</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>State files (*.qlx)</source>
        <translation>Archivos de estado (*.qlx)</translation>
    </message>
</context>
<context>
    <name>Habits</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>The words of the window, from the next start on</source>
        <translation>El idioma de la ventana, a partir del próximo inicio</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>The words change with the next start.</source>
        <translation>El idioma cambia con el próximo inicio.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>The colours of the window</source>
        <translation>Los colores de la ventana</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Procesadores</translation>
    </message>
    <message>
        <source>How many processors work on a picture; fewer leave some to other programs</source>
        <translation>Cuántos procesadores trabajan en una imagen; menos dejan algunos a otros programas</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>What names of saved pictures end with, until another ending is typed. A clear background is always proposed as PNG</source>
        <translation>Con qué terminan los nombres de las imágenes guardadas, hasta que se escriba otra terminación. Un fondo transparente se propone siempre como PNG</translation>
    </message>
    <message>
        <source>As the portrait</source>
        <translation>Como el retrato</translation>
    </message>
</context>
<context>
    <name>HelpPanels</name>
    <message>
        <source>User&apos;s guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Tavrin: User&apos;s Guide</source>
        <translation>Tavrin: guía del usuario</translation>
    </message>
    <message>
        <source>About Tavrin</source>
        <translation>Acerca de Tavrin</translation>
    </message>
    <message>
        <source>Takes the green or blue screen behind a person away and lays another picture there.

Runs on Qt %1. Other people&apos;s work that is in it is listed in its folder of documents, in licences.md.</source>
        <translation>Quita la pantalla verde o azul de detrás de una persona y pone allí otra imagen.

Funciona con Qt %1. El trabajo ajeno que contiene figura en licences.md, en su carpeta de documentos.</translation>
    </message>
</context>
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
    <message>
        <source>E&amp;ffects</source>
        <translation>E&amp;fectos</translation>
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
    <message>
        <source>Adjust</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Key, light, colour and place of both layers</source>
        <translation>Recorte, luz, color y lugar de ambas capas</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Al empezar</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Habits</source>
        <translation>Hábitos</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>The portrait that stands there at the start</source>
        <translation>El retrato que está ahí al empezar</translation>
    </message>
    <message>
        <source>Select Startup Foreground File</source>
        <translation>Elegir el retrato inicial</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>The background that stands there at the start</source>
        <translation>El fondo que está ahí al empezar</translation>
    </message>
    <message>
        <source>Select Startup Background File</source>
        <translation>Elegir el fondo inicial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The state file whose settings every start, and every reset of a layer, begins with</source>
        <translation>El archivo de estado con cuyos ajustes empieza cada inicio y cada restablecimiento de una capa</translation>
    </message>
    <message>
        <source>Select Startup QLX File</source>
        <translation>Elegir el archivo de estado inicial</translation>
    </message>
    <message>
        <source>Backgrounds to choose from</source>
        <translation>Fondos para elegir</translation>
    </message>
    <message>
        <source>The folder whose pictures the strip offers as backgrounds</source>
        <translation>La carpeta cuyas imágenes ofrece la tira como fondos</translation>
    </message>
    <message>
        <source>Folder of the Backgrounds</source>
        <translation>Carpeta de los fondos</translation>
    </message>
    <message>
        <source>Start-up files, folders, names of saved files and habits</source>
        <translation>Archivos iniciales, carpetas, nombres de archivos guardados y hábitos</translation>
    </message>
    <message>
        <source>Cartoon and pencil</source>
        <translation>Cómic y lápiz</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>Dibujar como</translation>
    </message>
    <message>
        <source>Makes a drawing of the full picture; the preview shows none of it. Each kind starts with lines that suit it.</source>
        <translation>Convierte la imagen completa en un dibujo; la vista previa no lo muestra. Cada tipo empieza con las líneas que le convienen.</translation>
    </message>
    <message>
        <source>Cartoon</source>
        <translation>Cómic</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Old paper</source>
        <translation>Papel viejo</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Ancho de línea</translation>
    </message>
    <message>
        <source>To the right lines grow broader.</source>
        <translation>Hacia la derecha las líneas se ensanchan.</translation>
    </message>
    <message>
        <source>Flat areas</source>
        <translation>Zonas planas</translation>
    </message>
    <message>
        <source>To the right fine detail becomes one tone.</source>
        <translation>Hacia la derecha los detalles finos se funden en un tono.</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Estrellas</translation>
    </message>
    <message>
        <source>Show stars</source>
        <translation>Mostrar estrellas</translation>
    </message>
    <message>
        <source>Draws a star on each small bright light, as a filter on a lens does.</source>
        <translation>Dibuja una estrella en cada luz pequeña y brillante, como un filtro de objetivo.</translation>
    </message>
    <message>
        <source>How bright a light must be. To the left more count.</source>
        <translation>Lo brillante que debe ser una luz. Hacia la izquierda cuentan más.</translation>
    </message>
    <message>
        <source>Largest light</source>
        <translation>Luz mayor</translation>
    </message>
    <message>
        <source>How large a light may be; 50 is a hundredth of the picture.</source>
        <translation>Lo grande que puede ser una luz; 50 es una centésima de la imagen.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>To the right the arms grow longer.</source>
        <translation>Hacia la derecha los brazos se alargan.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>To the right the arms grow broader.</source>
        <translation>Hacia la derecha los brazos se ensanchan.</translation>
    </message>
    <message>
        <source>Arms</source>
        <translation>Brazos</translation>
    </message>
    <message>
        <source>How many arms a star has.</source>
        <translation>Cuántos brazos tiene una estrella.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Turns the star, in degrees.</source>
        <translation>Gira la estrella, en grados.</translation>
    </message>
    <message>
        <source>Show the lights that count</source>
        <translation>Mostrar las luces que cuentan</translation>
    </message>
    <message>
        <source>Marks the lights in place of the stars, to set the controls by.</source>
        <translation>Marca las luces en lugar de las estrellas, para ajustar los controles.</translation>
    </message>
    <message>
        <source>Takes the shadow away.</source>
        <translation>Quita la sombra.</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Pared</translation>
    </message>
    <message>
        <source>A shadow on a wall behind the subject, at its starting position.</source>
        <translation>Una sombra en una pared detrás de la persona, en su posición inicial.</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Suelo</translation>
    </message>
    <message>
        <source>A shadow on the floor, at its starting position.</source>
        <translation>Una sombra en el suelo, en su posición inicial.</translation>
    </message>
    <message>
        <source>Floor and wall</source>
        <translation>Suelo, pared</translation>
    </message>
    <message>
        <source>A shadow over the floor and up a wall, at its starting position.</source>
        <translation>Una sombra por el suelo y pared arriba, en su posición inicial.</translation>
    </message>
    <message>
        <source>Start with usual values</source>
        <translation>Empezar con valores usuales</translation>
    </message>
    <message>
        <source>Skin is smoothed a little, as suits most faces.</source>
        <translation>La piel se suaviza un poco, como conviene a la mayoría de las caras.</translation>
    </message>
    <message>
        <source>The chosen shape at a usual place and strength; a circle if none is.</source>
        <translation>La forma elegida en un lugar y con una fuerza usuales; un círculo si no hay ninguna.</translation>
    </message>
    <message>
        <source>Six slender arms on each small light.</source>
        <translation>Seis brazos finos en cada luz pequeña.</translation>
    </message>
    <message>
        <source>The finished picture, smoothed a little.</source>
        <translation>La imagen terminada, un poco suavizada.</translation>
    </message>
    <message>
        <source>As on calm water; the line stays where it is.</source>
        <translation>Como en agua tranquila; la línea queda donde está.</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textura</translation>
    </message>
    <message>
        <source>A picture of a surface, such as canvas or paper. A file can be dropped here.</source>
        <translation>La imagen de una superficie, como lienzo o papel. Se puede soltar un archivo aquí.</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Elegir imagen</translation>
    </message>
    <message>
        <source>Frame picture</source>
        <translation>Imagen del marco</translation>
    </message>
    <message>
        <source>Fills the frame with a picture, such as wood or gold. A file can be dropped here.</source>
        <translation>Llena el marco con una imagen, como madera u oro. Se puede soltar un archivo aquí.</translation>
    </message>
    <message>
        <source>Picture in the shape</source>
        <translation>Imagen en la forma</translation>
    </message>
    <message>
        <source>Fills the silhouette in place of its colour. A file can be dropped here.</source>
        <translation>Llena la silueta en lugar de su color. Se puede soltar un archivo aquí.</translation>
    </message>
    <message>
        <source>Select Silhouette Image</source>
        <translation>Elegir imagen de la silueta</translation>
    </message>
    <message>
        <source>Frame colour</source>
        <translation>Color del marco</translation>
    </message>
    <message>
        <source>The colour of a frame that is filled with one.</source>
        <translation>El color de un marco que se llena con uno.</translation>
    </message>
    <message>
        <source>Select Font Outline Color</source>
        <translation>Elegir color del contorno del texto</translation>
    </message>
    <message>
        <source>Select Frame Overlay Color</source>
        <translation>Elegir color del segundo marco</translation>
    </message>
    <message>
        <source>Colour of the shape</source>
        <translation>Color de la forma</translation>
    </message>
    <message>
        <source>The colour of the silhouette where no picture fills it.</source>
        <translation>El color de la silueta donde no la llena una imagen.</translation>
    </message>
    <message>
        <source>Select Silhouette Color</source>
        <translation>Elegir color de la silueta</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Shadow, frames, light, drawings, textures, skin</source>
        <translation>Sombra, marcos, luz, dibujos, texturas, piel</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>The opening in which the picture is seen.</source>
        <translation>La abertura en la que se ve la imagen.</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Recto</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Óvalo</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Corazón</translation>
    </message>
    <message>
        <source>Jagged</source>
        <translation>Dentado</translation>
    </message>
    <message>
        <source>Filled with</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>What the frame is made of: a colour, the picture blurred, the background, or a picture of your own.</source>
        <translation>De qué es el marco: un color, la imagen desenfocada, el fondo o una imagen propia.</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desenfoque</translation>
    </message>
    <message>
        <source>Backgr.</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>How wide the frame is, in percent of the shorter side.</source>
        <translation>El ancho del marco, en porcentaje del lado corto.</translation>
    </message>
    <message>
        <source>Soft edge</source>
        <translation>Borde suave</translation>
    </message>
    <message>
        <source>To the right the inner edge of the frame grows softer.</source>
        <translation>Hacia la derecha el borde interior del marco se suaviza.</translation>
    </message>
    <message>
        <source>See-through</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>To the right more of the picture shows through the frame.</source>
        <translation>Hacia la derecha se ve más imagen a través del marco.</translation>
    </message>
    <message>
        <source>How blurred the picture is in a frame that is filled with it.</source>
        <translation>Lo desenfocada que está la imagen en un marco lleno de ella.</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Leaves the lower side of a square or an oval open, like a door.</source>
        <translation>Deja abierto el lado inferior de un marco recto u oval, como una puerta.</translation>
    </message>
    <message>
        <source>Second frame</source>
        <translation>Segundo marco</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Green guard</source>
        <translation>Protección del verde</translation>
    </message>
    <message>
        <source>Protect</source>
        <translation>Proteger</translation>
    </message>
    <message>
        <source>Keeps green that the subject wears: all that the screen does not reach, or clothes of one colour.</source>
        <translation>Conserva el verde que lleva la persona: todo lo que la pantalla no alcanza, o ropa de un color.</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Interior</translation>
    </message>
    <message>
        <source>Clothes</source>
        <translation>Ropa</translation>
    </message>
    <message>
        <source>Counts as screen</source>
        <translation>Cuenta como pantalla</translation>
    </message>
    <message>
        <source>How far a green may be from the screen and still count as screen. To the left more is protected.</source>
        <translation>Cuánto puede alejarse un verde de la pantalla y seguir contando como tal. Hacia la izquierda se protege más.</translation>
    </message>
    <message>
        <source>Free edge</source>
        <translation>Borde libre</translation>
    </message>
    <message>
        <source>Along the outline the guard leaves a band of this width to the key.</source>
        <translation>A lo largo del contorno la protección deja al recorte una banda de este ancho.</translation>
    </message>
    <message>
        <source>Counts as clothes</source>
        <translation>Cuenta como ropa</translation>
    </message>
    <message>
        <source>How far a colour may be from the clothes and still be protected. To the right more is.</source>
        <translation>Cuánto puede alejarse un color de la ropa y seguir protegido. Hacia la derecha se protege más.</translation>
    </message>
    <message>
        <source>Key holes in the subject</source>
        <translation>Recortar huecos en la persona</translation>
    </message>
    <message>
        <source>Screen that is seen between an arm and the body goes all the same.</source>
        <translation>La pantalla que se ve entre un brazo y el cuerpo desaparece igualmente.</translation>
    </message>
    <message>
        <source>Show what is protected</source>
        <translation>Mostrar lo protegido</translation>
    </message>
    <message>
        <source>Shows the guard in place of the picture until the panel is closed.</source>
        <translation>Muestra la protección en lugar de la imagen hasta que se cierra el grupo.</translation>
    </message>
    <message>
        <source>Behind the subject</source>
        <translation>Detrás de la persona</translation>
    </message>
    <message>
        <source>The shadow falls away from the viewer and not towards him.</source>
        <translation>La sombra se aleja del espectador y no viene hacia él.</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Moves the shadow; 500 leaves it behind the subject.</source>
        <translation>Mueve la sombra; 500 la deja detrás de la persona.</translation>
    </message>
    <message>
        <source>Up, down</source>
        <translation>Arriba, abajo</translation>
    </message>
    <message>
        <source>Moves the shadow; 500 leaves it where the subject is.</source>
        <translation>Mueve la sombra; 500 la deja donde está la persona.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>500 is as large as the subject; to the right it grows.</source>
        <translation>500 es tan grande como la persona; hacia la derecha crece.</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidad</translation>
    </message>
    <message>
        <source>To the right the shadow&apos;s edge grows softer.</source>
        <translation>Hacia la derecha el borde de la sombra se suaviza.</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>To the right the shadow grows darker.</source>
        <translation>Hacia la derecha la sombra se oscurece.</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>Lays a shadow on the floor over to one side; 500 is straight.</source>
        <translation>Inclina hacia un lado una sombra en el suelo; 500 es recto.</translation>
    </message>
    <message>
        <source>Foot line</source>
        <translation>Línea de pie</translation>
    </message>
    <message>
        <source>The line on which the subject stands, red in the preview. To the right it rises.</source>
        <translation>La línea en la que está la persona, roja en la vista previa. Hacia la derecha sube.</translation>
    </message>
    <message>
        <source>Tilt of the line</source>
        <translation>Giro de la línea</translation>
    </message>
    <message>
        <source>Turns the foot line; 500 is level.</source>
        <translation>Gira la línea de pie; 500 es horizontal.</translation>
    </message>
    <message>
        <source>Wall, right</source>
        <translation>Pared derecha</translation>
    </message>
    <message>
        <source>Where the wall meets the floor at the right edge. 0 and 0: no wall.</source>
        <translation>Dónde la pared toca el suelo en el borde derecho. 0 y 0: sin pared.</translation>
    </message>
    <message>
        <source>Wall, left</source>
        <translation>Pared izquierda</translation>
    </message>
    <message>
        <source>Where the wall meets the floor at the left edge. 0 and 0: no wall.</source>
        <translation>Dónde la pared toca el suelo en el borde izquierdo. 0 y 0: sin pared.</translation>
    </message>
    <message>
        <source>Show the room</source>
        <translation>Mostrar el cuarto</translation>
    </message>
    <message>
        <source>Shows wall and floor in grey to place the shadow by; only in the preview.</source>
        <translation>Muestra pared y suelo en gris para colocar la sombra; solo en la vista previa.</translation>
    </message>
    <message>
        <source>Dark limit</source>
        <translation>Límite oscuro</translation>
    </message>
    <message>
        <source>What is darker than this counts as the subject, too. To the right more does.</source>
        <translation>Lo más oscuro también cuenta como la persona. Hacia la derecha cuenta más.</translation>
    </message>
    <message>
        <source>Reflection</source>
        <translation>Reflejo</translation>
    </message>
    <message>
        <source>Show a reflection</source>
        <translation>Mostrar un reflejo</translation>
    </message>
    <message>
        <source>Mirrors the subject below a line, as on water or a polished floor.</source>
        <translation>Refleja a la persona bajo una línea, como en agua o en un suelo pulido.</translation>
    </message>
    <message>
        <source>Water line</source>
        <translation>Línea de agua</translation>
    </message>
    <message>
        <source>Where the mirror begins, in percent from the bottom; red in the preview.</source>
        <translation>Dónde empieza el espejo, en porcentaje desde abajo; rojo en la vista previa.</translation>
    </message>
    <message>
        <source>100 is as long as the subject; to the left it is shorter.</source>
        <translation>100 es tan largo como la persona; hacia la izquierda es más corto.</translation>
    </message>
    <message>
        <source>Lays the reflection over to one side; 50 is straight.</source>
        <translation>Inclina el reflejo hacia un lado; 50 es recto.</translation>
    </message>
    <message>
        <source>Ripples</source>
        <translation>Ondas</translation>
    </message>
    <message>
        <source>To the right the water line moves more; 0 is a floor.</source>
        <translation>Hacia la derecha la línea de agua se mueve más; 0 es un suelo.</translation>
    </message>
    <message>
        <source>To the right the reflection grows clearer.</source>
        <translation>Hacia la derecha el reflejo se ve más claro.</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>A graded sheet, a spot, a beam, or a halo around the subject.</source>
        <translation>Un degradado, un foco, un haz o un halo alrededor de la persona.</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Cono</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>Halo</translation>
    </message>
    <message>
        <source>Falls on</source>
        <translation>Cae sobre</translation>
    </message>
    <message>
        <source>What the light changes.</source>
        <translation>Lo que cambia la luz.</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
    </message>
    <message>
        <source>Light, inside</source>
        <translation>Luz interior</translation>
    </message>
    <message>
        <source>Where the light begins. 50 changes nothing; to the left it darkens.</source>
        <translation>Donde empieza la luz. 50 no cambia nada; hacia la izquierda oscurece.</translation>
    </message>
    <message>
        <source>Light, outside</source>
        <translation>Luz exterior</translation>
    </message>
    <message>
        <source>Where the light ends. 50 changes nothing; to the left it darkens.</source>
        <translation>Donde acaba la luz. 50 no cambia nada; hacia la izquierda oscurece.</translation>
    </message>
    <message>
        <source>Moves the light. 200 is the middle for a circle, 50 for a cone.</source>
        <translation>Mueve la luz. 200 es el centro para un círculo, 50 para un cono.</translation>
    </message>
    <message>
        <source>To the right the light grows.</source>
        <translation>Hacia la derecha la luz crece.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Turns a sheet or a cone, in degrees.</source>
        <translation>Gira un plano o un cono, en grados.</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>pared</translation>
    </message>
    <message>
        <source>Wall Shadow</source>
        <translation>Sombra en la pared</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>suelo</translation>
    </message>
    <message>
        <source>Floor Shadow</source>
        <translation>Sombra en el suelo</translation>
    </message>
    <message>
        <source>wall and floor</source>
        <translation>pared y suelo</translation>
    </message>
    <message>
        <source>Wall and Floor Shadow</source>
        <translation>Sombra en pared y suelo</translation>
    </message>
    <message>
        <source>No Shadow Active</source>
        <translation>Ninguna sombra activa</translation>
    </message>
    <message>
        <source>Skin and make-up</source>
        <translation>Piel y maquillaje</translation>
    </message>
    <message>
        <source>Smooth skin</source>
        <translation>Suavizar la piel</translation>
    </message>
    <message>
        <source>Smooths skin in the full picture; the preview shows none of it.</source>
        <translation>Suaviza la piel en la imagen completa; la vista previa no lo muestra.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>How widely skin is blurred. To the right pores and spots go.</source>
        <translation>Cuánto se difumina la piel. Hacia la derecha desaparecen poros y manchas.</translation>
    </message>
    <message>
        <source>How much of the smooth skin is mixed in; 80 is all of it.</source>
        <translation>Cuánta piel suavizada se mezcla; 80 es toda.</translation>
    </message>
    <message>
        <source>Counts as skin</source>
        <translation>Cuenta como piel</translation>
    </message>
    <message>
        <source>How far a colour may be from the skin and still count. 60 suits most faces.</source>
        <translation>Cuánto puede alejarse un color de la piel y seguir contando. 60 conviene a la mayoría de las caras.</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Maquillaje</translation>
    </message>
    <message>
        <source>Evens the colour of the skin. To the right more is laid on.</source>
        <translation>Iguala el color de la piel. Hacia la derecha se aplica más.</translation>
    </message>
    <message>
        <source>Keep a little grain</source>
        <translation>Conservar algo de grano</translation>
    </message>
    <message>
        <source>Smooths unevenly, so that skin does not look like plastic.</source>
        <translation>Suaviza de forma desigual, para que la piel no parezca plástico.</translation>
    </message>
    <message>
        <source>Blend with the original</source>
        <translation>Mezclar con el original</translation>
    </message>
    <message>
        <source>Is kept while the program runs; it changes no picture.</source>
        <translation>Se conserva mientras el programa funciona; no cambia ninguna imagen.</translation>
    </message>
    <message>
        <source>Measure the skin</source>
        <translation>Medir la piel</translation>
    </message>
    <message>
        <source>Takes the colour of the skin from this portrait and not an average.</source>
        <translation>Toma el color de la piel de este retrato y no un promedio.</translation>
    </message>
    <message>
        <source>Show what counts as skin</source>
        <translation>Mostrar lo que cuenta como piel</translation>
    </message>
    <message>
        <source>Shows the skin in white, to set the controls by.</source>
        <translation>Muestra la piel en blanco, para ajustar los controles.</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Suavizar</translation>
    </message>
    <message>
        <source>Smooths surfaces and leaves edges: the portrait before the key, or the finished picture.</source>
        <translation>Suaviza superficies y respeta los bordes: el retrato antes del recorte o la imagen terminada.</translation>
    </message>
    <message>
        <source>To the right surfaces grow smoother; 0 changes nothing.</source>
        <translation>Hacia la derecha las superficies se suavizan; 0 no cambia nada.</translation>
    </message>
    <message>
        <source>How much of the texture is mixed in; to the right more.</source>
        <translation>Cuánta textura se mezcla; hacia la derecha más.</translation>
    </message>
    <message>
        <source>Darker to the left, brighter to the right; 50 leaves it.</source>
        <translation>Más oscuro a la izquierda, más claro a la derecha; 50 lo deja.</translation>
    </message>
    <message>
        <source>How deep the surface is; 50 leaves it as its picture is.</source>
        <translation>Lo profunda que es la superficie; 50 la deja como su imagen.</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsión</translation>
    </message>
    <message>
        <source>How far the surface moves the picture about. Above 10 it tears faces.</source>
        <translation>Cuánto mueve la superficie la imagen. Por encima de 10 rompe las caras.</translation>
    </message>
    <message>
        <source>Light parts</source>
        <translation>Partes claras</translation>
    </message>
    <message>
        <source>Dark parts</source>
        <translation>Partes oscuras</translation>
    </message>
    <message>
        <source>Raised parts</source>
        <translation>Relieve</translation>
    </message>
    <message>
        <source>Whether the dark or the light parts of the texture rise.</source>
        <translation>Si sobresalen las partes oscuras o las claras de la textura.</translation>
    </message>
    <message>
        <source>Texture of the frame</source>
        <translation>Textura del marco</translation>
    </message>
    <message>
        <source>Texture of the second frame</source>
        <translation>Textura del segundo marco</translation>
    </message>
    <message>
        <source>Texture of the reflection</source>
        <translation>Textura del reflejo</translation>
    </message>
    <message>
        <source>Black and white, sepia</source>
        <translation>Blanco y negro, sepia</translation>
    </message>
    <message>
        <source>The colours of the portrait. Shape is kept with the picture and leaves its colours; the panel of silhouettes makes one.</source>
        <translation>Los colores del retrato. Forma se guarda con la imagen y deja sus colores; el grupo de siluetas hace una.</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>B/N</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>The colours of the background.</source>
        <translation>Los colores del fondo.</translation>
    </message>
    <message>
        <source>Puts the background out of focus, in thousandths of an inch on paper. To the right it grows softer.</source>
        <translation>Desenfoca el fondo, en milésimas de pulgada sobre papel. Hacia la derecha se suaviza.</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Toda la imagen</translation>
    </message>
    <message>
        <source>Softens the finished picture, in thousandths of an inch on paper. It wants a range above 0.</source>
        <translation>Suaviza la imagen terminada, en milésimas de pulgada sobre papel. Necesita un rango mayor que 0.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>How strong a detail may be and still be softened. To the left edges stay sharp.</source>
        <translation>Lo marcado que puede ser un detalle y aún suavizarse. Hacia la izquierda los bordes quedan nítidos.</translation>
    </message>
    <message>
        <source>Silhouette</source>
        <translation>Silueta</translation>
    </message>
    <message>
        <source>Show a silhouette</source>
        <translation>Mostrar una silueta</translation>
    </message>
    <message>
        <source>The portrait becomes a shape in one colour, or cut out of a picture.</source>
        <translation>El retrato se convierte en una forma de un color o recortada de una imagen.</translation>
    </message>
    <message>
        <source>Moves the picture inside the shape; 50 leaves it in place.</source>
        <translation>Mueve la imagen dentro de la forma; 50 la deja en su sitio.</translation>
    </message>
    <message>
        <source>Output sizes</source>
        <translation>Tamaños de salida</translation>
    </message>
    <message>
        <source>Print pages</source>
        <translation>Páginas de impresión</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Pages to print on, with places for pictures</source>
        <translation>Páginas para imprimir, con lugares para imágenes</translation>
    </message>
    <message>
        <source>Behind the subject, over the background&apos;s overlay</source>
        <translation>Detrás de la persona, sobre la capa del fondo</translation>
    </message>
    <message>
        <source>Over the subject</source>
        <translation>Sobre la persona</translation>
    </message>
    <message>
        <source>Over the subject&apos;s overlay</source>
        <translation>Sobre la capa de la persona</translation>
    </message>
    <message>
        <source>Over everything but frames</source>
        <translation>Sobre todo menos los marcos</translation>
    </message>
    <message>
        <source>How wide the item is, in percent.</source>
        <translation>La anchura del elemento, en porcentaje.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>How high the item is, in percent.</source>
        <translation>La altura del elemento, en porcentaje.</translation>
    </message>
    <message>
        <source>Of the letters, in points.</source>
        <translation>De las letras, en puntos.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Heavier letters</source>
        <translation>Letras más gruesas</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Slanted letters</source>
        <translation>Letras inclinadas</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Where shorter lines stand</source>
        <translation>Dónde quedan las líneas más cortas</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>What is drawn of them</source>
        <translation>Qué se dibuja de ellas</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>Suavidad de la sombra</translation>
    </message>
    <message>
        <source>How soft the edge of the letters&apos; shadow is.</source>
        <translation>Lo suave que es el borde de la sombra de las letras.</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Sombra a la derecha</translation>
    </message>
    <message>
        <source>How far the letters&apos; shadow stands to the right; below 0 to the left.</source>
        <translation>Cuánto se aparta la sombra hacia la derecha; por debajo de 0, a la izquierda.</translation>
    </message>
    <message>
        <source>Shadow upward</source>
        <translation>Sombra hacia arriba</translation>
    </message>
    <message>
        <source>How far the letters&apos; shadow stands above them; below 0 under them.</source>
        <translation>Cuánto se aparta la sombra hacia arriba; por debajo de 0, hacia abajo.</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Texto elegido</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>At 0 the picture cannot be seen, at 100 it hides what is below.</source>
        <translation>Con 0 la imagen no se ve; con 100 oculta lo que hay debajo.</translation>
    </message>
    <message>
        <source>Selected picture</source>
        <translation>Imagen elegida</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Color de las letras</translation>
    </message>
    <message>
        <source>Fills the letters</source>
        <translation>Rellena las letras</translation>
    </message>
    <message>
        <source>Select Font Fill Color</source>
        <translation>Elegir el color de relleno de las letras</translation>
    </message>
    <message>
        <source>Colour of the outline</source>
        <translation>Color del contorno</translation>
    </message>
    <message>
        <source>Goes round the letters</source>
        <translation>Rodea las letras</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Of the letters&apos; shadow</source>
        <translation>De la sombra de las letras</translation>
    </message>
    <message>
        <source>Select Font Shadow Color</source>
        <translation>Elegir el color de la sombra de las letras</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>What the item lies over, and what covers it</source>
        <translation>Sobre qué está el elemento y qué lo cubre</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>What stands on the picture, in as many lines as you like</source>
        <translation>Lo que aparece en la imagen, en las líneas que se quiera</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>The typeface of the words</source>
        <translation>El tipo de letra del texto</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediano</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Extra large</source>
        <translation>Muy grande</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Arriba en el centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>En medio a la izquierda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>En medio</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>En medio a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Abajo en el centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>By the ground</source>
        <translation>Según el fondo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Shadow of the words</source>
        <translation>Sombra del texto</translation>
    </message>
    <message>
        <source>Makes the words stand out from an unquiet ground.</source>
        <translation>Hace que el texto destaque sobre un fondo inquieto.</translation>
    </message>
    <message>
        <source>One line on the picture; @filename puts the portrait&apos;s name.</source>
        <translation>Una línea en la imagen; @filename pone el nombre del retrato.</translation>
    </message>
    <message>
        <source>How large the words are</source>
        <translation>Lo grande que es el texto</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Where the words stand</source>
        <translation>Dónde está el texto</translation>
    </message>
    <message>
        <source>White, black, or what can be read best on the ground</source>
        <translation>Blanco, negro o lo que mejor se lea sobre el fondo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Words and pictures on the picture</source>
        <translation>Textos e imágenes sobre la imagen</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Textos e imágenes</translation>
    </message>
    <message>
        <source>Insert...</source>
        <translation>Insertar...</translation>
    </message>
    <message>
        <source>Insert what is filled in for each portrait</source>
        <translation>Insertar lo que se rellena en cada retrato</translation>
    </message>
    <message>
        <source>File name, number, date or time, filled in for each portrait</source>
        <translation>Nombre del archivo, número, fecha u hora, rellenados en cada retrato</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>Erase Foreground</source>
        <translation>Borrar primer plano</translation>
    </message>
    <message>
        <source>Takes the portrait away, so that the background shows</source>
        <translation>Quita el retrato y deja ver el fondo</translation>
    </message>
    <message>
        <source>Restore Foreground</source>
        <translation>Recuperar primer plano</translation>
    </message>
    <message>
        <source>Brings back what the key took from the portrait</source>
        <translation>Recupera lo que el recorte quitó del retrato</translation>
    </message>
    <message>
        <source>Blend Foreground</source>
        <translation>Mezclar primer plano</translation>
    </message>
    <message>
        <source>Mixes portrait and background as the slider says</source>
        <translation>Mezcla retrato y fondo según el control</translation>
    </message>
    <message>
        <source>Restore Hair</source>
        <translation>Recuperar pelo</translation>
    </message>
    <message>
        <source>Brings hair of the chosen colour back, without the screen in it</source>
        <translation>Recupera el pelo del color elegido, sin la tela en él</translation>
    </message>
    <message>
        <source>Remove Green Spill</source>
        <translation>Quitar reflejo verde</translation>
    </message>
    <message>
        <source>Takes the screen&apos;s light off skin, hair and clothes</source>
        <translation>Quita la luz de la tela de piel, pelo y ropa</translation>
    </message>
    <message>
        <source>Filter Color</source>
        <translation>Filtrar color</translation>
    </message>
    <message>
        <source>Keeps what is near the chosen colour, and takes the screen out of it</source>
        <translation>Conserva lo cercano al color elegido y le quita la tela</translation>
    </message>
    <message>
        <source>Blend Edge</source>
        <translation>Mezclar borde</translation>
    </message>
    <message>
        <source>Softens an edge where green is near</source>
        <translation>Suaviza un borde donde hay verde cerca</translation>
    </message>
    <message>
        <source>Restore Black</source>
        <translation>Recuperar negro</translation>
    </message>
    <message>
        <source>Makes dark places grey again that turned green</source>
        <translation>Vuelve grises las zonas oscuras que quedaron verdes</translation>
    </message>
    <message>
        <source>Make Whiter</source>
        <translation>Blanquear</translation>
    </message>
    <message>
        <source>Takes a tint off what is nearly white, such as a veil</source>
        <translation>Quita el tinte de lo casi blanco, como un velo</translation>
    </message>
    <message>
        <source>Makes darker or brighter</source>
        <translation>Oscurece o aclara</translation>
    </message>
    <message>
        <source>Less or more contrast</source>
        <translation>Menos o más contraste</translation>
    </message>
    <message>
        <source>Makes a place unsharp</source>
        <translation>Desenfoca una zona</translation>
    </message>
    <message>
        <source>Evens out the light of skin and cloth, and leaves its colour</source>
        <translation>Iguala la luz de piel y tela, y deja su color</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Pintar</translation>
    </message>
    <message>
        <source>Paints with the chosen colour</source>
        <translation>Pinta con el color elegido</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies from the place where A was pressed on the picture</source>
        <translation>Copia del lugar donde se pulsó A sobre la imagen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Protects what is near a colour from all the other tools</source>
        <translation>Protege lo cercano a un color de las demás herramientas</translation>
    </message>
    <message>
        <source>Keep Grayscale</source>
        <translation>Conservar tonos</translation>
    </message>
    <message>
        <source>Erase only if green</source>
        <translation>Borrar solo lo verde</translation>
    </message>
    <message>
        <source>Restore Green Areas</source>
        <translation>Recuperar también verdes</translation>
    </message>
    <message>
        <source>Lock Anchor</source>
        <translation>Fijar ancla</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Invertir selección</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Mezcla</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primer plano</translation>
    </message>
    <message>
        <source>Darker</source>
        <translation>Más oscuro</translation>
    </message>
    <message>
        <source>Brighter</source>
        <translation>Más claro</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Edge Sample</source>
        <translation>Muestra del borde</translation>
    </message>
    <message>
        <source>Blur Radius</source>
        <translation>Radio del desenfoque</translation>
    </message>
    <message>
        <source>Smooth Radius</source>
        <translation>Radio del suavizado</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Aerógrafo</translation>
    </message>
    <message>
        <source>Mends the finished picture by hand</source>
        <translation>Retoca a mano la imagen terminada</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Steps and edits</source>
        <translation>Pasos y trazos</translation>
    </message>
    <message>
        <source>Folders of the batch</source>
        <translation>Carpetas del lote</translation>
    </message>
    <message>
        <source>Files and names</source>
        <translation>Archivos y nombres</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Proceso</translation>
    </message>
    <message>
        <source>What will be made</source>
        <translation>Qué se hará</translation>
    </message>
    <message>
        <source>Last pictures</source>
        <translation>Últimas imágenes</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fallos</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lote</translation>
    </message>
    <message>
        <source>Whole folders of portraits over folders of backgrounds</source>
        <translation>Carpetas enteras de retratos sobre carpetas de fondos</translation>
    </message>
    <message>
        <source>Portraits</source>
        <translation>Retratos</translation>
    </message>
    <message>
        <source>The folder with the portraits; without one the present portrait is taken</source>
        <translation>La carpeta de los retratos; sin ella se toma el retrato actual</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Fondos</translation>
    </message>
    <message>
        <source>Every portrait is laid over every background of this folder; without one over the present background</source>
        <translation>Cada retrato se pone sobre cada fondo de esta carpeta; sin ella, sobre el fondo actual</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Estados</translation>
    </message>
    <message>
        <source>State files, each of which makes pictures of its own; without a folder the present settings are taken</source>
        <translation>Archivos de estado; cada uno hace sus propias imágenes; sin carpeta se toman los ajustes actuales</translation>
    </message>
    <message>
        <source>Finished pictures</source>
        <translation>Imágenes terminadas</translation>
    </message>
    <message>
        <source>The folder into which the pictures go</source>
        <translation>La carpeta donde van las imágenes</translation>
    </message>
    <message>
        <source>Overlay over the background</source>
        <translation>Capa sobre el fondo</translation>
    </message>
    <message>
        <source>A picture with clear parts between background and portrait. A file can be dropped here.</source>
        <translation>Una imagen con partes transparentes entre el fondo y el retrato. Se puede soltar aquí un archivo.</translation>
    </message>
    <message>
        <source>Select Background Overlay</source>
        <translation>Elegir la capa del fondo</translation>
    </message>
    <message>
        <source>No background overlay loaded</source>
        <translation>Ninguna capa sobre el fondo</translation>
    </message>
    <message>
        <source>Overlay over the portrait</source>
        <translation>Capa sobre el retrato</translation>
    </message>
    <message>
        <source>A picture with clear parts over the portrait. A file can be dropped here.</source>
        <translation>Una imagen con partes transparentes sobre el retrato. Se puede soltar aquí un archivo.</translation>
    </message>
    <message>
        <source>Select Forground Overlay</source>
        <translation>Elegir la capa del retrato</translation>
    </message>
    <message>
        <source>No foreground overlay loaded</source>
        <translation>Ninguna capa sobre el retrato</translation>
    </message>
    <message>
        <source>Overlay over the whole</source>
        <translation>Capa sobre el conjunto</translation>
    </message>
    <message>
        <source>A picture with clear parts over everything, such as a frame. A file can be dropped here.</source>
        <translation>Una imagen con partes transparentes sobre todo, como un marco. Se puede soltar aquí un archivo.</translation>
    </message>
    <message>
        <source>Select Frame Overlay</source>
        <translation>Elegir la capa del conjunto</translation>
    </message>
    <message>
        <source>No frame overlay loaded</source>
        <translation>Ninguna capa sobre el conjunto</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Floor, back</source>
        <translation>Suelo, atrás</translation>
    </message>
    <message>
        <source>A shadow on the floor, from the feet away from the viewer.</source>
        <translation>Una sombra en el suelo, desde los pies hacia el fondo.</translation>
    </message>
    <message>
        <source>Wall, back</source>
        <translation>Pared, atrás</translation>
    </message>
    <message>
        <source>A shadow away from the viewer over the floor and up a wall.</source>
        <translation>Una sombra hacia el fondo, por el suelo y por una pared.</translation>
    </message>
    <message>
        <source>Takes the frame away.</source>
        <translation>Quita el marco.</translation>
    </message>
    <message>
        <source>A frame along the four sides.</source>
        <translation>Un marco a lo largo de los cuatro lados.</translation>
    </message>
    <message>
        <source>A frame around an oval.</source>
        <translation>Un marco alrededor de un óvalo.</translation>
    </message>
    <message>
        <source>A frame around a heart.</source>
        <translation>Un marco alrededor de un corazón.</translation>
    </message>
    <message>
        <source>A frame with teeth like torn paper.</source>
        <translation>Un marco con dientes como de papel roto.</translation>
    </message>
    <message>
        <source>A frame of one colour.</source>
        <translation>Un marco de un solo color.</translation>
    </message>
    <message>
        <source>A frame of the picture itself, blurred.</source>
        <translation>Un marco de la propia imagen, desenfocada.</translation>
    </message>
    <message>
        <source>A frame of the background without the subject.</source>
        <translation>Un marco del fondo sin la persona.</translation>
    </message>
    <message>
        <source>Walnut</source>
        <translation>Nogal</translation>
    </message>
    <message>
        <source>A frame of dark wood.</source>
        <translation>Un marco de madera oscura.</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Oro</translation>
    </message>
    <message>
        <source>A frame of brushed gold.</source>
        <translation>Un marco de oro cepillado.</translation>
    </message>
    <message>
        <source>Marble</source>
        <translation>Mármol</translation>
    </message>
    <message>
        <source>A frame of pale marble.</source>
        <translation>Un marco de mármol claro.</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Terciopelo</translation>
    </message>
    <message>
        <source>A frame of red velvet.</source>
        <translation>Un marco de terciopelo rojo.</translation>
    </message>
    <message>
        <source>Takes the light away.</source>
        <translation>Quita la luz.</translation>
    </message>
    <message>
        <source>Brighter at one side, darker at the other.</source>
        <translation>Más claro por un lado, más oscuro por el otro.</translation>
    </message>
    <message>
        <source>A spot of light behind the head.</source>
        <translation>Un foco de luz detrás de la cabeza.</translation>
    </message>
    <message>
        <source>A beam of light from above.</source>
        <translation>Un haz de luz desde arriba.</translation>
    </message>
    <message>
        <source>A halo around the subject.</source>
        <translation>Un halo alrededor de la persona.</translation>
    </message>
    <message>
        <source>The picture is no drawing.</source>
        <translation>La imagen no es un dibujo.</translation>
    </message>
    <message>
        <source>Black lines and strong colours.</source>
        <translation>Líneas negras y colores fuertes.</translation>
    </message>
    <message>
        <source>A soft pencil sketch.</source>
        <translation>Un boceto suave a lápiz.</translation>
    </message>
    <message>
        <source>Hatched with a pencil.</source>
        <translation>Sombreado a lápiz.</translation>
    </message>
    <message>
        <source>Hatched on old parchment.</source>
        <translation>Sombreado sobre pergamino viejo.</translation>
    </message>
    <message>
        <source>Takes the texture away.</source>
        <translation>Quita la textura.</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>As on a painter&apos;s canvas.</source>
        <translation>Como sobre el lienzo de un pintor.</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lino</translation>
    </message>
    <message>
        <source>As on finely woven linen.</source>
        <translation>Como sobre lino de tejido fino.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>As on rough drawing paper.</source>
        <translation>Como sobre papel de dibujo rugoso.</translation>
    </message>
    <message>
        <source>Takes the overlays away.</source>
        <translation>Quita las capas.</translation>
    </message>
    <message>
        <source>A thin golden frame.</source>
        <translation>Un marco dorado fino.</translation>
    </message>
    <message>
        <source>Graduation</source>
        <translation>Graduación</translation>
    </message>
    <message>
        <source>A set of overlays for graduations.</source>
        <translation>Capas para graduaciones.</translation>
    </message>
    <message>
        <source>Winter</source>
        <translation>Invierno</translation>
    </message>
    <message>
        <source>A set of overlays for winter.</source>
        <translation>Capas para el invierno.</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Fiesta</translation>
    </message>
    <message>
        <source>A set of overlays for parties.</source>
        <translation>Capas para fiestas.</translation>
    </message>
    <message>
        <source>Sets the key for this colour of hair.</source>
        <translation>Ajusta el croma a este color de pelo.</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Sends the finished picture by mail</source>
        <translation>Envía la imagen terminada por correo</translation>
    </message>
    <message>
        <source>Sheets to be printed</source>
        <translation>Hojas por imprimir</translation>
    </message>
    <message>
        <source>A set of overlays of your own.</source>
        <translation>Un juego propio de capas superpuestas.</translation>
    </message>
    <message>
        <source>Print a folder</source>
        <translation>Imprimir una carpeta</translation>
    </message>
    <message>
        <source>Sort photos by shape</source>
        <translation>Separar fotos por formato</translation>
    </message>
    <message>
        <source>Photo booth</source>
        <translation>Fotomatón</translation>
    </message>
    <message>
        <source>This guest</source>
        <translation>Este invitado</translation>
    </message>
    <message>
        <source>Text on the picture</source>
        <translation>Texto en la imagen</translation>
    </message>
    <message>
        <source>How the booth is doing</source>
        <translation>Estado del fotomatón</translation>
    </message>
    <message>
        <source>The photo booth: one press for each guest</source>
        <translation>El fotomatón: una pulsación para cada invitado</translation>
    </message>
    <message>
        <source>Where the camera puts the portraits</source>
        <translation>Donde la cámara deja los retratos</translation>
    </message>
    <message>
        <source>Backgrounds, portrait layout</source>
        <translation>Fondos, formato vertical</translation>
    </message>
    <message>
        <source>A state file of the same name beside a background is its recipe</source>
        <translation>Un archivo de estado del mismo nombre junto a un fondo es su receta</translation>
    </message>
    <message>
        <source>Backgrounds, landscape layout</source>
        <translation>Fondos, formato horizontal</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Where the finished pictures go, and a ticket for each press</source>
        <translation>Donde van las imágenes terminadas, y un tique por cada pulsación</translation>
    </message>
</context>
<context>
    <name>ShortcutDialog</name>
    <message>
        <source>The desktop takes this key itself.</source>
        <translation>El escritorio usa esta tecla.</translation>
    </message>
    <message>
        <source>Lists, fields and sliders need this key themselves.</source>
        <translation>Las listas, los campos y los controles necesitan esta tecla.</translation>
    </message>
    <message>
        <source>A key that is held stands alone, without Ctrl, Alt or Shift.</source>
        <translation>Una tecla que se mantiene pulsada va sola, sin Ctrl, Alt ni Mayús.</translation>
    </message>
</context>
<context>
    <name>Story</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, limit %2</source>
        <translation>%1, límite %2</translation>
    </message>
    <message>
        <source>Nothing is keyed: the portrait is shown as it is.</source>
        <translation>No se recorta nada: el retrato se muestra tal cual.</translation>
    </message>
    <message>
        <source>The colour that the key takes as screen is shown instead.</source>
        <translation>En su lugar se muestra el color que se toma por pantalla.</translation>
    </message>
    <message>
        <source>The map of the green guard is shown instead.</source>
        <translation>En su lugar se muestra el mapa de la protección del verde.</translation>
    </message>
    <message>
        <source>Clipped away.</source>
        <translation>Recortado.</translation>
    </message>
    <message>
        <source>Subject: dark (%1) and near grey (%2).</source>
        <translation>Sujeto: oscuro (%1) y casi gris (%2).</translation>
    </message>
    <message>
        <source>Screen, brighter or darker: its hue fits (distance %1), and it is light enough (%2).</source>
        <translation>Pantalla, más clara o más oscura: su tono encaja (distancia %1) y es bastante clara (%2).</translation>
    </message>
    <message>
        <source>Screen: nearly its very colour (distance %1).</source>
        <translation>Pantalla: casi su mismo color (distancia %1).</translation>
    </message>
    <message>
        <source>Subject: red or blue leads green by more than 40, which no screen does.</source>
        <translation>Sujeto: el rojo o el azul supera al verde en más de 40, lo que no hace ninguna pantalla.</translation>
    </message>
    <message>
        <source>A mix of subject and screen (distance from the screen&apos;s hue %1).</source>
        <translation>Una mezcla de sujeto y pantalla (distancia al tono de la pantalla %1).</translation>
    </message>
    <message>
        <source>The refined key decided, by what lies around the pixel.</source>
        <translation>Decidió el croma refinado, por lo que rodea al píxel.</translation>
    </message>
    <message>
        <source>Protected: it keeps the portrait&apos;s own colour.</source>
        <translation>Protegido: conserva el color propio del retrato.</translation>
    </message>
    <message>
        <source>Not protected: it is connected to the screen at the border.</source>
        <translation>Sin proteger: está unido a la pantalla del borde.</translation>
    </message>
    <message>
        <source>Not protected: the screen&apos;s colour inside of the subject.</source>
        <translation>Sin proteger: el color de la pantalla dentro del sujeto.</translation>
    </message>
    <message>
        <source>The colour of the protected clothes.</source>
        <translation>El color de la ropa protegida.</translation>
    </message>
    <message>
        <source>Not protected: at the edge of the subject.</source>
        <translation>Sin proteger: en el borde del sujeto.</translation>
    </message>
    <message>
        <source>Not the screen&apos;s colour.</source>
        <translation>No es el color de la pantalla.</translation>
    </message>
    <message>
        <source>Off.</source>
        <translation>Desactivada.</translation>
    </message>
    <message>
        <source>%1 of 255, %2</source>
        <translation>%1 de 255, %2</translation>
    </message>
    <message>
        <source>Nothing of the subject is left here.</source>
        <translation>Aquí no queda nada del sujeto.</translation>
    </message>
    <message>
        <source>about %1, worked back from the result</source>
        <translation>aproximadamente %1, calculado desde el resultado</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1, y %2</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Seen by the key</source>
        <translation>Visto por el croma</translation>
    </message>
    <message>
        <source>Screen here</source>
        <translation>Pantalla aquí</translation>
    </message>
    <message>
        <source>The key</source>
        <translation>El croma</translation>
    </message>
    <message>
        <source>Its share</source>
        <translation>Su parte</translation>
    </message>
    <message>
        <source>%1, as a mix of hair and screen</source>
        <translation>%1, como mezcla de pelo y pantalla</translation>
    </message>
    <message>
        <source>Green guard</source>
        <translation>Protección del verde</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>Color propio</translation>
    </message>
    <message>
        <source>Spill taken away</source>
        <translation>Luz derramada quitada</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>x %1  y %2    %3    alpha %4 %    spill %5</source>
        <translation>x %1  y %2    %3    alfa %4 %    derrame %5</translation>
    </message>
</context>
<context>
    <name>tavrin::ActionRow</name>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
</context>
<context>
    <name>tavrin::ActionSearch</name>
    <message>
        <source>Find an Action</source>
        <translation>Buscar una acción</translation>
    </message>
    <message>
        <source>What to do, or which control</source>
        <translation>Qué hacer, o qué control</translation>
    </message>
    <message>
        <source>Words in any order; arrows choose, Enter takes</source>
        <translation>Palabras en cualquier orden; las flechas eligen, Intro toma</translation>
    </message>
    <message>
        <source>Commands and controls</source>
        <translation>Órdenes y controles</translation>
    </message>
    <message>
        <source>%1   (%2)</source>
        <translation>%1   (%2)</translation>
    </message>
    <message>
        <source>Nothing has these words.</source>
        <translation>Nada tiene estas palabras.</translation>
    </message>
</context>
<context>
    <name>tavrin::AdjustPage</name>
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
    <name>tavrin::Airbrush</name>
    <message>
        <source>Airbrush</source>
        <translation>Aerógrafo</translation>
    </message>
    <message>
        <source>Save Edits</source>
        <translation>Guardar trazos</translation>
    </message>
    <message>
        <source>Edits (*.edits)</source>
        <translation>Trazos (*.edits)</translation>
    </message>
    <message>
        <source>Load Edits</source>
        <translation>Cargar trazos</translation>
    </message>
    <message>
        <source>Edits (*.edits);;All files (*)</source>
        <translation>Trazos (*.edits);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The edits cannot be saved.</source>
        <translation>No se pueden guardar los trazos.</translation>
    </message>
    <message>
        <source>Not all edits are in the file.</source>
        <translation>No todos los trazos están en el archivo.</translation>
    </message>
    <message>
        <source>%1 holds %2 items, and there were %3 more.</source>
        <translation>%1 admite %2 entradas, y había %3 más.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>The edits cannot be loaded.</source>
        <translation>No se pueden cargar los trazos.</translation>
    </message>
    <message>
        <source>The edits were made for a picture of %1 x %2 pixels, and this one has %3 x %4: their places go with its height.</source>
        <translation>Los trazos se hicieron para una imagen de %1 x %2 píxeles, y esta tiene %3 x %4: sus lugares siguen la altura.</translation>
    </message>
    <message>
        <source>The file has more than %1 items; %2 were left out.</source>
        <translation>El archivo tiene más de %1 entradas; se omitieron %2.</translation>
    </message>
    <message>
        <source>Items of kinds that are not known here were left out: %1.</source>
        <translation>Se omitieron entradas de tipo desconocido: %1.</translation>
    </message>
    <message>
        <source>The edits were loaded.</source>
        <translation>Se cargaron los trazos.</translation>
    </message>
    <message>
        <source>Replay &amp;Edits</source>
        <translation>Repetir &amp;trazos</translation>
    </message>
    <message>
        <source>Does again what was done with the airbrush, on the picture that stands</source>
        <translation>Repite sobre la imagen actual lo hecho con el aerógrafo</translation>
    </message>
    <message>
        <source>Sa&amp;ve Edits...</source>
        <translation>&amp;Guardar trazos...</translation>
    </message>
    <message>
        <source>Writes all strokes into a file, to be played on this or another picture</source>
        <translation>Escribe todos los trazos en un archivo, para esta u otra imagen</translation>
    </message>
    <message>
        <source>&amp;Load Edits...</source>
        <translation>&amp;Cargar trazos...</translation>
    </message>
    <message>
        <source>Plays the strokes of a file on this picture</source>
        <translation>Aplica los trazos de un archivo a esta imagen</translation>
    </message>
</context>
<context>
    <name>tavrin::BackgroundGrid</name>
    <message>
        <source>All Backgrounds</source>
        <translation>Todos los fondos</translation>
    </message>
    <message>
        <source>The portrait over each background</source>
        <translation>El retrato sobre cada fondo</translation>
    </message>
    <message>
        <source>No folder of backgrounds was chosen yet.</source>
        <translation>Aún no se ha elegido una carpeta de fondos.</translation>
    </message>
    <message>
        <source>%1 backgrounds. A click lays one behind the portrait.</source>
        <translation>%1 fondos. Un clic pone uno detrás del retrato.</translation>
    </message>
    <message>
        <source>%1 pictures are being made...</source>
        <translation>Se están haciendo %1 imágenes...</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchChoices</name>
    <message>
        <source>Go on as files arrive</source>
        <translation>Seguir cuando lleguen archivos</translation>
    </message>
    <message>
        <source>A run does not end; it takes portraits, backgrounds and states as they come</source>
        <translation>El proceso no termina; toma retratos, fondos y estados según llegan</translation>
    </message>
    <message>
        <source>Low resolution (kept only)</source>
        <translation>Baja resolución (solo se guarda)</translation>
    </message>
    <message>
        <source>Is kept with the settings; a run makes full pictures all the same</source>
        <translation>Se guarda con los ajustes; el proceso hace imágenes completas de todos modos</translation>
    </message>
    <message>
        <source>Subfolders are named like their background</source>
        <translation>Las subcarpetas se llaman como su fondo</translation>
    </message>
    <message>
        <source>Portraits lie in subfolders of the portraits&apos; folder; each is laid over the background of its subfolder&apos;s name</source>
        <translation>Los retratos están en subcarpetas de su carpeta; cada uno va sobre el fondo que se llama como su subcarpeta</translation>
    </message>
    <message>
        <source>Take the jobs from a list file</source>
        <translation>Tomar los trabajos de una lista</translation>
    </message>
    <message>
        <source>The first XML file in the portraits&apos; folder says what is made; it is moved into the folder SavedXML there as soon as it is read</source>
        <translation>El primer archivo XML de la carpeta de retratos dice qué se hace; al leerlo se mueve allí a la carpeta SavedXML</translation>
    </message>
    <message>
        <source>Type and names of the pictures, watching, lists</source>
        <translation>Tipo y nombres de las imágenes, vigilancia, listas</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Small files</source>
        <translation>Archivos pequeños</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Without loss, and can be clear in parts</source>
        <translation>Sin pérdida, y puede tener partes transparentes</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Without loss, for printers</source>
        <translation>Sin pérdida, para imprentas</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Joined</source>
        <translation>Unidos</translation>
    </message>
    <message>
        <source>The names of portrait, background and state, one behind the other</source>
        <translation>Los nombres de retrato, fondo y estado, uno tras otro</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>BatchFile1, BatchFile2 and so on; what lies there stays</source>
        <translation>BatchFile1, BatchFile2 y así; lo que ya está se queda</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>A folder for each background, and in it one for each state</source>
        <translation>Una carpeta por fondo, y dentro una por estado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchPage</name>
    <message>
        <source>Pictures in the batch</source>
        <translation>Imágenes del lote</translation>
    </message>
    <message>
        <source>In the history</source>
        <translation>En el historial</translation>
    </message>
    <message>
        <source>Start, stop and history</source>
        <translation>Inicio, parada e historial</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Makes the pictures one by one in this window, where each is seen</source>
        <translation>Hace las imágenes una a una en esta ventana, donde se ve cada una</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Ends the run after the picture in hand; the next run goes on there</source>
        <translation>Termina el proceso tras la imagen en curso; el siguiente sigue allí</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>Forgets what was made, so that a run makes all of it again</source>
        <translation>Olvida lo hecho, para que un proceso lo haga todo otra vez</translation>
    </message>
    <message>
        <source>Start fast</source>
        <translation>Inicio rápido</translation>
    </message>
    <message>
        <source>Makes the pictures beside this window, several at a time; the picture that is open stays. It has a history of its own in the folder of the pictures.</source>
        <translation>Hace las imágenes al lado de esta ventana, varias a la vez; la imagen abierta se queda. Tiene su propio historial en la carpeta de las imágenes.</translation>
    </message>
    <message>
        <source>Look ahead, fast</source>
        <translation>Ver antes, rápido</translation>
    </message>
    <message>
        <source>Lists what the fast run would make, and makes nothing</source>
        <translation>Muestra lo que haría el proceso rápido, sin hacer nada</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Intentar otra vez</translation>
    </message>
    <message>
        <source>Makes what failed once more, as soon as its cause is gone</source>
        <translation>Hace otra vez lo que falló, cuando la causa ya no está</translation>
    </message>
    <message>
        <source>Choose a Folder: %1</source>
        <translation>Elegir una carpeta: %1</translation>
    </message>
    <message>
        <source>The batch cannot start.</source>
        <translation>El lote no puede empezar.</translation>
    </message>
    <message>
        <source>The batch stops after the pictures in hand.</source>
        <translation>El lote para tras las imágenes en curso.</translation>
    </message>
    <message>
        <source>There is no list file in the portraits&apos; folder.</source>
        <translation>No hay ninguna lista en la carpeta de retratos.</translation>
    </message>
    <message>
        <source>The batch has ended early.</source>
        <translation>El lote terminó antes de tiempo.</translation>
    </message>
    <message>
        <source>Nothing: all of it was made before.</source>
        <translation>Nada: todo está ya hecho.</translation>
    </message>
    <message>
        <source>The batch has ended.</source>
        <translation>El lote ha terminado.</translation>
    </message>
    <message>
        <source>The batch has ended. %1</source>
        <translation>El lote ha terminado. %1</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchPrintPanel</name>
    <message>
        <source>Watch the folder</source>
        <translation>Vigilar la carpeta</translation>
    </message>
    <message>
        <source>Print a folder</source>
        <translation>Imprimir una carpeta</translation>
    </message>
    <message>
        <source>Prints every photo of a folder on the chosen page, and those that arrive while it is watched</source>
        <translation>Imprime cada foto de una carpeta en la página elegida y, mientras se vigila, también las que llegan</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>The printer to print on</source>
        <translation>La impresora en la que se imprime</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The run goes on and prints photos as they arrive in the folder</source>
        <translation>El proceso sigue e imprime las fotos a medida que llegan a la carpeta</translation>
    </message>
    <message>
        <source>The folder whose photos are printed</source>
        <translation>La carpeta cuyas fotos se imprimen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Chooses the folder whose photos are printed</source>
        <translation>Elige la carpeta cuyas fotos se imprimen</translation>
    </message>
    <message>
        <source>The print page that every photo is printed on</source>
        <translation>La página en la que se imprime cada foto</translation>
    </message>
    <message>
        <source>Shows the print pages and chooses the one to print on</source>
        <translation>Muestra las páginas de impresión y elige la que se usa</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Prints the photos that were not printed yet</source>
        <translation>Imprime las fotos que aún no se imprimieron</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Ends the run after the photo in hand</source>
        <translation>Termina después de la foto en curso</translation>
    </message>
    <message>
        <source>Print All Again</source>
        <translation>Reimprimir todo</translation>
    </message>
    <message>
        <source>Forgets which photos of the folder were printed</source>
        <translation>Olvida qué fotos de la carpeta se imprimieron</translation>
    </message>
    <message>
        <source>Photos:</source>
        <translation>Fotos:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Impresas:</translation>
    </message>
    <message>
        <source>Folder of Photos to Print</source>
        <translation>Carpeta de fotos para imprimir</translation>
    </message>
    <message>
        <source>Not everything of the folder is printed.</source>
        <translation>No se ha impreso todo lo de la carpeta.</translation>
    </message>
    <message>
        <source>There are no printers on this machine.</source>
        <translation>No hay impresoras en este equipo.</translation>
    </message>
    <message>
        <source>Batch Print Stopped</source>
        <translation>Impresión por lotes parada</translation>
    </message>
    <message>
        <source>Printing %1</source>
        <translation>Imprimiendo %1</translation>
    </message>
    <message>
        <source>Waiting for photos that arrive</source>
        <translation>Esperando fotos que lleguen</translation>
    </message>
    <message>
        <source>Waiting: %1</source>
        <translation>En espera: %1</translation>
    </message>
    <message>
        <source>Choose the folder whose photos are to be printed.</source>
        <translation>Elija la carpeta cuyas fotos se van a imprimir.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>La carpeta %1 no está.</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchProgress</name>
    <message>
        <source>Progress of the batch</source>
        <translation>Progreso del lote</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>Trabajando...</translation>
    </message>
    <message>
        <source>About %1 left</source>
        <translation>Quedan unos %1</translation>
    </message>
    <message>
        <source>Pictures made: %1, in %2</source>
        <translation>Imágenes hechas: %1, en %2</translation>
    </message>
    <message>
        <source>; made before: %1</source>
        <translation>; hechas antes: %1</translation>
    </message>
    <message>
        <source>; failed: %1</source>
        <translation>; fallidas: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::Binder</name>
    <message>
        <source>Reset %1</source>
        <translation>Restablecer %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1: no</translation>
    </message>
</context>
<context>
    <name>tavrin::BrushSlider</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1, number</source>
        <translation>%1, número</translation>
    </message>
</context>
<context>
    <name>tavrin::Chips</name>
    <message>
        <source>Set here; a click leads to the control</source>
        <translation>Ajustado aquí; un clic lleva al control</translation>
    </message>
    <message>
        <source>fewer</source>
        <translation>menos</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>Shows what else is set here, or only the first</source>
        <translation>Muestra lo demás ajustado aquí, o solo lo primero</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Switched on; a click leads to its controls</source>
        <translation>Activado; un clic lleva a sus controles</translation>
    </message>
    <message>
        <source>Switch it off</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Textos e imágenes</translation>
    </message>
    <message>
        <source>Texts and pictures: %1</source>
        <translation>Textos e imágenes: %1</translation>
    </message>
    <message>
        <source>On the picture; a click leads to the controls</source>
        <translation>Sobre la imagen; un clic lleva a los controles</translation>
    </message>
    <message>
        <source>Take all of them away</source>
        <translation>Quitarlos todos</translation>
    </message>
    <message>
        <source>Take all texts and pictures away</source>
        <translation>Quitar todos los textos e imágenes</translation>
    </message>
    <message>
        <source>Put back what it is at the start</source>
        <translation>Devolver lo que hay al inicio</translation>
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
    <name>tavrin::EditorPage</name>
    <message>
        <source>Radius follows the picture&apos;s size</source>
        <translation>El radio sigue el tamaño de la imagen</translation>
    </message>
    <message>
        <source>Strokes that are replayed at another size of the picture become as much thicker or thinner</source>
        <translation>Los trazos que se repiten con otro tamaño de imagen se hacen más gruesos o más finos en proporción</translation>
    </message>
    <message>
        <source>Keeps light and dark, and changes only the colour</source>
        <translation>Conserva luces y sombras y cambia solo el color</translation>
    </message>
    <message>
        <source>Leaves what has another hue than the screen</source>
        <translation>Deja lo que tiene otro tono que la tela</translation>
    </message>
    <message>
        <source>Brings back also what is as green as the screen</source>
        <translation>Recupera también lo que es tan verde como la tela</translation>
    </message>
    <message>
        <source>Every stroke begins at the anchor again</source>
        <translation>Cada trazo empieza de nuevo en el ancla</translation>
    </message>
    <message>
        <source>Protects what is not near the colour</source>
        <translation>Protege lo que no está cerca del color</translation>
    </message>
    <message>
        <source>The airbrush opens when the full picture is there.</source>
        <translation>El aerógrafo se abre cuando está la imagen completa.</translation>
    </message>
    <message>
        <source>Undo, replay and files of edits</source>
        <translation>Deshacer, repetir y archivos de trazos</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Herramienta</translation>
    </message>
    <message>
        <source>%1 (key %2)</source>
        <translation>%1 (tecla %2)</translation>
    </message>
    <message>
        <source>Radius, hardness, transparency, colour</source>
        <translation>Radio, dureza, opacidad, color</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>How wide the brush is; [ and ] on the picture</source>
        <translation>Lo ancho que es el pincel; [ y ] sobre la imagen</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>Dureza</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Duro</translation>
    </message>
    <message>
        <source>How far from its middle the brush has its full strength</source>
        <translation>Hasta dónde desde el centro el pincel tiene toda su fuerza</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Faint</source>
        <translation>Débil</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Plena</translation>
    </message>
    <message>
        <source>How much a stroke does in the middle of the brush</source>
        <translation>Cuánto hace un trazo en el centro del pincel</translation>
    </message>
    <message>
        <source>What this tool does, from its least to its most</source>
        <translation>Lo que hace esta herramienta, de menos a más</translation>
    </message>
    <message>
        <source>Colour...</source>
        <translation>Color...</translation>
    </message>
    <message>
        <source>The colour of this tool</source>
        <translation>El color de esta herramienta</translation>
    </message>
    <message>
        <source>From the picture</source>
        <translation>De la imagen</translation>
    </message>
    <message>
        <source>The next click on the picture takes its colour</source>
        <translation>El próximo clic en la imagen toma su color</translation>
    </message>
    <message>
        <source>No selection</source>
        <translation>Sin selección</translation>
    </message>
    <message>
        <source>Nothing is protected</source>
        <translation>Nada está protegido</translation>
    </message>
    <message>
        <source>Colours of the portrait</source>
        <translation>Colores del retrato</translation>
    </message>
    <message>
        <source>Protects by the colours that the portrait was taken with</source>
        <translation>Protege por los colores con que se tomó el retrato</translation>
    </message>
    <message>
        <source>Colours of the result</source>
        <translation>Colores del resultado</translation>
    </message>
    <message>
        <source>Protects by the colours that are seen</source>
        <translation>Protege por los colores que se ven</translation>
    </message>
    <message>
        <source>Pressure of a pen</source>
        <translation>Presión del lápiz</translation>
    </message>
    <message>
        <source>Changes nothing</source>
        <translation>No cambia nada</translation>
    </message>
    <message>
        <source>Changes the radius</source>
        <translation>Cambia el radio</translation>
    </message>
    <message>
        <source>Changes the strength</source>
        <translation>Cambia la fuerza</translation>
    </message>
    <message>
        <source>What a pen on a tablet changes by how hard it is pressed</source>
        <translation>Lo que cambia un lápiz de tableta según su presión</translation>
    </message>
    <message>
        <source>Show alpha</source>
        <translation>Mostrar alfa</translation>
    </message>
    <message>
        <source>Colour of the Tool</source>
        <translation>Color de la herramienta</translation>
    </message>
    <message>
        <source>The edits are replayed...</source>
        <translation>Se repiten los trazos...</translation>
    </message>
    <message>
        <source>%1 steps to take back, %2 MB on the disk; %3 of %4 items recorded</source>
        <translation>%1 pasos para deshacer, %2 MB en el disco; %3 de %4 entradas grabadas</translation>
    </message>
</context>
<context>
    <name>tavrin::EffectsPage</name>
    <message>
        <source>Progress of the smoothing of skin</source>
        <translation>Progreso del suavizado de la piel</translation>
    </message>
    <message>
        <source>The green guard is on.</source>
        <translation>La protección del verde está activa.</translation>
    </message>
    <message>
        <source>The picture is frozen into the background.</source>
        <translation>La imagen está congelada en el fondo.</translation>
    </message>
    <message>
        <source>Texture...</source>
        <translation>Textura...</translation>
    </message>
    <message>
        <source>Opens the texture of the picture; that of the frame stands below</source>
        <translation>Abre la textura de la imagen; la del marco está debajo</translation>
    </message>
    <message>
        <source>Opens the controls: %1</source>
        <translation>Abre los controles: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::EntryDialog</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Takes what is entered here</source>
        <translation>Toma lo que se ha escrito aquí</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tavrin::EventBooth</name>
    <message>
        <source>%1 was set aside.</source>
        <translation>%1 se ha apartado.</translation>
    </message>
    <message>
        <source>%1 waits.</source>
        <translation>%1 espera.</translation>
    </message>
    <message>
        <source>The picture of %1 stands.</source>
        <translation>La imagen de %1 está hecha.</translation>
    </message>
    <message>
        <source>Guests</source>
        <translation>Invitados</translation>
    </message>
    <message>
        <source>No folder of portraits was chosen yet: Setup...</source>
        <translation>Aún no se ha elegido una carpeta de retratos: Configurar…</translation>
    </message>
    <message>
        <source>Backgrounds of the booth</source>
        <translation>Fondos del fotomatón</translation>
    </message>
    <message>
        <source>No folder of backgrounds was chosen yet: Setup...</source>
        <translation>Aún no se ha elegido una carpeta de fondos: Configurar…</translation>
    </message>
    <message>
        <source>The recipe of the booth cannot be kept.</source>
        <translation>No se puede guardar la receta del fotomatón.</translation>
    </message>
    <message>
        <source>Main Window - Event Mode</source>
        <translation>Ventana principal - Modo de evento</translation>
    </message>
    <message>
        <source>Main Window - Adjust/Load Mode</source>
        <translation>Ventana principal - Ajustar/Cargar</translation>
    </message>
    <message>
        <source>No picture is made of this press.</source>
        <translation>De esta pulsación no sale ninguna imagen.</translation>
    </message>
    <message>
        <source>The recipe of this background cannot be used.</source>
        <translation>No se puede usar la receta de este fondo.</translation>
    </message>
    <message>
        <source>Add a line of text</source>
        <translation>Añadir una línea de texto</translation>
    </message>
    <message>
        <source>The text is not added.</source>
        <translation>El texto no se ha añadido.</translation>
    </message>
    <message>
        <source>Save the Counts</source>
        <translation>Guardar los recuentos</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>The counts cannot be written.</source>
        <translation>No se pueden escribir los recuentos.</translation>
    </message>
    <message>
        <source>Go to Portrait Layout</source>
        <translation>Al formato vertical</translation>
    </message>
    <message>
        <source>Go to Landscape Layout</source>
        <translation>Al formato horizontal</translation>
    </message>
    <message>
        <source>A press makes nothing while &quot;Save the State with Every Picture&quot; is off.</source>
        <translation>Una pulsación no hace nada mientras «Guardar el estado con cada imagen» está desactivado.</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>marco</translation>
    </message>
    <message>
        <source>texture</source>
        <translation>textura</translation>
    </message>
    <message>
        <source>reflection</source>
        <translation>reflejo</translation>
    </message>
    <message>
        <source>stars</source>
        <translation>estrellas</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>dibujo</translation>
    </message>
    <message>
        <source>smoothing</source>
        <translation>suavizado</translation>
    </message>
    <message>
        <source>The booth&apos;s pictures are made without: %1</source>
        <translation>Las imágenes del fotomatón se hacen sin: %1</translation>
    </message>
    <message>
        <source>The prints of the pack are not counted.</source>
        <translation>No se cuentan las copias del paquete.</translation>
    </message>
    <message>
        <source>The pack holds %1 prints now.</source>
        <translation>El paquete tiene ahora %1 copias.</translation>
    </message>
    <message>
        <source>A guest gets %1 copies at most, so that many are printed.</source>
        <translation>Un invitado recibe como máximo %1 copias; se imprimen esas.</translation>
    </message>
</context>
<context>
    <name>tavrin::EventPage</name>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Tickets</source>
        <translation>Tiques</translation>
    </message>
    <message>
        <source>Guest screen</source>
        <translation>Pantalla de invitados</translation>
    </message>
    <message>
        <source>Shows the picture and the backgrounds to the guests, on a second display where there is one</source>
        <translation>Muestra a los invitados la imagen y los fondos, en una segunda pantalla si la hay</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>From now on each press becomes a picture, beside what is done here</source>
        <translation>Desde ahora cada pulsación se convierte en una imagen, mientras aquí se sigue trabajando</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Ends after the picture in hand; presses that wait are made with the next start</source>
        <translation>Termina tras la imagen en curso; lo que espera se hace con el próximo inicio</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Folders, letter, print page and printer</source>
        <translation>Carpetas, carta, página de impresión e impresora</translation>
    </message>
    <message>
        <source>Turns to the other layout: its backgrounds, and the output size of its shape</source>
        <translation>Cambia al otro formato: sus fondos y el tamaño de salida de su forma</translation>
    </message>
    <message>
        <source>Start, stop, setup, layout</source>
        <translation>Iniciar, parar, configurar, formato</translation>
    </message>
    <message>
        <source>Search a portrait by name</source>
        <translation>Buscar un retrato por su nombre</translation>
    </message>
    <message>
        <source>Shows the first portrait whose name has these letters</source>
        <translation>Muestra el primer retrato cuyo nombre contiene estas letras</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Mail address or telephone number</source>
        <translation>Dirección de correo o número de teléfono</translation>
    </message>
    <message>
        <source>Where the picture goes by mail or as a text message</source>
        <translation>A dónde va la imagen por correo o como mensaje de texto</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Prints of the next picture, 1 to 10; 1 again after it</source>
        <translation>Copias de la próxima imagen, de 1 a 10; después otra vez 1</translation>
    </message>
    <message>
        <source>One print less</source>
        <translation>Una copia menos</translation>
    </message>
    <message>
        <source>One print more</source>
        <translation>Una copia más</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The picture is made and kept</source>
        <translation>La imagen se hace y se guarda</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>The picture is made and printed</source>
        <translation>La imagen se hace y se imprime</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>The picture is made and sent to the mail address</source>
        <translation>La imagen se hace y se envía a la dirección de correo</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Mensaje de texto</translation>
    </message>
    <message>
        <source>The picture is made and sent to the telephone number</source>
        <translation>La imagen se hace y se envía al número de teléfono</translation>
    </message>
    <message>
        <source>Save, print, mail, text message</source>
        <translation>Guardar, imprimir, correo, mensaje de texto</translation>
    </message>
    <message>
        <source>Line of text</source>
        <translation>Línea de texto</translation>
    </message>
    <message>
        <source>Such as the name of the guest</source>
        <translation>Por ejemplo, el nombre del invitado</translation>
    </message>
    <message>
        <source>Font of the line</source>
        <translation>Tipo de letra de la línea</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>Size of the line</source>
        <translation>Tamaño de la línea</translation>
    </message>
    <message>
        <source>Very large</source>
        <translation>Muy grande</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediano</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Colour of the line</source>
        <translation>Color de la línea</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>A shadow below the line, in the other colour</source>
        <translation>Una sombra bajo la línea, en el otro color</translation>
    </message>
    <message>
        <source>Add the text</source>
        <translation>Añadir el texto</translation>
    </message>
    <message>
        <source>Puts the line on the picture, where it can be moved with the mouse on &quot;Text&quot;</source>
        <translation>Pone la línea en la imagen, donde se mueve con el ratón en «Texto»</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Sign of life</source>
        <translation>Señal de vida</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Mails</source>
        <translation>Correos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>Most prints that one press gives</source>
        <translation>Máximo de copias que da una pulsación</translation>
    </message>
    <message>
        <source>Most copies a guest</source>
        <translation>Máximo de copias por invitado</translation>
    </message>
    <message>
        <source>Prints that a new pack of paper and ribbon gives</source>
        <translation>Copias que da un nuevo paquete de papel y cinta</translation>
    </message>
    <message>
        <source>New pack of prints</source>
        <translation>Nuevo paquete de copias</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>A new pack was put into the printer: its prints are counted down</source>
        <translation>Se ha puesto un paquete nuevo en la impresora: sus copias se descuentan</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Lo que ha fallado</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Intentar otra vez</translation>
    </message>
    <message>
        <source>Makes the tickets once more that were set aside</source>
        <translation>Hace otra vez los tiques apartados</translation>
    </message>
    <message>
        <source>Counts as CSV...</source>
        <translation>Recuentos como CSV…</translation>
    </message>
    <message>
        <source>Writes what each day gave into a table</source>
        <translation>Escribe en una tabla lo que dio cada día</translation>
    </message>
    <message>
        <source>Try again, counts</source>
        <translation>Reintentar, recuentos</translation>
    </message>
    <message>
        <source>%1, for %2 s</source>
        <translation>%1, desde hace %2 s</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>en espera: %1</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nada que hacer</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>hace %1 s</translation>
    </message>
    <message>
        <source>perhaps printed, see Print: %1</source>
        <translation>quizá impresas, ver Imprimir: %1</translation>
    </message>
    <message>
        <source>left in the pack: %1</source>
        <translation>quedan en el paquete: %1</translation>
    </message>
    <message>
        <source>to be looked at, see Mail: %1</source>
        <translation>por revisar, ver Correo: %1</translation>
    </message>
    <message>
        <source>%1 pictures, %2 prints, %3 mails</source>
        <translation>%1 imágenes, %2 copias, %3 correos</translation>
    </message>
</context>
<context>
    <name>tavrin::EventSetupPanel</name>
    <message>
        <source>Title of the mails</source>
        <translation>Título de los correos</translation>
    </message>
    <message>
        <source>Subject of what the guests get</source>
        <translation>Asunto de lo que reciben los invitados</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>How the pictures lie on the sheet</source>
        <translation>Cómo quedan las imágenes en la hoja</translation>
    </message>
    <message>
        <source>Text of the mails</source>
        <translation>Texto de los correos</translation>
    </message>
    <message>
        <source>What the guests read</source>
        <translation>Lo que leen los invitados</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Prints of the booth come from here</source>
        <translation>Por aquí salen las copias del fotomatón</translation>
    </message>
    <message>
        <source>Setup of the Booth</source>
        <translation>Configurar el fotomatón</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Shows the print pages with the picture in them</source>
        <translation>Muestra las páginas de impresión con la imagen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Keeps all of this and closes the panel</source>
        <translation>Guarda todo esto y cierra el panel</translation>
    </message>
    <message>
        <source>%1: choose a folder</source>
        <translation>%1: elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose a Folder: %1</source>
        <translation>Elegir una carpeta: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::FailureList</name>
    <message>
        <source>What could not be made</source>
        <translation>Lo que no se pudo hacer</translation>
    </message>
    <message>
        <source>Pictures that could not be made, each with its reason</source>
        <translation>Imágenes que no se pudieron hacer, cada una con su causa</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::FastBatch</name>
    <message>
        <source>The program tavrin-cli cannot be started: %1</source>
        <translation>No se puede iniciar el programa tavrin-cli: %1</translation>
    </message>
    <message>
        <source>The present settings cannot be handed over: %1</source>
        <translation>No se pueden entregar los ajustes actuales: %1</translation>
    </message>
    <message>
        <source>The fast batch broke off. What it has made is there; start it again for the rest.</source>
        <translation>El lote rápido se interrumpió. Lo que hizo está ahí; inícielo otra vez para el resto.</translation>
    </message>
</context>
<context>
    <name>tavrin::FolderRow</name>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Elegir: %1</translation>
    </message>
    <message>
        <source>Take none: %1</source>
        <translation>No tomar ninguna: %1</translation>
    </message>
    <message>
        <source>Take none</source>
        <translation>No tomar ninguna</translation>
    </message>
    <message>
        <source>Choose a folder for the finished pictures.</source>
        <translation>Elija una carpeta para las imágenes terminadas.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>La carpeta %1 no está.</translation>
    </message>
    <message>
        <source>Nothing may be written into the folder %1.</source>
        <translation>No se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>The folder %1 may not be read.</source>
        <translation>No se puede leer la carpeta %1.</translation>
    </message>
</context>
<context>
    <name>tavrin::GalleryDesk</name>
    <message>
        <source>Gallery</source>
        <translation>Galería</translation>
    </message>
    <message>
        <source>The gallery is being made.</source>
        <translation>Se está creando la galería.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>The gallery cannot be made.</source>
        <translation>No se puede crear la galería.</translation>
    </message>
    <message>
        <source>Adjustment %1 of the gallery</source>
        <translation>Ajuste %1 de la galería</translation>
    </message>
    <message>
        <source>Gallery of Ad&amp;justments...</source>
        <translation>Galería de a&amp;justes...</translation>
    </message>
    <message>
        <source>Shows the portrait under twelve settings of the key; a click takes one of them</source>
        <translation>Muestra el retrato con doce ajustes del recorte; un clic toma uno de ellos</translation>
    </message>
    <message>
        <source>Gallery of Back&amp;grounds...</source>
        <translation>Galería de &amp;fondos...</translation>
    </message>
    <message>
        <source>Shows the portrait over every background of the folder; a click takes one of them</source>
        <translation>Muestra el retrato sobre cada fondo de la carpeta; un clic toma uno de ellos</translation>
    </message>
    <message>
        <source>No folder of backgrounds is chosen, so the gallery is empty. The page &quot;Settings&quot; has that folder.</source>
        <translation>No hay ninguna carpeta de fondos elegida, así que la galería está vacía. La página «Ajustes» tiene esa carpeta.</translation>
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
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
</context>
<context>
    <name>tavrin::GuestScreen</name>
    <message>
        <source>Your picture</source>
        <translation>Su imagen</translation>
    </message>
    <message>
        <source>Backgrounds to choose from</source>
        <translation>Fondos para elegir</translation>
    </message>
    <message>
        <source>Backgrounds before these</source>
        <translation>Fondos anteriores</translation>
    </message>
    <message>
        <source>More backgrounds</source>
        <translation>Más fondos</translation>
    </message>
</context>
<context>
    <name>tavrin::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Steps of this portrait</source>
        <translation>Pasos de este retrato</translation>
    </message>
    <message>
        <source>A click goes back or forth to that step</source>
        <translation>Un clic va atrás o adelante hasta ese paso</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Al principio</translation>
    </message>
    <message>
        <source>%1, taken back</source>
        <translation>%1, deshecho</translation>
    </message>
</context>
<context>
    <name>tavrin::ItemTool</name>
    <message>
        <source>Place of an item</source>
        <translation>Posición de un elemento</translation>
    </message>
    <message>
        <source>Size of an item</source>
        <translation>Tamaño de un elemento</translation>
    </message>
    <message>
        <source>Are you shure you want to delete the text?</source>
        <translation>¿Seguro que quiere borrar el texto?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete an item</source>
        <translation>Borrar un elemento</translation>
    </message>
</context>
<context>
    <name>tavrin::LastPictures</name>
    <message>
        <source>Last pictures</source>
        <translation>Últimas imágenes</translation>
    </message>
    <message>
        <source>The pictures that were made last</source>
        <translation>Las últimas imágenes hechas</translation>
    </message>
</context>
<context>
    <name>tavrin::LengthField</name>
    <message>
        <source>%1 goes from %2 to %3.</source>
        <translation>%1 va de %2 a %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number; %2 stays as it was.</source>
        <translation>«%1» no es un número; %2 queda como estaba.</translation>
    </message>
</context>
<context>
    <name>tavrin::LookDesk</name>
    <message>
        <source>Looks and state files (*.qlx)</source>
        <translation>Aspectos y archivos de estado (*.qlx)</translation>
    </message>
    <message>
        <source>The look is copied. Ctrl+Shift+V pastes it on another portrait.</source>
        <translation>El aspecto está copiado. Ctrl+Mayús+V lo pega en otro retrato.</translation>
    </message>
    <message>
        <source>Portrait: %1</source>
        <translation>Retrato: %1</translation>
    </message>
    <message>
        <source>Background: %1</source>
        <translation>Fondo: %1</translation>
    </message>
    <message>
        <source>This portrait has that look already.</source>
        <translation>Este retrato ya tiene ese aspecto.</translation>
    </message>
    <message>
        <source>No look was copied yet. Ctrl+Shift+C copies the present one.</source>
        <translation>Aún no se ha copiado ningún aspecto. Ctrl+Mayús+C copia el actual.</translation>
    </message>
    <message>
        <source>Paste a Look</source>
        <translation>Pegar un aspecto</translation>
    </message>
    <message>
        <source>Paste a look</source>
        <translation>Pegar un aspecto</translation>
    </message>
    <message>
        <source>Paste a Look on %1 Portraits</source>
        <translation>Pegar un aspecto en %1 retratos</translation>
    </message>
    <message>
        <source>Select Portraits for the Look</source>
        <translation>Elegir los retratos para el aspecto</translation>
    </message>
    <message>
        <source>Save Look</source>
        <translation>Guardar aspecto</translation>
    </message>
    <message>
        <source>Name of the look:</source>
        <translation>Nombre del aspecto:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>There is a look %1 already. Replace it?</source>
        <translation>Ya hay un aspecto %1. ¿Sustituirlo?</translation>
    </message>
    <message>
        <source>The look is not saved.</source>
        <translation>El aspecto no se ha guardado.</translation>
    </message>
    <message>
        <source>Saved the look %1</source>
        <translation>Se ha guardado el aspecto %1</translation>
    </message>
    <message>
        <source>The look cannot be taken.</source>
        <translation>No se puede tomar el aspecto.</translation>
    </message>
    <message>
        <source>Take the Look %1</source>
        <translation>Tomar el aspecto %1</translation>
    </message>
    <message>
        <source>Look %1</source>
        <translation>Aspecto %1</translation>
    </message>
    <message>
        <source>Rename Look</source>
        <translation>Renombrar aspecto</translation>
    </message>
    <message>
        <source>New name of %1:</source>
        <translation>Nombre nuevo de %1:</translation>
    </message>
    <message>
        <source>The look keeps its name.</source>
        <translation>El aspecto conserva su nombre.</translation>
    </message>
    <message>
        <source>The look is not deleted.</source>
        <translation>El aspecto no se ha borrado.</translation>
    </message>
    <message>
        <source>Delete the look %1</source>
        <translation>Borrar el aspecto %1</translation>
    </message>
    <message>
        <source>The look does not come back.</source>
        <translation>El aspecto no vuelve.</translation>
    </message>
    <message>
        <source>Deleted the look %1. Undo brings it back.</source>
        <translation>Se ha borrado el aspecto %1. Deshacer lo recupera.</translation>
    </message>
    <message>
        <source>Import Look</source>
        <translation>Importar aspecto</translation>
    </message>
    <message>
        <source>There is a look %1 already.</source>
        <translation>Ya hay un aspecto %1.</translation>
    </message>
    <message>
        <source>&amp;Skip It</source>
        <translation>&amp;Omitirlo</translation>
    </message>
    <message>
        <source>Import under &amp;Another Name</source>
        <translation>Importar con &amp;otro nombre</translation>
    </message>
    <message>
        <source>&amp;Replace the Old One</source>
        <translation>&amp;Sustituir el antiguo</translation>
    </message>
    <message>
        <source>Nothing was imported; the look %1 is the old one.</source>
        <translation>No se ha importado nada; el aspecto %1 es el antiguo.</translation>
    </message>
    <message>
        <source>The look is not imported.</source>
        <translation>El aspecto no se ha importado.</translation>
    </message>
    <message>
        <source>Imported %1 as the look %2</source>
        <translation>Se ha importado %1 como el aspecto %2</translation>
    </message>
    <message>
        <source>Export Look</source>
        <translation>Exportar aspecto</translation>
    </message>
    <message>
        <source>The look is not exported.</source>
        <translation>El aspecto no se ha exportado.</translation>
    </message>
    <message>
        <source>Exported the look %1 to %2</source>
        <translation>Se ha exportado el aspecto %1 a %2</translation>
    </message>
    <message>
        <source>&amp;Copy the Look</source>
        <translation>&amp;Copiar el aspecto</translation>
    </message>
    <message>
        <source>Takes the look of this portrait, to paste it on others</source>
        <translation>Toma el aspecto de este retrato para pegarlo en otros</translation>
    </message>
    <message>
        <source>&amp;Paste the Look...</source>
        <translation>&amp;Pegar el aspecto...</translation>
    </message>
    <message>
        <source>Shows what the copied look changes here, and pastes what is ticked</source>
        <translation>Muestra lo que cambia aquí el aspecto copiado y pega lo marcado</translation>
    </message>
    <message>
        <source>Paste the Look on P&amp;ortraits...</source>
        <translation>Pegar el aspecto en re&amp;tratos...</translation>
    </message>
    <message>
        <source>Pastes the copied look on many portraits at once</source>
        <translation>Pega el aspecto copiado en muchos retratos a la vez</translation>
    </message>
    <message>
        <source>Save as My &amp;Look...</source>
        <translation>Guardar como mi &amp;aspecto...</translation>
    </message>
    <message>
        <source>Keeps all settings under a name</source>
        <translation>Conserva todos los ajustes con un nombre</translation>
    </message>
    <message>
        <source>&amp;Import a Look...</source>
        <translation>&amp;Importar un aspecto...</translation>
    </message>
    <message>
        <source>Takes a look or a state file into my looks</source>
        <translation>Incorpora un aspecto o un archivo de estado a mis aspectos</translation>
    </message>
</context>
<context>
    <name>tavrin::LookDialog</name>
    <message>
        <source>Key</source>
        <translation>Croma</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Pelo</translation>
    </message>
    <message>
        <source>Light and colour</source>
        <translation>Luz y color</translation>
    </message>
    <message>
        <source>Skin and smoothing</source>
        <translation>Piel y suavizado</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Place and size</source>
        <translation>Posición y tamaño</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>What the look changes</source>
        <translation>Lo que cambia el aspecto</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Take What Is Ticked</source>
        <translation>Tomar lo marcado</translation>
    </message>
    <message>
        <source>One step of undo brings all of it back.</source>
        <translation>Un paso de deshacer lo recupera todo.</translation>
    </message>
</context>
<context>
    <name>tavrin::LooksPanel</name>
    <message>
        <source>My Looks</source>
        <translation>Mis aspectos</translation>
    </message>
    <message>
        <source>A double click or Enter takes the look; the pictures stay</source>
        <translation>Un doble clic o Intro toma el aspecto; las imágenes quedan</translation>
    </message>
    <message>
        <source>Take...</source>
        <translation>Tomar...</translation>
    </message>
    <message>
        <source>Shows what the look changes, and takes what is ticked</source>
        <translation>Muestra lo que cambia el aspecto y toma lo marcado</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Keeps the present settings under a name</source>
        <translation>Conserva los ajustes actuales con un nombre</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Renombrar...</translation>
    </message>
    <message>
        <source>Gives the look another name</source>
        <translation>Da otro nombre al aspecto</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Deletes the look; undo brings it back</source>
        <translation>Borra el aspecto; deshacer lo recupera</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Takes a look or a state file into the list</source>
        <translation>Incorpora un aspecto o un archivo de estado a la lista</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Writes the look to a file, for another machine</source>
        <translation>Escribe el aspecto en un archivo, para otro equipo</translation>
    </message>
</context>
<context>
    <name>tavrin::MailPage</name>
    <message>
        <source>To</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Subject of the mail</source>
        <translation>Asunto del correo</translation>
    </message>
    <message>
        <source>Answers to</source>
        <translation>Respuestas a</translation>
    </message>
    <message>
        <source>Mail address that answers go to; the mail itself comes from the account of the server</source>
        <translation>Dirección a la que llegan las respuestas; el correo en sí sale de la cuenta del servidor</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>What the mail says beside the picture</source>
        <translation>Lo que dice el correo además de la imagen</translation>
    </message>
    <message>
        <source>Tell where the picture was taken</source>
        <translation>Indicar dónde se tomó la imagen</translation>
    </message>
    <message>
        <source>Leaves the place on earth in the picture, if the camera noted one</source>
        <translation>Deja en la imagen el lugar, si la cámara lo anotó</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Sends the finished picture with this text</source>
        <translation>Envía la imagen terminada con este texto</translation>
    </message>
    <message>
        <source>Open in mail program</source>
        <translation>Abrir en el programa de correo</translation>
    </message>
    <message>
        <source>Opens a new mail with the picture in your own mail program</source>
        <translation>Abre un correo nuevo con la imagen en su propio programa de correo</translation>
    </message>
    <message>
        <source>Mail server...</source>
        <translation>Servidor de correo...</translation>
    </message>
    <message>
        <source>The server and the account that send the mails</source>
        <translation>El servidor y la cuenta que envían los correos</translation>
    </message>
    <message>
        <source>Mail address of who gets the picture, or telephone number for a text message</source>
        <translation>Dirección de quien recibe la imagen, o número de teléfono para un mensaje de texto</translation>
    </message>
    <message>
        <source>Send, text message, mail program and mail server</source>
        <translation>Enviar, mensaje de texto, programa y servidor de correo</translation>
    </message>
    <message>
        <source>As text message...</source>
        <translation>Como mensaje de texto...</translation>
    </message>
    <message>
        <source>Sends the finished picture to the telephone number that stands in place of the address</source>
        <translation>Envía la imagen terminada al número de teléfono escrito en lugar de la dirección</translation>
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
        <source>Not every setting could be taken up.</source>
        <translation>No se pudieron recuperar todos los ajustes.</translation>
    </message>
    <message>
        <source>Tavrin ended without being closed. The work on %1 was kept.</source>
        <translation>Tavrin terminó sin cerrarse. El trabajo en %1 se ha guardado.</translation>
    </message>
    <message>
        <source>Take Up</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Brings both pictures, every setting and the history back</source>
        <translation>Recupera ambas imágenes, todos los ajustes y el historial</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Removes what was kept</source>
        <translation>Elimina lo que se guardó</translation>
    </message>
    <message>
        <source>The picture of %1 was changed and not saved since.</source>
        <translation>La imagen de %1 ha cambiado y no se ha guardado desde entonces.</translation>
    </message>
    <message>
        <source>Its settings are kept, and come back when the portrait is opened again.</source>
        <translation>Sus ajustes se conservan y vuelven al abrir de nuevo el retrato.</translation>
    </message>
    <message>
        <source>Close &amp;without Saving</source>
        <translation>Cerrar &amp;sin guardar</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Folder of the Backgrounds</source>
        <translation>Carpeta de los fondos</translation>
    </message>
    <message>
        <source>Find an &amp;Action...</source>
        <translation>Buscar una &amp;acción...</translation>
    </message>
    <message>
        <source>Finds every command and control by words, and does or shows it</source>
        <translation>Encuentra cada orden y control por palabras, y lo ejecuta o lo muestra</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>&amp;Restablecer todos los ajustes</translation>
    </message>
    <message>
        <source>Puts every default of both layers back, as one step</source>
        <translation>Devuelve los valores iniciales de ambas capas, en un solo paso</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Every step of this portrait</source>
        <translation>Cada paso de este retrato</translation>
    </message>
    <message>
        <source>&amp;My Looks</source>
        <translation>&amp;Mis aspectos</translation>
    </message>
    <message>
        <source>Looks by name: take, save, rename, delete, import, export</source>
        <translation>Aspectos por nombre: tomar, guardar, renombrar, borrar, importar, exportar</translation>
    </message>
    <message>
        <source>Open F&amp;older...</source>
        <translation>Abrir &amp;carpeta...</translation>
    </message>
    <message>
        <source>Fills the strip with a folder&apos;s portraits and opens the first</source>
        <translation>Llena la tira con los retratos de una carpeta y abre el primero</translation>
    </message>
    <message>
        <source>S&amp;trip of Pictures</source>
        <translation>&amp;Tira de imágenes</translation>
    </message>
    <message>
        <source>Shows the pictures of the strip, or folds them away</source>
        <translation>Muestra u oculta las imágenes de la tira</translation>
    </message>
    <message>
        <source>&amp;Next Portrait</source>
        <translation>Retrato &amp;siguiente</translation>
    </message>
    <message>
        <source>Opens the portrait that comes next in the strip</source>
        <translation>Abre el retrato siguiente de la tira</translation>
    </message>
    <message>
        <source>&amp;Previous Portrait</source>
        <translation>Retrato &amp;anterior</translation>
    </message>
    <message>
        <source>Opens the portrait before this one in the strip</source>
        <translation>Abre el retrato anterior de la tira</translation>
    </message>
    <message>
        <source>Mark: &amp;Keep</source>
        <translation>Marcar: &amp;Conservar</translation>
    </message>
    <message>
        <source>This portrait is good</source>
        <translation>Este retrato está bien</translation>
    </message>
    <message>
        <source>Mark: &amp;Reject</source>
        <translation>Marcar: &amp;Descartar</translation>
    </message>
    <message>
        <source>This portrait goes out; the next one is opened</source>
        <translation>Este retrato se descarta; se abre el siguiente</translation>
    </message>
    <message>
        <source>Mark: &amp;Look Again</source>
        <translation>Marcar: &amp;Volver a mirar</translation>
    </message>
    <message>
        <source>This portrait needs another look</source>
        <translation>Este retrato necesita otra mirada</translation>
    </message>
    <message>
        <source>&amp;Unmark</source>
        <translation>&amp;Quitar la marca</translation>
    </message>
    <message>
        <source>Takes the mark from this portrait</source>
        <translation>Quita la marca de este retrato</translation>
    </message>
    <message>
        <source>Take the Last &amp;Mark Back</source>
        <translation>Deshacer la última &amp;marca</translation>
    </message>
    <message>
        <source>Gives the portrait that was marked last the mark it had, and opens it</source>
        <translation>Devuelve al último retrato marcado la marca que tenía, y lo abre</translation>
    </message>
    <message>
        <source>The look waits, and is there when these portraits are opened: %1</source>
        <translation>El aspecto espera y estará al abrir estos retratos: %1</translation>
    </message>
    <message>
        <source>Overlay over the &amp;Whole...</source>
        <translation>Superposición sobre &amp;todo...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts over everything, such as a frame</source>
        <translation>Pone una imagen con partes transparentes sobre todo, como un marco</translation>
    </message>
    <message>
        <source>Select Frame Overlay</source>
        <translation>Elegir la superposición del marco</translation>
    </message>
    <message>
        <source>Overlay over the P&amp;ortrait...</source>
        <translation>Superposición sobre el &amp;retrato...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts over the portrait</source>
        <translation>Pone una imagen con partes transparentes sobre el retrato</translation>
    </message>
    <message>
        <source>Select Forground Overlay</source>
        <translation>Elegir la superposición del retrato</translation>
    </message>
    <message>
        <source>Overlay over the &amp;Background...</source>
        <translation>Superposición sobre el &amp;fondo...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts between background and portrait</source>
        <translation>Pone una imagen con partes transparentes entre el fondo y el retrato</translation>
    </message>
    <message>
        <source>Select Background Overlay</source>
        <translation>Elegir la superposición del fondo</translation>
    </message>
    <message>
        <source>Overlays of a &amp;Set...</source>
        <translation>Superposiciones de un &amp;juego...</translation>
    </message>
    <message>
        <source>Choose one of a set (FR_, FG_, BG_ and a name): all of the set are laid on</source>
        <translation>Elija una de un juego (FR_, FG_, BG_ y un nombre): se ponen todas las del juego</translation>
    </message>
    <message>
        <source>&amp;Reset with Each New Portrait</source>
        <translation>&amp;Restablecer con cada retrato nuevo</translation>
    </message>
    <message>
        <source>A portrait that is opened for the first time begins with the settings of the start-up state</source>
        <translation>Un retrato que se abre por primera vez empieza con los ajustes del estado inicial</translation>
    </message>
    <message>
        <source>Reset with &amp;Each New Background</source>
        <translation>R&amp;establecer con cada fondo nuevo</translation>
    </message>
    <message>
        <source>A background that is opened begins with the start-up state&apos;s settings of the background</source>
        <translation>Un fondo que se abre empieza con los ajustes de fondo del estado inicial</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superposición</translation>
    </message>
    <message>
        <source>Select Overlay</source>
        <translation>Elegir la superposición</translation>
    </message>
    <message>
        <source>There is no set of this name in %1.</source>
        <translation>No hay ningún juego de este nombre en %1.</translation>
    </message>
    <message>
        <source>Overlays of a set</source>
        <translation>Superposiciones de un juego</translation>
    </message>
    <message>
        <source>The picture is saved as %1, which is there already. Replace it?</source>
        <translation>La imagen se guarda como %1, que ya existe. ¿Reemplazarla?</translation>
    </message>
    <message>
        <source>Pasting the look</source>
        <translation>Pegando el aspecto</translation>
    </message>
    <message>
        <source>&amp;Results in the Strip</source>
        <translation>&amp;Resultados en la tira</translation>
    </message>
    <message>
        <source>Shows the portraits of the strip as they come out with the present settings</source>
        <translation>Muestra los retratos de la tira tal como salen con los ajustes actuales</translation>
    </message>
    <message>
        <source>All Back&amp;grounds...</source>
        <translation>Todos los &amp;fondos...</translation>
    </message>
    <message>
        <source>Shows the portrait over every background of the folder; a click lays one behind it</source>
        <translation>Muestra el retrato sobre cada fondo de la carpeta; un clic pone uno detrás</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Takes it off the picture; the file stays as it is</source>
        <translation>La quita de la imagen; el archivo queda como está</translation>
    </message>
    <message>
        <source>&amp;Mend a Result of a Batch...</source>
        <translation>&amp;Retocar un resultado de un lote...</translation>
    </message>
    <message>
        <source>Opens a batch&apos;s picture with its settings; Save then replaces it</source>
        <translation>Abre una imagen de un lote con sus ajustes; Guardar la reemplaza después</translation>
    </message>
    <message>
        <source>No Overlay over the W&amp;hole</source>
        <translation>Sin superposición sobre &amp;todo</translation>
    </message>
    <message>
        <source>No Overlay over the Portrait</source>
        <translation>Sin superposición sobre el retrato</translation>
    </message>
    <message>
        <source>No Overlay over the Background</source>
        <translation>Sin superposición sobre el fondo</translation>
    </message>
    <message>
        <source>No Overla&amp;ys</source>
        <translation>Sin superposi&amp;ciones</translation>
    </message>
    <message>
        <source>%1 has no state, so the present settings stay.</source>
        <translation>%1 no tiene estado, así que quedan los ajustes actuales.</translation>
    </message>
    <message>
        <source>A batch saves one beside each picture while &quot;%1&quot; is on.</source>
        <translation>Un lote guarda uno junto a cada imagen mientras «%1» está activado.</translation>
    </message>
    <message>
        <source>Select a Result of a Batch</source>
        <translation>Elegir un resultado de un lote</translation>
    </message>
    <message>
        <source>Save to Batch</source>
        <translation>Guardar en el lote</translation>
    </message>
    <message>
        <source>Tool Ti&amp;ps</source>
        <translation>Indicacione&amp;s</translation>
    </message>
    <message>
        <source>Shows what a control does while the pointer rests on it</source>
        <translation>Muestra qué hace un control mientras el puntero descansa en él</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Take the last stroke back</source>
        <translation>Deshacer el último trazo</translation>
    </message>
    <message>
        <source>Do the stroke again</source>
        <translation>Rehacer el trazo</translation>
    </message>
    <message>
        <source>Main Window - Airbrush Editor Mode</source>
        <translation>Ventana principal - Aerógrafo</translation>
    </message>
    <message>
        <source>The picture was made anew, without the strokes of the airbrush: %1.</source>
        <translation>La imagen se hizo de nuevo, sin los trazos del aerógrafo: %1.</translation>
    </message>
    <message>
        <source>Bring Them Back</source>
        <translation>Recuperarlos</translation>
    </message>
    <message>
        <source>Turns to the airbrush and replays the strokes</source>
        <translation>Pasa al aerógrafo y repite los trazos</translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation>Dejarlos</translation>
    </message>
    <message>
        <source>The picture stays as it is</source>
        <translation>La imagen queda como está</translation>
    </message>
    <message>
        <source>The edits are still being replayed.</source>
        <translation>Todavía se repiten los trazos.</translation>
    </message>
    <message>
        <source>A batch is running.</source>
        <translation>Hay un lote en marcha.</translation>
    </message>
    <message>
        <source>The pictures in hand are finished first. The next run goes on with the rest.</source>
        <translation>Primero se terminan las imágenes en curso. El siguiente proceso sigue con el resto.</translation>
    </message>
    <message>
        <source>Stop and &amp;Close</source>
        <translation>Parar y &amp;cerrar</translation>
    </message>
    <message>
        <source>Saving was stopped, and nothing under the name %1 was changed.</source>
        <translation>Se detuvo el guardado y nada cambió con el nombre %1.</translation>
    </message>
    <message>
        <source>Ends this work; what is done stays, and can be taken back</source>
        <translation>Termina este trabajo; lo hecho queda y se puede deshacer</translation>
    </message>
    <message>
        <source>Ends the saving; what was there before under the name stays</source>
        <translation>Detiene el guardado; lo que había con ese nombre se queda</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>Every key and what it does, and another one where you want it</source>
        <translation>Cada tecla y lo que hace, y otra donde la quiera</translation>
    </message>
    <message>
        <source>User&apos;s &amp;Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>From the first picture to whole folders, with pictures</source>
        <translation>De la primera imagen a carpetas enteras, con imágenes (en inglés)</translation>
    </message>
    <message>
        <source>&amp;About Tavrin</source>
        <translation>&amp;Acerca de Tavrin</translation>
    </message>
    <message>
        <source>The version of this program</source>
        <translation>La versión de este programa</translation>
    </message>
    <message>
        <source>The window closes when the mail is sent.</source>
        <translation>La ventana se cerrará cuando se haya enviado el correo.</translation>
    </message>
    <message>
        <source>The mail to %1 is sent.</source>
        <translation>El correo para %1 se ha enviado.</translation>
    </message>
    <message>
        <source>The mail to %1 may have gone.</source>
        <translation>Puede que el correo para %1 haya salido.</translation>
    </message>
    <message>
        <source>The mail to %1 is not sent. It is kept in the outbox.</source>
        <translation>El correo para %1 no se ha enviado. Queda en la bandeja de salida.</translation>
    </message>
    <message>
        <source>The mail to %1 is not sent.</source>
        <translation>El correo para %1 no se ha enviado.</translation>
    </message>
    <message>
        <source>Ends the sending; the outbox keeps the mail while it is on</source>
        <translation>Detiene el envío; la bandeja de salida conserva el correo mientras esté activada</translation>
    </message>
    <message>
        <source>Mail to %1</source>
        <translation>Correo para %1</translation>
    </message>
    <message>
        <source>The mail program could not be opened.</source>
        <translation>No se pudo abrir el programa de correo.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Prints the finished picture, or saves the sheet as a PDF</source>
        <translation>Imprime la imagen terminada o guarda la hoja como PDF</translation>
    </message>
    <message>
        <source>Page La&amp;yout...</source>
        <translation>Dise&amp;ño de página...</translation>
    </message>
    <message>
        <source>Chooses the paper to print on and how it lies</source>
        <translation>Elige el papel en que se imprime y su orientación</translation>
    </message>
    <message>
        <source>Save the Sheet</source>
        <translation>Guardar la hoja</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <source>Scale</source>
        <translation>Escalar</translation>
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
    <message>
        <source>A drag on the picture moves what is chosen beside</source>
        <translation>Arrastrar en la imagen mueve lo elegido al lado</translation>
    </message>
    <message>
        <source>A drag up makes it larger, a drag down smaller</source>
        <translation>Arrastrar hacia arriba lo agranda, hacia abajo lo reduce</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>A click selects a text or picture item, and drags act on it</source>
        <translation>Un clic elige un texto o una imagen, y arrastrar actúa sobre él</translation>
    </message>
</context>
<context>
    <name>tavrin::OutboxPanel</name>
    <message>
        <source>is sent again at %1</source>
        <translation>se enviará de nuevo a las %1</translation>
    </message>
    <message>
        <source>is not sent by itself</source>
        <translation>no se envía por sí solo</translation>
    </message>
    <message>
        <source>may have gone, and is not sent by itself</source>
        <translation>puede haber salido y no se envía por sí solo</translation>
    </message>
    <message>
        <source>is being sent</source>
        <translation>se está enviando</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing waits.</source>
        <translation>No hay nada pendiente.</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Mails that could not be sent</source>
        <translation>Correos que no se pudieron enviar</translation>
    </message>
    <message>
        <source>Mails that could not be sent, each with its reason</source>
        <translation>Correos que no se pudieron enviar, cada uno con su motivo</translation>
    </message>
    <message>
        <source>Keep what could not be sent, and try again</source>
        <translation>Conservar lo no enviado y volver a intentarlo</translation>
    </message>
    <message>
        <source>The pauses between the tries grow from a minute to four hours</source>
        <translation>Las pausas entre los intentos crecen de un minuto a cuatro horas</translation>
    </message>
    <message>
        <source>Send now</source>
        <translation>Enviar ahora</translation>
    </message>
    <message>
        <source>Sends the selected mails; where none is selected, all but those that may have gone</source>
        <translation>Envía los correos elegidos; si no hay ninguno, todos salvo los que pueden haber salido</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Removes the selected mails without sending them</source>
        <translation>Elimina los correos elegidos sin enviarlos</translation>
    </message>
</context>
<context>
    <name>tavrin::PageLayoutDialog</name>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>On its side</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Diseño de página</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>The paper in the printer; the sheet is printed in its middle</source>
        <translation>El papel de la impresora; la hoja se imprime en su centro</translation>
    </message>
    <message>
        <source>As the printer has it (%1)</source>
        <translation>El de la impresora (%1)</translation>
    </message>
    <message>
        <source>The paper is higher than wide</source>
        <translation>El papel es más alto que ancho</translation>
    </message>
    <message>
        <source>The paper is wider than high</source>
        <translation>El papel es más ancho que alto</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Takes this paper for all that is printed</source>
        <translation>Usa este papel para todo lo que se imprima</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tavrin::PageWindow</name>
    <message>
        <source>The page is in the desktop&apos;s browser. What is clicked there does not reach this program: for that its package for web pages is missing.</source>
        <translation>La página está en el navegador del escritorio. Lo que se pulse allí no llega a este programa: para ello falta su paquete de páginas web.</translation>
    </message>
    <message>
        <source>There is no web engine here and no browser: the page is %1.</source>
        <translation>Aquí no hay motor web ni navegador: la página es %1.</translation>
    </message>
</context>
<context>
    <name>tavrin::PathRow</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Elegir: %1</translation>
    </message>
    <message>
        <source>Take none: %1</source>
        <translation>Ninguno: %1</translation>
    </message>
    <message>
        <source>Take none</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>tavrin::PhoneTextView</name>
    <message>
        <source>Text Message</source>
        <translation>Mensaje de texto</translation>
    </message>
    <message>
        <source>Which carrier has the number %1?</source>
        <translation>¿De qué operador es el número %1?</translation>
    </message>
    <message>
        <source>Sends the picture as a text message</source>
        <translation>Envía la imagen como mensaje de texto</translation>
    </message>
    <message>
        <source>No way to this carrier yet: nothing is sent</source>
        <translation>Aún no hay forma de llegar a este operador: no se envía nada</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Sends nothing</source>
        <translation>No envía nada</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureFiles</name>
    <message>
        <source>The state file cannot be opened.</source>
        <translation>No se puede abrir el archivo de estado.</translation>
    </message>
    <message>
        <source>The state file cannot be saved.</source>
        <translation>No se puede guardar el archivo de estado.</translation>
    </message>
    <message>
        <source>The settings were not reset.</source>
        <translation>Los ajustes no se han restablecido.</translation>
    </message>
    <message>
        <source>The picture cannot be saved.</source>
        <translation>La imagen no se puede guardar.</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureList</name>
    <message>
        <source>keep</source>
        <translation>conservar</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>descartar</translation>
    </message>
    <message>
        <source>look again</source>
        <translation>volver a mirar</translation>
    </message>
    <message>
        <source>open now</source>
        <translation>abierto ahora</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureRow</name>
    <message>
        <source>Take the picture away</source>
        <translation>Quitar la imagen</translation>
    </message>
    <message>
        <source>%1: none</source>
        <translation>%1: ninguna</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>Choose: %1...</source>
        <translation>Elegir: %1...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureTools</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
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
        <source>Before (hold the key)</source>
        <translation>Antes (mantener la tecla)</translation>
    </message>
    <message>
        <source>The portrait as it was taken</source>
        <translation>El retrato tal como se tomó</translation>
    </message>
    <message>
        <source>&amp;Before | After</source>
        <translation>&amp;Antes | Después</translation>
    </message>
    <message>
        <source>A line to drag across the picture: the portrait on its left, the result on its right</source>
        <translation>Una línea que se arrastra sobre la imagen: a la izquierda el retrato, a la derecha el resultado</translation>
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
        <source>S&amp;creen</source>
        <translation>&amp;Pantalla</translation>
    </message>
    <message>
        <source>The colour that the key takes as screen, over the whole picture</source>
        <translation>El color que se toma por pantalla, en toda la imagen</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>&amp;Guard</source>
        <translation>&amp;Protección</translation>
    </message>
    <message>
        <source>What the green guard protects; clothes must be protected for it</source>
        <translation>Lo que protege la protección del verde; para ello hay que proteger la ropa</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>Pre&amp;guntar</translation>
    </message>
    <message>
        <source>A click on the picture tells how its pixel came about</source>
        <translation>Un clic en la imagen cuenta cómo surgió ese píxel</translation>
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
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>before and after</source>
        <translation>antes y después</translation>
    </message>
    <message>
        <source>result</source>
        <translation>resultado</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>vista previa</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 percent, %4</source>
        <translation>%1 x %2 píxeles, %3 por ciento, %4</translation>
    </message>
</context>
<context>
    <name>tavrin::PlanList</name>
    <message>
        <source>What will be made</source>
        <translation>Qué se hará</translation>
    </message>
    <message>
        <source>The pictures of the next run, in its order; what was made before is left out</source>
        <translation>Las imágenes del próximo proceso, en su orden; lo ya hecho no aparece</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>tavrin::PrintDesk</name>
    <message>
        <source>There is not enough memory for the sheet.</source>
        <translation>No hay memoria suficiente para la hoja.</translation>
    </message>
    <message>
        <source>The sheet cannot be made.</source>
        <translation>No se puede crear la hoja.</translation>
    </message>
    <message>
        <source>The sheet is saved as %1.</source>
        <translation>La hoja se ha guardado como %1.</translation>
    </message>
    <message>
        <source>The sheet cannot be saved.</source>
        <translation>No se puede guardar la hoja.</translation>
    </message>
    <message>
        <source>%1 is not printed.</source>
        <translation>%1 no se ha imprimido.</translation>
    </message>
    <message>
        <source>The sheet stays.</source>
        <translation>La hoja se conserva.</translation>
    </message>
    <message>
        <source>%1 is printed.</source>
        <translation>%1 se ha imprimido.</translation>
    </message>
    <message>
        <source>%1 is not printed; it waits among the sheets of the Print page.</source>
        <translation>%1 no se ha imprimido; la hoja espera en la página Imprimir.</translation>
    </message>
    <message>
        <source>%1 is sent to %2.</source>
        <translation>%1 se ha enviado a %2.</translation>
    </message>
</context>
<context>
    <name>tavrin::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>The printer to print on</source>
        <translation>La impresora en que se imprime</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Buscando impresoras...</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>How often the sheet is printed</source>
        <translation>Cuántas veces se imprime la hoja</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The print page: where the picture lies on the sheet, and how often</source>
        <translation>La página de impresión: dónde va la imagen en la hoja y cuántas veces</translation>
    </message>
    <message>
        <source>Only the picture, at its own size</source>
        <translation>Solo la imagen, a su propio tamaño</translation>
    </message>
    <message>
        <source>The sheet is the picture itself, without a page</source>
        <translation>La hoja es la propia imagen, sin página de impresión</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Diseño de página</translation>
    </message>
    <message>
        <source>Chooses the paper to print on and how it lies</source>
        <translation>Elige el papel en que se imprime y su orientación</translation>
    </message>
    <message>
        <source>Page Layout...</source>
        <translation>Diseño de página...</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>What becomes of a picture that has not the shape of its place on the page</source>
        <translation>Qué ocurre con una imagen que no tiene la forma de su lugar en la página</translation>
    </message>
    <message>
        <source>Stretched to its place</source>
        <translation>Estirada hasta su lugar</translation>
    </message>
    <message>
        <source>Cut to fill its place</source>
        <translation>Recortada para llenar su lugar</translation>
    </message>
    <message>
        <source>Whole, with grey sides</source>
        <translation>Entera, con lados grises</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>Thin lines beside the pictures&apos; corners, to cut along</source>
        <translation>Líneas finas junto a las esquinas de las imágenes, para cortar</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Reflejada</translation>
    </message>
    <message>
        <source>Left and right exchanged, for transfer paper that is ironed on</source>
        <translation>Izquierda y derecha intercambiadas, para papel de transferencia que se plancha</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Leyenda</translation>
    </message>
    <message>
        <source>A line beside the pictures, where the page has room. &lt;&lt;filename&gt;&gt;, &lt;&lt;filenumber&gt;&gt;, &lt;&lt;date&gt;&gt; and &lt;&lt;time&gt;&gt; are replaced</source>
        <translation>Una línea junto a las imágenes, donde la página tenga sitio. &lt;&lt;filename&gt;&gt;, &lt;&lt;filenumber&gt;&gt;, &lt;&lt;date&gt;&gt; y &lt;&lt;time&gt;&gt; se sustituyen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Perfil de color</translation>
    </message>
    <message>
        <source>The ICC profile of the printer and its paper; without one the printer gets sRGB</source>
        <translation>El perfil ICC de la impresora y su papel; sin él, la impresora recibe sRGB</translation>
    </message>
    <message>
        <source>Choose the colour profile</source>
        <translation>Elegir el perfil de color</translation>
    </message>
    <message>
        <source>Chooses the ICC profile of the printer and its paper</source>
        <translation>Elige el perfil ICC de la impresora y su papel</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Take no colour profile</source>
        <translation>No usar perfil de color</translation>
    </message>
    <message>
        <source>Takes no colour profile</source>
        <translation>No usa perfil de color</translation>
    </message>
    <message>
        <source>Intent</source>
        <translation>Propósito</translation>
    </message>
    <message>
        <source>What becomes of colours that the printer does not have</source>
        <translation>Qué ocurre con los colores que la impresora no tiene</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>Makes the sheet and sends it to the printer</source>
        <translation>Crea la hoja y la envía a la impresora</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Guardar como PDF...</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Saves the sheet on its paper as a file, with all pixels of the picture</source>
        <translation>Guarda la hoja sobre su papel en un archivo, con todos los píxeles de la imagen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Prints nothing</source>
        <translation>No imprime nada</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No printers</source>
        <translation>Sin impresoras</translation>
    </message>
    <message>
        <source>There are no printers on this machine. Add one in the desktop&apos;s settings, or save the sheet as a PDF.</source>
        <translation>No hay impresoras en este equipo. Añada una en los ajustes del escritorio o guarde la hoja como PDF.</translation>
    </message>
    <message>
        <source>%1, on its side</source>
        <translation>%1, horizontal</translation>
    </message>
    <message>
        <source>The sheet is larger than the paper; what stands over is cut off.</source>
        <translation>La hoja es mayor que el papel; lo que sobresale se corta.</translation>
    </message>
    <message>
        <source>The sheet is larger than the paper as it lies; turn the paper in Page Layout.</source>
        <translation>La hoja es mayor que el papel tal como está; gire el papel en Diseño de página.</translation>
    </message>
    <message>
        <source>This page has no room for a caption; it is left out.</source>
        <translation>Esta página no tiene sitio para una leyenda; se omite.</translation>
    </message>
    <message>
        <source>Select the Colour Profile</source>
        <translation>Seleccionar el perfil de color</translation>
    </message>
    <message>
        <source>Colour profiles (*.icc *.icm)</source>
        <translation>Perfiles de color (*.icc *.icm)</translation>
    </message>
    <message>
        <source>This page has no place for a picture.</source>
        <translation>Esta página no tiene lugar para una imagen.</translation>
    </message>
</context>
<context>
    <name>tavrin::ReviewDesk</name>
    <message>
        <source>Results of the Batch</source>
        <translation>Resultados del lote</translation>
    </message>
    <message>
        <source>Compare Portraits</source>
        <translation>Comparar retratos</translation>
    </message>
    <message>
        <source>No batch has been run yet.</source>
        <translation>Todavía no se ha hecho ningún lote.</translation>
    </message>
    <message>
        <source>The pages cannot be written.</source>
        <translation>No se pueden escribir las páginas.</translation>
    </message>
    <message>
        <source>%1 holds no pictures.</source>
        <translation>En %1 no hay imágenes.</translation>
    </message>
    <message>
        <source>Folder of Portraits</source>
        <translation>Carpeta de retratos</translation>
    </message>
    <message>
        <source>Re&amp;view a Batch...</source>
        <translation>Re&amp;visar un lote...</translation>
    </message>
    <message>
        <source>Shows every result of the last batch beside its mask; a click opens one to be mended</source>
        <translation>Muestra cada resultado del último lote junto a su máscara; un clic abre uno para retocarlo</translation>
    </message>
    <message>
        <source>&amp;Compare Portraits...</source>
        <translation>&amp;Comparar retratos...</translation>
    </message>
    <message>
        <source>Shows the portraits of the folder side by side; a double click opens one</source>
        <translation>Muestra los retratos de la carpeta uno junto a otro; un doble clic abre uno</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Se están creando las páginas.</translation>
    </message>
</context>
<context>
    <name>tavrin::Safekeeping</name>
    <message>
        <source>The present settings cannot be kept for a next start.</source>
        <translation>Los ajustes actuales no se pueden guardar para el próximo arranque.</translation>
    </message>
    <message>
        <source>%1 on %2 portraits</source>
        <translation>%1 en %2 retratos</translation>
    </message>
</context>
<context>
    <name>tavrin::ScaleView</name>
    <message>
        <source>Map of the layer in the picture</source>
        <translation>Mapa de la capa en la imagen</translation>
    </message>
    <message>
        <source>The layer in a small map of the picture: drag it to its place</source>
        <translation>La capa en un mapa pequeño de la imagen: arrástrela a su sitio</translation>
    </message>
    <message>
        <source>Place of the portrait</source>
        <translation>Posición del retrato</translation>
    </message>
    <message>
        <source>Place of the background</source>
        <translation>Posición del fondo</translation>
    </message>
</context>
<context>
    <name>tavrin::SegmentBar</name>
    <message>
        <source>Go to: %1</source>
        <translation>Ir a: %1</translation>
    </message>
    <message>
        <source>Scrolls to this part of the page</source>
        <translation>Se desplaza a esta parte de la página</translation>
    </message>
</context>
<context>
    <name>tavrin::SettingsPage</name>
    <message>
        <source>Prefix of saved pictures</source>
        <translation>Prefijo de las imágenes guardadas</translation>
    </message>
    <message>
        <source>The names that are proposed for saved pictures begin with this</source>
        <translation>Con esto empiezan los nombres que se proponen al guardar imágenes</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Prefijo</translation>
    </message>
    <message>
        <source>A prefix is part of a file&apos;s name, so it has no &quot;/&quot;.</source>
        <translation>Un prefijo es parte del nombre de un archivo, así que no lleva «/».</translation>
    </message>
</context>
<context>
    <name>tavrin::Shelf</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>se muestran %1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;&amp;nbsp; %2</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&amp;nbsp; %2</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>No se puede leer la carpeta.</translation>
    </message>
    <message>
        <source>the folder is being read...</source>
        <translation>se está leyendo la carpeta...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Gives up reading this folder; the pictures that are shown stay</source>
        <translation>Deja de leer esta carpeta; las imágenes mostradas se quedan</translation>
    </message>
</context>
<context>
    <name>tavrin::ShortcutDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Search by words or by a key</source>
        <translation>Buscar por palabras o por una tecla</translation>
    </message>
    <message>
        <source>Words in any order, or a key such as Ctrl+K</source>
        <translation>Palabras en cualquier orden, o una tecla como Ctrl+K</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Lo que hace</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Click here and press the new key</source>
        <translation>Pulse aquí y luego la tecla nueva</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Tecla nueva</translation>
    </message>
    <message>
        <source>&amp;New key:</source>
        <translation>Tecla &amp;nueva:</translation>
    </message>
    <message>
        <source>Take It</source>
        <translation>Tomarla</translation>
    </message>
    <message>
        <source>The other command has no key then</source>
        <translation>La otra orden se queda sin tecla</translation>
    </message>
    <message>
        <source>No Key</source>
        <translation>Sin tecla</translation>
    </message>
    <message>
        <source>Takes the key from the command that is chosen</source>
        <translation>Quita la tecla a la orden elegida</translation>
    </message>
    <message>
        <source>Usual Key</source>
        <translation>Tecla habitual</translation>
    </message>
    <message>
        <source>The command that is chosen has the key it came with</source>
        <translation>La orden elegida tiene la tecla con la que vino</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Takes the last change in this list back</source>
        <translation>Deshace el último cambio de esta lista</translation>
    </message>
    <message>
        <source>Taken back.</source>
        <translation>Deshecho.</translation>
    </message>
    <message>
        <source>All Usual Keys</source>
        <translation>Todas las habituales</translation>
    </message>
    <message>
        <source>Every command has the key it came with</source>
        <translation>Cada orden tiene la tecla con la que vino</translation>
    </message>
    <message>
        <source>Usually without a key</source>
        <translation>Normalmente sin tecla</translation>
    </message>
    <message>
        <source>Usually %1</source>
        <translation>Normalmente %1</translation>
    </message>
    <message>
        <source>Move a slider; with Shift finer, with Ctrl coarser</source>
        <translation>Mueven un control; con Mayús más fino, con Ctrl más grueso</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>Put the default of a slider back</source>
        <translation>Devolver un control a su valor inicial</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Move what is shown; with Shift by a point</source>
        <translation>Mover lo que se ve; con Mayús, un punto</translation>
    </message>
    <message>
        <source>Arrows on the picture</source>
        <translation>Flechas en la imagen</translation>
    </message>
    <message>
        <source>Move the line</source>
        <translation>Mover la línea</translation>
    </message>
    <message>
        <source>Arrows on the line between before and after</source>
        <translation>Flechas en la línea entre antes y después</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Ampliar en torno al puntero</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>On the strip, or on a picture that is seen whole: open the portrait before, or the next one</source>
        <translation>En la tira, o en una imagen que se ve entera: abrir el retrato anterior o el siguiente</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Izquierda, Derecha</translation>
    </message>
    <message>
        <source>Hold and drag to move the picture</source>
        <translation>Mantener y arrastrar para mover la imagen</translation>
    </message>
    <message>
        <source>Space or middle button</source>
        <translation>Espacio o botón central</translation>
    </message>
    <message>
        <source>Choose a command, click below and press its new key.</source>
        <translation>Elija una orden, pulse abajo y luego su tecla nueva.</translation>
    </message>
    <message>
        <source>This key belongs to the controls and stays.</source>
        <translation>Esta tecla es de los controles y se queda.</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;. Take it for &quot;%3&quot;?</source>
        <translation>%1 es la tecla de «%2». ¿La toma «%3»?</translation>
    </message>
    <message>
        <source>It has no key now.</source>
        <translation>Ahora no tiene tecla.</translation>
    </message>
    <message>
        <source>It has the key %1 now.</source>
        <translation>Ahora tiene la tecla %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no key now.</source>
        <translation>«%1» ahora no tiene tecla.</translation>
    </message>
    <message>
        <source>Every command has its usual key again.</source>
        <translation>Cada orden vuelve a tener su tecla habitual.</translation>
    </message>
</context>
<context>
    <name>tavrin::SidePanel</name>
    <message>
        <source>Search the controls</source>
        <translation>Buscar los controles</translation>
    </message>
    <message>
        <source>No control has these words.</source>
        <translation>Ningún control tiene estas palabras.</translation>
    </message>
    <message>
        <source>Finds controls and commands by words in any order; Enter goes to the first</source>
        <translation>Encuentra controles y órdenes por palabras en cualquier orden; Intro va al primero</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Controls: %1</source>
        <translation>Controles: %1</translation>
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
    <name>tavrin::SizeDialog</name>
    <message>
        <source>New Output Size</source>
        <translation>Nuevo tamaño de salida</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Tamaño de salida</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>How wide the printed picture is</source>
        <translation>El ancho de la imagen impresa</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>How high the printed picture is</source>
        <translation>El alto de la imagen impresa</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Dots an inch</source>
        <translation>Puntos por pulgada</translation>
    </message>
    <message>
        <source>How fine the picture is; 300 is usual for prints</source>
        <translation>La finura de la imagen; para copias lo normal es 300</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>The page that this size is printed on</source>
        <translation>La página en que se imprime este tamaño</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Width and height are in centimetres; otherwise in inches</source>
        <translation>Ancho y alto en centímetros; si no, en pulgadas</translation>
    </message>
    <message>
        <source>A page of its own</source>
        <translation>Una página propia</translation>
    </message>
</context>
<context>
    <name>tavrin::SizesPanel</name>
    <message>
        <source>Output sizes</source>
        <translation>Tamaños de salida</translation>
    </message>
    <message>
        <source>Sizes of your own; two stars mark them</source>
        <translation>Tamaños propios; dos estrellas los señalan</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Añadir...</translation>
    </message>
    <message>
        <source>Adds an output size of your own</source>
        <translation>Añade un tamaño de salida propio</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Changes the size that is selected; one of the program&apos;s becomes your own</source>
        <translation>Cambia el tamaño elegido; uno del programa pasa a ser propio</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Takes a size of your own out of the list; pictures that have it keep it</source>
        <translation>Quita un tamaño propio de la lista; las imágenes que lo tienen lo conservan</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>The sizes cannot be kept.</source>
        <translation>Los tamaños no se pueden conservar.</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Tamaño nuevo</translation>
    </message>
    <message>
        <source>Edit size</source>
        <translation>Editar tamaño</translation>
    </message>
    <message>
        <source>Delete size</source>
        <translation>Eliminar tamaño</translation>
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
<context>
    <name>tavrin::SmtpDialog</name>
    <message>
        <source>Mail Server</source>
        <translation>Servidor de correo</translation>
    </message>
    <message>
        <source>Use the default mail server</source>
        <translation>Usar el servidor de correo predeterminado</translation>
    </message>
    <message>
        <source>Sends by the account that was set up with the program; the fields below are kept</source>
        <translation>Envía con la cuenta configurada con el programa; los campos de abajo se conservan</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Name of the server that sends your mails</source>
        <translation>Nombre del servidor que envía sus correos</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>587 or 25 with STARTTLS, 465 with SSL; your provider says which</source>
        <translation>587 o 25 con STARTTLS, 465 con SSL; su proveedor le dirá cuál</translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation>STARTTLS</translation>
    </message>
    <message>
        <source>The connection is encrypted from the server&apos;s word on; without it nothing is sent</source>
        <translation>La conexión se cifra en cuanto el servidor lo ofrece; si no, no se envía nada</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>The connection is encrypted from the first byte</source>
        <translation>La conexión está cifrada desde el primer byte</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>The name that the server knows you by</source>
        <translation>El nombre con el que el servidor le conoce</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Is kept in the settings file as it is, which nobody but you can read</source>
        <translation>Se guarda sin cifrar en el archivo de ajustes, que solo usted puede leer</translation>
    </message>
    <message>
        <source>Fill In for GMail</source>
        <translation>Rellenar para GMail</translation>
    </message>
    <message>
        <source>Fills the fields in; your account name and your password are still to be typed</source>
        <translation>Rellena los campos; falta escribir el nombre de la cuenta y la contraseña</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Keeps what is entered here</source>
        <translation>Conserva lo que se ha escrito aquí</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leaves the settings as they were</source>
        <translation>Deja los ajustes como estaban</translation>
    </message>
    <message>
        <source>gmail-host is missing in delivery.conf</source>
        <translation>falta gmail-host en delivery.conf</translation>
    </message>
</context>
<context>
    <name>tavrin::SortPanel</name>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Chooses the folder whose photos are sorted</source>
        <translation>Elige la carpeta cuyas fotos se separan</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Separar</translation>
    </message>
    <message>
        <source>Copies the photos into the subfolders Portrait and Landscape; the originals stay</source>
        <translation>Copia las fotos en las subcarpetas Portrait y Landscape; los originales se quedan</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Ends sorting after the photo in hand</source>
        <translation>Termina después de la foto en curso</translation>
    </message>
    <message>
        <source>Sort photos by shape</source>
        <translation>Separar fotos por formato</translation>
    </message>
    <message>
        <source>Splits a folder of photos into upright ones and wide ones, such as backgrounds for an event</source>
        <translation>Separa las fotos de una carpeta en verticales y horizontales, por ejemplo fondos para un evento</translation>
    </message>
    <message>
        <source>Photos to sort</source>
        <translation>Fotos para separar</translation>
    </message>
    <message>
        <source>The folder whose photos are sorted</source>
        <translation>La carpeta cuyas fotos se separan</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontales</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticales</translation>
    </message>
    <message>
        <source>Folder of Photos to Sort</source>
        <translation>Carpeta de fotos para separar</translation>
    </message>
    <message>
        <source>The photos are not sorted.</source>
        <translation>No se han separado las fotos.</translation>
    </message>
    <message>
        <source>Copied: %1, there already: %2, not copied or not read: %3.</source>
        <translation>Copiadas: %1, ya estaban: %2, no copiadas o no leídas: %3.</translation>
    </message>
    <message>
        <source>Sorting was stopped. %1</source>
        <translation>Se paró la separación. %1</translation>
    </message>
    <message>
        <source>The photos are sorted. %1</source>
        <translation>Las fotos están separadas. %1</translation>
    </message>
    <message>
        <source>Not every photo is sorted. %1</source>
        <translation>No se han separado todas las fotos. %1</translation>
    </message>
</context>
<context>
    <name>tavrin::SplitLine</name>
    <message>
        <source>Line between before and after</source>
        <translation>Línea entre antes y después</translation>
    </message>
    <message>
        <source>Drag it across the picture: the portrait as it was taken on its left, the result on its right</source>
        <translation>Arrástrela sobre la imagen: a la izquierda el retrato tal como se tomó, a la derecha el resultado</translation>
    </message>
</context>
<context>
    <name>tavrin::StoryPanel</name>
    <message>
        <source>Story of a pixel</source>
        <translation>Historia de un píxel</translation>
    </message>
    <message>
        <source>close</source>
        <translation>cerrar</translation>
    </message>
    <message>
        <source>Close the story of the pixel</source>
        <translation>Cerrar la historia del píxel</translation>
    </message>
    <message>
        <source>Closes this panel; Esc does the same</source>
        <translation>Cierra este panel; Esc hace lo mismo</translation>
    </message>
    <message>
        <source>This pixel</source>
        <translation>Este píxel</translation>
    </message>
</context>
<context>
    <name>tavrin::Strip</name>
    <message>
        <source>Portraits</source>
        <translation>Retratos</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Fondos</translation>
    </message>
    <message>
        <source>Folder...</source>
        <translation>Carpeta...</translation>
    </message>
    <message>
        <source>Folder of the backgrounds</source>
        <translation>Carpeta de los fondos</translation>
    </message>
    <message>
        <source>Chooses the folder whose backgrounds stand here</source>
        <translation>Elige la carpeta cuyos fondos se ven aquí</translation>
    </message>
    <message>
        <source>Portraits shown</source>
        <translation>Retratos mostrados</translation>
    </message>
    <message>
        <source>Shows only the portraits with this mark</source>
        <translation>Muestra solo los retratos con esta marca</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unmarked</source>
        <translation>Sin marca</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Reject</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Volver a mirar</translation>
    </message>
    <message>
        <source>There is no picture in the folder.</source>
        <translation>No hay ninguna imagen en la carpeta.</translation>
    </message>
    <message>
        <source>The mark is not kept.</source>
        <translation>La marca no se guarda.</translation>
    </message>
</context>
<context>
    <name>tavrin::TapeDeckView</name>
    <message>
        <source>To the first</source>
        <translation>Al primero</translation>
    </message>
    <message>
        <source>Back five</source>
        <translation>Cinco atrás</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>On five</source>
        <translation>Cinco adelante</translation>
    </message>
    <message>
        <source>To the last</source>
        <translation>Al último</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>No se puede leer la carpeta.</translation>
    </message>
    <message>
        <source>%1, served</source>
        <translation>%1, atendido</translation>
    </message>
    <message>
        <source>%1, empty place %2</source>
        <translation>%1, lugar vacío %2</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplatePanel</name>
    <message>
        <source>Print Page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The print page: where the picture lies on the sheet, and how often</source>
        <translation>La página de impresión: dónde va la imagen en la hoja y cuántas veces</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The page in the list is printed on</source>
        <translation>Se imprime en la página de la lista</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplateView</name>
    <message>
        <source>The print page with the picture in its places</source>
        <translation>La página de impresión con la imagen en sus lugares</translation>
    </message>
    <message>
        <source>The sheet as it is printed: grey is paper that stays free</source>
        <translation>La hoja tal como se imprime: lo gris es papel que queda libre</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplatesPanel</name>
    <message>
        <source>New Print Page</source>
        <translation>Nueva página de impresión</translation>
    </message>
    <message>
        <source>Print Page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>What the page is called in lists</source>
        <translation>Cómo se llama la página en las listas</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>How wide the page is</source>
        <translation>El ancho de la página</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>How high the page is</source>
        <translation>El alto de la página</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Width and height are in centimetres; otherwise in inches</source>
        <translation>Ancho y alto en centímetros; si no, en pulgadas</translation>
    </message>
    <message>
        <source>Place for a Picture</source>
        <translation>Lugar para una imagen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>From the left edge of the page</source>
        <translation>Desde el borde izquierdo de la página</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>From the lower edge of the page</source>
        <translation>Desde el borde inferior de la página</translation>
    </message>
    <message>
        <source>How wide the picture is printed</source>
        <translation>El ancho con que se imprime la imagen</translation>
    </message>
    <message>
        <source>How high the picture is printed</source>
        <translation>El alto con que se imprime la imagen</translation>
    </message>
    <message>
        <source>The place is larger than the page or lies beside it, so nothing would be printed there.</source>
        <translation>El lugar es mayor que la página o queda fuera de ella; ahí no se imprimiría nada.</translation>
    </message>
    <message>
        <source>Print pages</source>
        <translation>Páginas de impresión</translation>
    </message>
    <message>
        <source>Pages to print on, and the places for pictures on them</source>
        <translation>Páginas para imprimir y los lugares para imágenes en ellas</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Página de impresión</translation>
    </message>
    <message>
        <source>The page to print on</source>
        <translation>La página en que se imprime</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Nueva...</translation>
    </message>
    <message>
        <source>Adds a page of your own</source>
        <translation>Añade una página propia</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Changes name and size of the page; one of the program&apos;s becomes your own</source>
        <translation>Cambia nombre y tamaño de la página; una del programa pasa a ser propia</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Takes a page of your own out of the list</source>
        <translation>Quita una página propia de la lista</translation>
    </message>
    <message>
        <source>Places for pictures on the page</source>
        <translation>Lugares para imágenes en la página</translation>
    </message>
    <message>
        <source>Where pictures lie, counted from the lower left corner of the page</source>
        <translation>Dónde quedan las imágenes, desde la esquina inferior izquierda de la página</translation>
    </message>
    <message>
        <source>Add Place...</source>
        <translation>Añadir lugar...</translation>
    </message>
    <message>
        <source>Adds a place for a picture to the page</source>
        <translation>Añade a la página un lugar para una imagen</translation>
    </message>
    <message>
        <source>Moves or sizes the selected place</source>
        <translation>Mueve el lugar elegido o cambia su tamaño</translation>
    </message>
    <message>
        <source>Takes the selected place off the page</source>
        <translation>Quita de la página el lugar elegido</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>Left, %1</source>
        <translation>Izq., %1</translation>
    </message>
    <message>
        <source>Bottom, %1</source>
        <translation>Abajo, %1</translation>
    </message>
    <message>
        <source>Width, %1</source>
        <translation>Ancho, %1</translation>
    </message>
    <message>
        <source>Height, %1</source>
        <translation>Alto, %1</translation>
    </message>
    <message>
        <source>The print pages cannot be kept.</source>
        <translation>Las páginas de impresión no se pueden conservar.</translation>
    </message>
    <message>
        <source>New print page</source>
        <translation>Página de impresión nueva</translation>
    </message>
    <message>
        <source>Edit print page</source>
        <translation>Editar página de impresión</translation>
    </message>
    <message>
        <source>Place on the page</source>
        <translation>Lugar en la página</translation>
    </message>
    <message>
        <source>Delete print page</source>
        <translation>Eliminar página de impresión</translation>
    </message>
    <message>
        <source>Delete place on the page</source>
        <translation>Eliminar lugar de la página</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Prints the picture on this page</source>
        <translation>Imprime la imagen en esta página</translation>
    </message>
</context>
<context>
    <name>tavrin::TextPage</name>
    <message>
        <source>IMAGE: %1</source>
        <translation>IMAGEN: %1</translation>
    </message>
    <message>
        <source>TEXT: %1</source>
        <translation>TEXTO: %1</translation>
    </message>
    <message>
        <source>Another picture...</source>
        <translation>Otra imagen...</translation>
    </message>
    <message>
        <source>Puts another picture in the place of the selected one</source>
        <translation>Pone otra imagen en el lugar de la elegida</translation>
    </message>
    <message>
        <source>Choose a Picture</source>
        <translation>Elegir una imagen</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Textos e imágenes</translation>
    </message>
    <message>
        <source>What is drawn first stands first; drag to change the order</source>
        <translation>Lo que se dibuja primero está primero; arrastre para cambiar el orden</translation>
    </message>
    <message>
        <source>Order of the items</source>
        <translation>Orden de los elementos</translation>
    </message>
    <message>
        <source>Add, edit and delete</source>
        <translation>Añadir, editar y borrar</translation>
    </message>
    <message>
        <source>Add text</source>
        <translation>Añadir texto</translation>
    </message>
    <message>
        <source>Puts a new text on the picture</source>
        <translation>Pone un texto nuevo en la imagen</translation>
    </message>
    <message>
        <source>Add picture...</source>
        <translation>Añadir imagen...</translation>
    </message>
    <message>
        <source>Puts a picture, such as a logo, on the picture</source>
        <translation>Pone una imagen, como un logotipo, sobre la imagen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Shows the controls of the selected item</source>
        <translation>Muestra los controles del elemento elegido</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Takes the selected item away</source>
        <translation>Quita el elemento elegido</translation>
    </message>
    <message>
        <source>Further down</source>
        <translation>Más abajo</translation>
    </message>
    <message>
        <source>Draws the selected item earlier, so that the others cover it</source>
        <translation>Dibuja antes el elemento elegido, de modo que los otros lo cubren</translation>
    </message>
    <message>
        <source>Further up</source>
        <translation>Más arriba</translation>
    </message>
    <message>
        <source>Draws the selected item later, so that it covers the others</source>
        <translation>Dibuja después el elemento elegido, de modo que cubre los otros</translation>
    </message>
    <message>
        <source>Add a Picture</source>
        <translation>Añadir una imagen</translation>
    </message>
    <message>
        <source>Delete an item</source>
        <translation>Borrar un elemento</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>Otra imagen</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>Añadir una imagen</translation>
    </message>
    <message>
        <source>Add a text</source>
        <translation>Añadir un texto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Takes back what was done to the item since it was selected; a new one goes</source>
        <translation>Deshace lo hecho con el elemento desde que se eligió; uno nuevo desaparece</translation>
    </message>
</context>
<context>
    <name>tavrin::TextScaleView</name>
    <message>
        <source>Map of the selected item in the picture</source>
        <translation>Mapa del elemento elegido en la imagen</translation>
    </message>
    <message>
        <source>The selected text or picture in a small map of the picture: drag it to its place</source>
        <translation>El texto o la imagen elegidos en un mapa pequeño: arrástrelo a su sitio</translation>
    </message>
    <message>
        <source>Place of an item</source>
        <translation>Posición de un elemento</translation>
    </message>
</context>
<context>
    <name>tavrin::Tile</name>
    <message>
        <source>%1: missing</source>
        <translation>%1: falta</translation>
    </message>
</context>
<context>
    <name>tavrin::TileRow</name>
    <message>
        <source>%1: looks</source>
        <translation>%1: aspectos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tavrin::WaitingSheets</name>
    <message>
        <source>waits</source>
        <translation>espera</translation>
    </message>
    <message>
        <source>is being sent</source>
        <translation>se está enviando</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>en la impresora</translation>
    </message>
    <message>
        <source>may have been printed</source>
        <translation>quizá ya impresa</translation>
    </message>
    <message>
        <source>Sheets that are not printed yet</source>
        <translation>Hojas que aún no se han imprimido</translation>
    </message>
    <message>
        <source>Sheets on their way to a printer, and those that could not be printed</source>
        <translation>Hojas en camino a una impresora y las que no se pudieron imprimir</translation>
    </message>
    <message>
        <source>Each sheet with its printer and how it stands; rest on one to read why</source>
        <translation>Cada hoja con su impresora y su estado; deténgase en una para leer el motivo</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message>
        <source>Sends the selected sheets to their printers once more</source>
        <translation>Envía de nuevo las hojas seleccionadas a sus impresoras</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Forgets the selected sheets; they are not printed</source>
        <translation>Olvida las hojas seleccionadas; no se imprimen</translation>
    </message>
    <message>
        <source>What is selected may have been printed already. Print it once more?</source>
        <translation>Es posible que lo seleccionado ya se haya imprimido. ¿Imprimirlo de nuevo?</translation>
    </message>
    <message>
        <source>Print Once More</source>
        <translation>Imprimir de nuevo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tavrin::WordRow</name>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (no instalada)</translation>
    </message>
</context>
<context>
    <name>tavrin::WorkBar</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Parando...</translation>
    </message>
</context>
<context>
    <name>tavrin::ZoomSlider</name>
    <message>
        <source>Zoom</source>
        <translation>Ampliación</translation>
    </message>
    <message>
        <source>Smaller to the left, larger to the right</source>
        <translation>Menor a la izquierda, mayor a la derecha</translation>
    </message>
</context>
</TS>
