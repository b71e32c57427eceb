<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Delivery</name>
    <message>
        <source>%1 took the whole mail and did not say whether it keeps it. It may have gone.</source>
        <translation>%1 hat die ganze Mail angenommen und nicht gesagt, ob sie behalten wird. Sie kann angekommen sein.</translation>
    </message>
    <message>
        <source>The sending was stopped.</source>
        <translation>Das Senden wurde angehalten.</translation>
    </message>
    <message>
        <source>The outbox cannot be written to, so nothing was sent.</source>
        <translation>In den Postausgang kann nicht geschrieben werden, deshalb wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The mail has %1 and %2 takes %3 at most. Nothing was sent; a smaller picture may do.</source>
        <translation>Die Mail hat %1, und %2 nimmt höchstens %3. Es wurde nichts gesendet; ein kleineres Bild geht vielleicht.</translation>
    </message>
    <message>
        <source>%1 does not take the account name or the password.</source>
        <translation>%1 nimmt den Kontonamen oder das Passwort nicht an.</translation>
    </message>
    <message>
        <source>%1 does not take the account name or the password (%2).</source>
        <translation>%1 nimmt den Kontonamen oder das Passwort nicht an (%2).</translation>
    </message>
    <message>
        <source>%1 refuses the mail: %2</source>
        <translation>%1 weist die Mail ab: %2</translation>
    </message>
    <message>
        <source>No mail server %1 is found: its name is wrong, or there is no network.</source>
        <translation>Der Mailserver %1 wird nicht gefunden: Sein Name ist falsch, oder es gibt kein Netz.</translation>
    </message>
    <message>
        <source>%1 does not answer on port %2.</source>
        <translation>%1 antwortet nicht an Port %2.</translation>
    </message>
    <message>
        <source>%1 keeps silent for %2 seconds.</source>
        <translation>%1 schweigt seit %2 Sekunden.</translation>
    </message>
    <message>
        <source>%1 offers no encryption (STARTTLS) on port %2, so nothing was sent.</source>
        <translation>%1 bietet an Port %2 keine Verschlüsselung (STARTTLS) an, deshalb wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not to be trusted, so nothing was sent: %2</source>
        <translation>Dem Zertifikat von %1 ist nicht zu trauen, deshalb wurde nichts gesendet: %2</translation>
    </message>
    <message>
        <source>No encrypted connection to %1 comes about; is the port right? %2</source>
        <translation>Es kommt keine verschlüsselte Verbindung zu %1 zustande; stimmt der Port? %2</translation>
    </message>
    <message>
        <source>The connection to %1 broke off: %2.</source>
        <translation>Die Verbindung zu %1 ist abgebrochen: %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the mail.</source>
        <translation>Der Speicher reicht für die Mail nicht aus.</translation>
    </message>
    <message>
        <source>There is no mail server in the settings.</source>
        <translation>In den Einstellungen steht kein Mailserver.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a mail server.</source>
        <translation>„%1“ ist kein Name eines Mailservers.</translation>
    </message>
    <message>
        <source>The account name or the password of the mail server holds a control character.</source>
        <translation>Der Kontoname oder das Passwort des Mailservers enthält ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>The port of the mail server is no number from 1 to 65535.</source>
        <translation>Der Port des Mailservers ist keine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address to send from.</source>
        <translation>„%1“ ist keine Adresse, von der gesendet werden kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mail address.</source>
        <translation>„%1“ ist keine Mailadresse.</translation>
    </message>
    <message>
        <source>The library that sends mails cannot be started.</source>
        <translation>Die Bibliothek, die Mails sendet, lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>Tavrin was closed while the mail was sent.</source>
        <translation>Tavrin wurde geschlossen, während die Mail gesendet wurde.</translation>
    </message>
    <message>
        <source>Tavrin ended while the mail was handed over. It may have gone.</source>
        <translation>Tavrin endete, während die Mail übergeben wurde. Sie kann angekommen sein.</translation>
    </message>
    <message>
        <source>The default mail server is not set up: %1.</source>
        <translation>Der vorgegebene Mailserver ist nicht eingerichtet: %1.</translation>
    </message>
    <message>
        <source>%1 is missing in %2</source>
        <translation>%1 fehlt in %2</translation>
    </message>
    <message>
        <source>There is no address to send from: the account name of the mail server is none, and relay-account is missing in %1.</source>
        <translation>Es gibt keine Adresse, von der gesendet werden kann: Der Kontoname des Mailservers ist keine, und relay-account fehlt in %1.</translation>
    </message>
    <message>
        <source>The gateway for text messages is not set up: text-gateway is missing in %1.</source>
        <translation>Der Übergang für Textnachrichten ist nicht eingerichtet: text-gateway fehlt in %1.</translation>
    </message>
    <message>
        <source>The outbox is full (mails: %1, MB: %2); it takes %3 mails and %4 MB. Send or discard some of them.</source>
        <translation>Der Postausgang ist voll (Mails: %1, MB: %2); er fasst %3 Mails und %4 MB. Senden oder verwerfen Sie einige davon.</translation>
    </message>
    <message>
        <source>The outbox %1 cannot be written to: %2.</source>
        <translation>In den Postausgang %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>its file system knows no locks</source>
        <translation>sein Dateisystem kennt keine Sperren</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be attached: %2.</source>
        <translation>%1 lässt sich nicht anhängen: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read; what is attached lies beside it.</source>
        <translation>%1 ist nicht lesbar; was angehängt ist, liegt daneben.</translation>
    </message>
    <message>
        <source>The sender: %1.</source>
        <translation>Der Absender: %1.</translation>
    </message>
    <message>
        <source>The address for answers: %1.</source>
        <translation>Die Adresse für Antworten: %1.</translation>
    </message>
    <message>
        <source>The recipient: %1.</source>
        <translation>Der Empfänger: %1.</translation>
    </message>
    <message>
        <source>there is no address</source>
        <translation>es gibt keine Adresse</translation>
    </message>
    <message>
        <source>the address is too long</source>
        <translation>die Adresse ist zu lang</translation>
    </message>
    <message>
        <source>the address begins with a hyphen</source>
        <translation>die Adresse beginnt mit einem Bindestrich</translation>
    </message>
    <message>
        <source>the address holds a line break or another control character</source>
        <translation>die Adresse enthält einen Zeilenumbruch oder ein anderes Steuerzeichen</translation>
    </message>
    <message>
        <source>the address holds a character that no address has, such as a blank, a comma or a bracket</source>
        <translation>die Adresse enthält ein Zeichen, das keine Adresse hat, wie ein Leerzeichen, ein Komma oder eine Klammer</translation>
    </message>
    <message>
        <source>the address is no text</source>
        <translation>die Adresse ist kein Text</translation>
    </message>
    <message>
        <source>The printing system (CUPS) does not answer; see that it runs.</source>
        <translation>Das Drucksystem (CUPS) antwortet nicht; sehen Sie nach, ob es läuft.</translation>
    </message>
    <message>
        <source>This program was built without a printing system, so there are no printers; a sheet can be saved as a PDF and printed from there.</source>
        <translation>Dieses Programm wurde ohne Drucksystem gebaut, deshalb gibt es keine Drucker; ein Blatt lässt sich als PDF speichern und von dort drucken.</translation>
    </message>
    <message>
        <source>There are no printers on this machine.</source>
        <translation>An diesem Rechner gibt es keine Drucker.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Es gibt keinen Drucker „%1“.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>Es gibt keinen Drucker „%1“; meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; takes no jobs at present.</source>
        <translation>Der Drucker „%1“ nimmt zurzeit keine Aufträge an.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is stopped.</source>
        <translation>Der Drucker „%1“ ist angehalten.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is stopped: %2.</source>
        <translation>Der Drucker „%1“ ist angehalten: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print now: %2.</source>
        <translation>Der Drucker „%1“ kann jetzt nicht drucken: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be asked: %2.</source>
        <translation>Der Drucker „%1“ lässt sich nicht fragen: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the sheet: %2.</source>
        <translation>Der Drucker „%1“ nimmt das Blatt nicht an: %2.</translation>
    </message>
    <message>
        <source>The sheet could not be sent to the printer &quot;%1&quot;: %2.</source>
        <translation>Das Blatt konnte nicht an den Drucker „%1“ gesendet werden: %2.</translation>
    </message>
    <message>
        <source>its file %1 cannot be read</source>
        <translation>seine Datei %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>ein Grund wurde nicht genannt</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>es wurde abgebrochen</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not go on: %2.</source>
        <translation>Der Drucker „%1“ macht nicht weiter: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not print it.</source>
        <translation>Der Drucker „%1“ hat es nicht gedruckt.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not print it: %2.</source>
        <translation>Der Drucker „%1“ hat es nicht gedruckt: %2.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not give it back. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>Der Drucker „%1“ gibt es nicht zurück. Es kann schon gedruckt sein; sehen Sie am Drucker nach, bevor es noch einmal gesendet wird.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not know it any more. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>Der Drucker „%1“ kennt es nicht mehr. Es kann schon gedruckt sein; sehen Sie am Drucker nach, bevor es noch einmal gesendet wird.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be asked. It may have been printed already; look at the printer before it is sent again.</source>
        <translation>Der Drucker „%1“ lässt sich nicht fragen. Es kann schon gedruckt sein; sehen Sie am Drucker nach, bevor es noch einmal gesendet wird.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has the sheet and does not give it back.</source>
        <translation>Der Drucker „%1“ hat das Blatt und gibt es nicht zurück.</translation>
    </message>
    <message>
        <source>The program was ended before the sheet was sent.</source>
        <translation>Das Programm wurde beendet, bevor das Blatt gesendet war.</translation>
    </message>
    <message>
        <source>Another program is at work with this sheet.</source>
        <translation>Ein anderes Programm arbeitet gerade mit diesem Blatt.</translation>
    </message>
    <message>
        <source>The folder %1 for sheets that wait cannot be made: %2.</source>
        <translation>Der Ordner %1 für wartende Blätter lässt sich nicht anlegen: %2.</translation>
    </message>
    <message>
        <source>The sheet cannot be kept in %1: %2.</source>
        <translation>Das Blatt lässt sich nicht in %1 aufbewahren: %2.</translation>
    </message>
    <message>
        <source>The colour profile %1 cannot be used: %2.</source>
        <translation>Das Farbprofil %1 ist nicht zu verwenden: %2.</translation>
    </message>
    <message>
        <source>it is no ICC profile</source>
        <translation>es ist kein ICC-Profil</translation>
    </message>
    <message>
        <source>it is for a printer that takes four inks, and sheets are sent in red, green and blue; take the printer&apos;s RGB profile</source>
        <translation>es ist für einen Drucker mit vier Farben, und Blätter werden in Rot, Grün und Blau gesendet; nehmen Sie das RGB-Profil des Druckers</translation>
    </message>
    <message>
        <source>it is not for red, green and blue</source>
        <translation>es ist nicht für Rot, Grün und Blau</translation>
    </message>
    <message>
        <source>it does not tell how to print</source>
        <translation>es sagt nicht, wie gedruckt wird</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>es ist beschädigt</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>a paper jam</source>
        <translation>ein Papierstau</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>das Papierfach fehlt</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>eine Klappe ist offen</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>eine Tür ist offen</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>kein Toner</translation>
    </message>
    <message>
        <source>the waste box is full</source>
        <translation>der Resttintenbehälter ist voll</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>das Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>ausgeschaltet oder nicht angeschlossen</translation>
    </message>
    <message>
        <source>cannot be reached yet</source>
        <translation>noch nicht erreichbar</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>teilweise angehalten</translation>
    </message>
    <message>
        <source>held back</source>
        <translation>zurückgehalten</translation>
    </message>
    <message>
        <source>its driver is incomplete</source>
        <translation>sein Treiber ist unvollständig</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 existiert nicht</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>no permission to write into the folder %1</source>
        <translation>keine Erlaubnis, in den Ordner %1 zu schreiben</translation>
    </message>
    <message>
        <source>the folder %1 can only be read</source>
        <translation>der Ordner %1 kann nur gelesen werden</translation>
    </message>
    <message>
        <source>the file would be larger than this disk allows</source>
        <translation>die Datei wäre größer, als dieser Datenträger zulässt</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>es gibt einen Ordner dieses Namens</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>%1 is write-protected and stays as it is</source>
        <translation>%1 ist schreibgeschützt und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Line %1 of delivery.conf (%2) means nothing.</source>
        <translation>Zeile %1 von delivery.conf (%2) bedeutet nichts.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The file of certificates %1 cannot be read or holds none, so nothing was sent.</source>
        <translation>Die Zertifikatsdatei %1 ist nicht lesbar oder enthält keine, deshalb wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>out of ink or ribbon</source>
        <translation>Tinte oder Farbband leer</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no full picture to edit.</source>
        <translation>Es gibt kein volles Bild zum Bearbeiten.</translation>
    </message>
    <message>
        <source>Nothing can be edited: the picture of the silhouette cannot be read.</source>
        <translation>Nichts kann bearbeitet werden: Das Bild der Silhouette ist nicht lesbar.</translation>
    </message>
    <message>
        <source>This step cannot be undone: %1.</source>
        <translation>Dieser Schritt lässt sich nicht zurücknehmen: %1.</translation>
    </message>
    <message>
        <source>This step stays: its file %1 cannot be read.</source>
        <translation>Dieser Schritt bleibt: Seine Datei %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The last stroke cannot be undone: its file could not be written.</source>
        <translation>Der letzte Strich lässt sich nicht zurücknehmen: Seine Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The recording is full: what is done from here on stays in the picture, but no replay has it.</source>
        <translation>Die Aufzeichnung ist voll: Was ab hier geschieht, bleibt im Bild, wird aber nicht wiederholt.</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>den Ordner %1 gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>no permission to write into the folder %1</source>
        <translation>keine Erlaubnis, in den Ordner %1 zu schreiben</translation>
    </message>
    <message>
        <source>the folder %1 can only be read</source>
        <translation>der Ordner %1 ist nur lesbar</translation>
    </message>
    <message>
        <source>the file would be larger than this disk allows</source>
        <translation>die Datei wäre größer, als dieser Datenträger erlaubt</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>that is no file of edits</source>
        <translation>das ist keine Datei mit Strichen</translation>
    </message>
    <message>
        <source>it is too large for a file of edits</source>
        <translation>sie ist zu groß für eine Datei mit Strichen</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie ist nicht lesbar</translation>
    </message>
    <message>
        <source>it does not begin with &quot;%1&quot;</source>
        <translation>sie beginnt nicht mit „%1“</translation>
    </message>
    <message>
        <source>it has no line &quot;view WIDTH HEIGHT&quot;</source>
        <translation>ihr fehlt die Zeile „view WIDTH HEIGHT“</translation>
    </message>
    <message>
        <source>a file of edits begins with &quot;%1&quot;</source>
        <translation>eine Datei mit Strichen beginnt mit „%1“</translation>
    </message>
    <message>
        <source>only version %1 of files of edits is known here</source>
        <translation>hier ist nur Version %1 solcher Dateien bekannt</translation>
    </message>
    <message>
        <source>there is a view already</source>
        <translation>view steht schon da</translation>
    </message>
    <message>
        <source>view takes width and height in pixels, each 1 to 100000</source>
        <translation>view nimmt Breite und Höhe in Pixeln, je 1 bis 100000</translation>
    </message>
    <message>
        <source>zoom stands before the first item</source>
        <translation>zoom steht vor dem ersten Eintrag</translation>
    </message>
    <message>
        <source>zoom takes the pixels of a point of the view, 0.001 to 1000</source>
        <translation>zoom nimmt die Pixel je Punkt der Ansicht, 0.001 bis 1000</translation>
    </message>
    <message>
        <source>seed takes a whole number from 0 on</source>
        <translation>seed nimmt eine ganze Zahl ab 0</translation>
    </message>
    <message>
        <source>the line &quot;view WIDTH HEIGHT&quot; comes before the items</source>
        <translation>die Zeile „view WIDTH HEIGHT“ steht vor den Einträgen</translation>
    </message>
    <message>
        <source>an item is a kind and up to four values</source>
        <translation>ein Eintrag ist eine Art und bis zu vier Werte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 takes 1 value</source>
        <translation>%1 nimmt 1 Wert</translation>
    </message>
    <message>
        <source>%1 takes %2 values</source>
        <translation>%1 nimmt %2 Werte</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 has %2 %3, and it goes from %4 to %5</source>
        <translation>Bei %1 ist %2 %3 – erlaubt ist %4 bis %5</translation>
    </message>
    <message>
        <source>mouse down</source>
        <translation>Maustaste gedrückt</translation>
    </message>
    <message>
        <source>mouse up</source>
        <translation>Maustaste losgelassen</translation>
    </message>
    <message>
        <source>mouse dragged</source>
        <translation>Maus gezogen</translation>
    </message>
    <message>
        <source>brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>sliders of the brush</source>
        <translation>Regler des Pinsels</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>colour from the picture</source>
        <translation>Farbe aus dem Bild</translation>
    </message>
    <message>
        <source>colour of the selection</source>
        <translation>Farbe der Auswahl</translation>
    </message>
    <message>
        <source>check box</source>
        <translation>Kästchen</translation>
    </message>
    <message>
        <source>check box of the selection</source>
        <translation>Kästchen der Auswahl</translation>
    </message>
    <message>
        <source>selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>zoom home</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>scale of the radius</source>
        <translation>Maßstab des Radius</translation>
    </message>
    <message>
        <source>editor entered again</source>
        <translation>Airbrush neu geöffnet</translation>
    </message>
    <message>
        <source>selection as it was found</source>
        <translation>vorgefundene Auswahl</translation>
    </message>
    <message>
        <source>anchor</source>
        <translation>Anker</translation>
    </message>
    <message>
        <source>way to the anchor</source>
        <translation>Weg zum Anker</translation>
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
        <translation>das Zeichen</translation>
    </message>
    <message>
        <source>the state</source>
        <translation>der Zustand</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>the slider</source>
        <translation>der Regler</translation>
    </message>
    <message>
        <source>the radius</source>
        <translation>der Radius</translation>
    </message>
    <message>
        <source>the hardness</source>
        <translation>die Härte</translation>
    </message>
    <message>
        <source>the transparency</source>
        <translation>die Transparenz</translation>
    </message>
    <message>
        <source>the tolerance</source>
        <translation>die Toleranz</translation>
    </message>
    <message>
        <source>the source</source>
        <translation>die Quelle</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>die Höhe</translation>
    </message>
    <message>
        <source>the other height</source>
        <translation>die andere Höhe</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>die Farbe</translation>
    </message>
    <message>
        <source>the tool&apos;s colour</source>
        <translation>die Farbe des Werkzeugs</translation>
    </message>
    <message>
        <source>the way across</source>
        <translation>der Weg quer</translation>
    </message>
    <message>
        <source>the way down</source>
        <translation>der Weg hinab</translation>
    </message>
    <message>
        <source>Strokes that did not meet the picture: %1 of %2.</source>
        <translation>Striche, die das Bild nicht getroffen haben: %1 von %2.</translation>
    </message>
</context>
<context>
    <name>FileFilters</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>State files (*.qlx)</source>
        <translation>Standdateien (*.qlx)</translation>
    </message>
</context>
<context>
    <name>Habits</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The words of the window, from the next start on</source>
        <translation>Die Sprache des Fensters, ab dem nächsten Start</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie die Arbeitsfläche</translation>
    </message>
    <message>
        <source>The words change with the next start.</source>
        <translation>Die Sprache wechselt mit dem nächsten Start.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>The colours of the window</source>
        <translation>Die Farben des Fensters</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Prozessoren</translation>
    </message>
    <message>
        <source>How many processors work on a picture; fewer leave some to other programs</source>
        <translation>Wie viele Prozessoren an einem Bild arbeiten; weniger lassen anderen Programmen welche</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Art der Datei</translation>
    </message>
    <message>
        <source>What names of saved pictures end with, until another ending is typed. A clear background is always proposed as PNG</source>
        <translation>Womit die Namen gespeicherter Bilder enden, bis eine andere Endung getippt wird. Ein durchsichtiger Hintergrund wird immer als PNG vorgeschlagen</translation>
    </message>
    <message>
        <source>As the portrait</source>
        <translation>Wie das Porträt</translation>
    </message>
</context>
<context>
    <name>HelpPanels</name>
    <message>
        <source>User&apos;s guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Tavrin: User&apos;s Guide</source>
        <translation>Tavrin: Handbuch</translation>
    </message>
    <message>
        <source>About Tavrin</source>
        <translation>Über Tavrin</translation>
    </message>
    <message>
        <source>Takes the green or blue screen behind a person away and lays another picture there.

Runs on Qt %1. Other people&apos;s work that is in it is listed in its folder of documents, in licences.md.</source>
        <translation>Nimmt die grüne oder blaue Wand hinter einem Menschen weg und legt ein anderes Bild dorthin.

Läuft mit Qt %1. Was von anderen darin steckt, steht in seinem Ordner für Dokumente in licences.md.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>E&amp;ffects</source>
        <translation>&amp;Effekte</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Quick settings</source>
        <translation>Schnelleinstellungen</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Haare</translation>
    </message>
    <message>
        <source>Sets the key for this colour of hair. Auto suits most portraits.</source>
        <translation>Stellt das Freistellen auf diese Haarfarbe ein. Auto passt für die meisten Porträts.</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Blond</source>
        <translation>Blond</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>How much of the background shows through veils, glasses and fine hair.</source>
        <translation>Wie viel Hintergrund durch Schleier, Brillen und feines Haar scheint.</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Screen shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>How much shadow lies on the screen behind the subject.</source>
        <translation>Wie viel Schatten hinter der Person auf der Leinwand liegt.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Some</source>
        <translation>Etwas</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Remove green of the background</source>
        <translation>Grün des Hintergrunds entfernen</translation>
    </message>
    <message>
        <source>Is kept with the picture; it changes no slider.</source>
        <translation>Wird mit dem Bild gespeichert und ändert keinen Regler.</translation>
    </message>
    <message>
        <source>Remove a green tint</source>
        <translation>Grünstich entfernen</translation>
    </message>
    <message>
        <source>Takes more of the screen&apos;s light off skin and hair.</source>
        <translation>Nimmt mehr vom Licht der Leinwand von Haut und Haar.</translation>
    </message>
    <message>
        <source>Bring green back</source>
        <translation>Grün zurückholen</translation>
    </message>
    <message>
        <source>Keeps some of the green of clothes.</source>
        <translation>Behält etwas vom Grün der Kleidung.</translation>
    </message>
    <message>
        <source>Bring more green back</source>
        <translation>Mehr Grün zurückholen</translation>
    </message>
    <message>
        <source>Keeps most of the green of clothes.</source>
        <translation>Behält das meiste Grün der Kleidung.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Freistellen</translation>
    </message>
    <message>
        <source>Remove green</source>
        <translation>Grün entfernen</translation>
    </message>
    <message>
        <source>How much green goes from hair. To the right more goes.</source>
        <translation>Wie viel Grün aus den Haaren geht. Nach rechts geht mehr.</translation>
    </message>
    <message>
        <source>Dark areas</source>
        <translation>Dunkle Stellen</translation>
    </message>
    <message>
        <source>Brings dark hair and clothes back. To the right more comes back; to the left shadows on the screen go.</source>
        <translation>Holt dunkle Haare und Kleidung zurück. Nach rechts kommt mehr zurück, nach links gehen Schatten auf der Leinwand.</translation>
    </message>
    <message>
        <source>White areas</source>
        <translation>Weiße Stellen</translation>
    </message>
    <message>
        <source>Keeps white and light clothes clean. To the right it acts on more of the light tones.</source>
        <translation>Hält weiße und helle Kleidung sauber. Nach rechts wirkt es auf mehr helle Töne.</translation>
    </message>
    <message>
        <source>Green tint</source>
        <translation>Grünstich</translation>
    </message>
    <message>
        <source>The screen&apos;s green light on the subject. To the left more of it is taken off, to the right more is kept.</source>
        <translation>Das grüne Licht der Leinwand auf der Person. Nach links wird mehr davon entfernt, nach rechts bleibt mehr.</translation>
    </message>
    <message>
        <source>How solid veils, glasses and edges are. To the right they become more solid.</source>
        <translation>Wie fest Schleier, Brillen und Kanten sind. Nach rechts werden sie fester.</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Shifts the subject between green and magenta where the screen shines through.</source>
        <translation>Verschiebt die Person zwischen Grün und Magenta, wo die Leinwand durchscheint.</translation>
    </message>
    <message>
        <source>Screen brightness</source>
        <translation>Helligkeit der Leinwand</translation>
    </message>
    <message>
        <source>Takes the screen for brighter or darker than it was measured.</source>
        <translation>Hält die Leinwand für heller oder dunkler als gemessen.</translation>
    </message>
    <message>
        <source>Show the portrait without a key</source>
        <translation>Porträt ohne Freistellen zeigen</translation>
    </message>
    <message>
        <source>The portrait as it was taken, over the background.</source>
        <translation>Das Porträt wie aufgenommen, über dem Hintergrund.</translation>
    </message>
    <message>
        <source>Keep bright greys see-through</source>
        <translation>Helle Grautöne durchsichtig lassen</translation>
    </message>
    <message>
        <source>Bright, nearly grey parts such as glass are not taken for solid.</source>
        <translation>Helle, fast graue Teile wie Glas gelten nicht als fest.</translation>
    </message>
    <message>
        <source>Show what the key takes</source>
        <translation>Zeigen, was wegfällt</translation>
    </message>
    <message>
        <source>Marks the parts of the picture that the key removes.</source>
        <translation>Markiert die Teile des Bildes, die das Freistellen entfernt.</translation>
    </message>
    <message>
        <source>Screen and edges</source>
        <translation>Leinwand und Kanten</translation>
    </message>
    <message>
        <source>Smooth edges</source>
        <translation>Kanten glätten</translation>
    </message>
    <message>
        <source>Softens the outline in the full picture. 0 leaves it as the key made it.</source>
        <translation>Macht den Umriss im vollen Bild weicher. 0 lässt ihn, wie er freigestellt wurde.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Best is slower and cleaner in fine hair.</source>
        <translation>Am besten ist langsamer und in feinem Haar sauberer.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Am besten</translation>
    </message>
    <message>
        <source>Blue screen</source>
        <translation>Blaue Leinwand</translation>
    </message>
    <message>
        <source>The screen is blue and not green.</source>
        <translation>Die Leinwand ist blau und nicht grün.</translation>
    </message>
    <message>
        <source>Transparent picture</source>
        <translation>Durchsichtiges Bild</translation>
    </message>
    <message>
        <source>Saves the subject alone, without a background. It wants PNG or TIFF.</source>
        <translation>Speichert die Person allein, ohne Hintergrund. Braucht PNG oder TIFF.</translation>
    </message>
    <message>
        <source>Hair and fine detail</source>
        <translation>Haare und feine Details</translation>
    </message>
    <message>
        <source>Look for hair</source>
        <translation>Haare suchen</translation>
    </message>
    <message>
        <source>Finds the colour of the hair in the picture and keys it with care.</source>
        <translation>Findet die Haarfarbe im Bild und stellt die Haare behutsam frei.</translation>
    </message>
    <message>
        <source>Remove shadows on the screen</source>
        <translation>Schatten auf der Leinwand entfernen</translation>
    </message>
    <message>
        <source>Clears green shadows that the subject throws on the screen.</source>
        <translation>Räumt grüne Schatten weg, die die Person auf die Leinwand wirft.</translation>
    </message>
    <message>
        <source>No green screen</source>
        <translation>Keine Leinwand</translation>
    </message>
    <message>
        <source>The portrait has no screen; nothing is keyed.</source>
        <translation>Das Porträt hat keine Leinwand; nichts wird freigestellt.</translation>
    </message>
    <message>
        <source>Refined key</source>
        <translation>Verfeinertes Freistellen</translation>
    </message>
    <message>
        <source>A second look at hair and edges. Takes a little longer.</source>
        <translation>Ein zweiter Blick auf Haare und Kanten. Dauert etwas länger.</translation>
    </message>
    <message>
        <source>Soft edges</source>
        <translation>Weiche Kanten</translation>
    </message>
    <message>
        <source>Edges of the refined key. To the left they are hard, to the right soft.</source>
        <translation>Kanten des verfeinerten Freistellens. Links sind sie hart, rechts weich.</translation>
    </message>
    <message>
        <source>Fine hair</source>
        <translation>Feines Haar</translation>
    </message>
    <message>
        <source>Fine detail of the refined key. To the right more single hairs come back.</source>
        <translation>Feine Details des verfeinerten Freistellens. Nach rechts kommen mehr einzelne Haare zurück.</translation>
    </message>
    <message>
        <source>Green of its own</source>
        <translation>Eigenes Grün</translation>
    </message>
    <message>
        <source>Green that belongs to the subject. To the right the refined key keeps more.</source>
        <translation>Grün, das zur Person gehört. Nach rechts behält das verfeinerte Freistellen mehr.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Makes the layer darker to the left, brighter to the right.</source>
        <translation>Macht die Ebene links dunkler, rechts heller.</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>The distance of light and dark. 50 leaves it as it is.</source>
        <translation>Der Abstand von Hell und Dunkel. 50 lässt ihn, wie er ist.</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Paler colours to the left, stronger ones to the right.</source>
        <translation>Links blassere Farben, rechts kräftigere.</translation>
    </message>
    <message>
        <source>Lift shadows</source>
        <translation>Tiefen aufhellen</translation>
    </message>
    <message>
        <source>Brightens the dark parts and leaves the light ones.</source>
        <translation>Hellt die dunklen Teile auf und lässt die hellen.</translation>
    </message>
    <message>
        <source>Lower highlights</source>
        <translation>Lichter abdunkeln</translation>
    </message>
    <message>
        <source>Darkens the brightest parts, such as shiny skin.</source>
        <translation>Dunkelt die hellsten Teile ab, etwa glänzende Haut.</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Makes fine detail crisper.</source>
        <translation>Macht feine Details knackiger.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Less red to the left, more to the right.</source>
        <translation>Links weniger Rot, rechts mehr.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Less green to the left, more to the right.</source>
        <translation>Links weniger Grün, rechts mehr.</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Less blue to the left, more to the right.</source>
        <translation>Links weniger Blau, rechts mehr.</translation>
    </message>
    <message>
        <source>Cooler</source>
        <translation>Kühler</translation>
    </message>
    <message>
        <source>Takes warmth out of the light.</source>
        <translation>Nimmt Wärme aus dem Licht.</translation>
    </message>
    <message>
        <source>Warmer</source>
        <translation>Wärmer</translation>
    </message>
    <message>
        <source>Puts warmth into the light.</source>
        <translation>Bringt Wärme ins Licht.</translation>
    </message>
    <message>
        <source>Place and size</source>
        <translation>Lage und Größe</translation>
    </message>
    <message>
        <source>Size, percent</source>
        <translation>Größe, Prozent</translation>
    </message>
    <message>
        <source>100 percent fits the layer to the picture. To the right it grows.</source>
        <translation>100 Prozent passt die Ebene ins Bild ein. Nach rechts wächst sie.</translation>
    </message>
    <message>
        <source>Left, right</source>
        <translation>Links, rechts</translation>
    </message>
    <message>
        <source>Moves the layer, in thousandths of the picture&apos;s width.</source>
        <translation>Verschiebt die Ebene, in Tausendsteln der Bildbreite.</translation>
    </message>
    <message>
        <source>Down, up</source>
        <translation>Unten, oben</translation>
    </message>
    <message>
        <source>Moves the layer, in thousandths of the picture&apos;s height.</source>
        <translation>Verschiebt die Ebene, in Tausendsteln der Bildhöhe.</translation>
    </message>
    <message>
        <source>Rotate and flip</source>
        <translation>Drehen und spiegeln</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Turns the layer by quarters.</source>
        <translation>Dreht die Ebene um Viertel.</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Gerade richten</translation>
    </message>
    <message>
        <source>Tilts the layer by degrees. The number takes tenths.</source>
        <translation>Neigt die Ebene um Grade. Die Zahl nimmt Zehntel.</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Left and right change places.</source>
        <translation>Links und rechts tauschen die Plätze.</translation>
    </message>
    <message>
        <source>Cuts this much of the portrait off, in percent, such as the edge of the screen.</source>
        <translation>Schneidet so viel vom Porträt ab, in Prozent, etwa den Rand der Leinwand.</translation>
    </message>
    <message>
        <source>Clip the portrait</source>
        <translation>Porträt beschneiden</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Key, light, colour and place of both layers</source>
        <translation>Freistellung, Licht, Farbe und Platz beider Ebenen</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Beim Start</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Habits</source>
        <translation>Gewohnheiten</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>The portrait that stands there at the start</source>
        <translation>Das Porträt, das beim Start da ist</translation>
    </message>
    <message>
        <source>Select Startup Foreground File</source>
        <translation>Porträt für den Start wählen</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The background that stands there at the start</source>
        <translation>Der Hintergrund, der beim Start da ist</translation>
    </message>
    <message>
        <source>Select Startup Background File</source>
        <translation>Hintergrund für den Start wählen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The state file whose settings every start, and every reset of a layer, begins with</source>
        <translation>Die Zustandsdatei, mit deren Einstellungen jeder Start und jedes Zurücksetzen einer Ebene beginnt</translation>
    </message>
    <message>
        <source>Select Startup QLX File</source>
        <translation>Zustandsdatei für den Start wählen</translation>
    </message>
    <message>
        <source>Backgrounds to choose from</source>
        <translation>Hintergründe zur Auswahl</translation>
    </message>
    <message>
        <source>The folder whose pictures the strip offers as backgrounds</source>
        <translation>Der Ordner, dessen Bilder der Streifen als Hintergründe anbietet</translation>
    </message>
    <message>
        <source>Folder of the Backgrounds</source>
        <translation>Ordner der Hintergründe</translation>
    </message>
    <message>
        <source>Start-up files, folders, names of saved files and habits</source>
        <translation>Dateien für den Start, Ordner, Namen gespeicherter Dateien und Gewohnheiten</translation>
    </message>
    <message>
        <source>Cartoon and pencil</source>
        <translation>Comic und Bleistift</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>Gezeichnet als</translation>
    </message>
    <message>
        <source>Makes a drawing of the full picture; the preview shows none of it. Each kind starts with lines that suit it.</source>
        <translation>Macht aus dem vollen Bild eine Zeichnung; die Vorschau zeigt nichts davon. Jede Art beginnt mit Linien, die zu ihr passen.</translation>
    </message>
    <message>
        <source>Cartoon</source>
        <translation>Comic</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Old paper</source>
        <translation>Altes Papier</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>To the right lines grow broader.</source>
        <translation>Nach rechts werden die Linien breiter.</translation>
    </message>
    <message>
        <source>Flat areas</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>To the right fine detail becomes one tone.</source>
        <translation>Nach rechts werden feine Einzelheiten zu einem Ton.</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Sterne</translation>
    </message>
    <message>
        <source>Show stars</source>
        <translation>Sterne zeigen</translation>
    </message>
    <message>
        <source>Draws a star on each small bright light, as a filter on a lens does.</source>
        <translation>Zeichnet auf jedes kleine helle Licht einen Stern, wie ein Filter auf dem Objektiv.</translation>
    </message>
    <message>
        <source>How bright a light must be. To the left more count.</source>
        <translation>Wie hell ein Licht sein muss. Nach links zählen mehr.</translation>
    </message>
    <message>
        <source>Largest light</source>
        <translation>Größtes Licht</translation>
    </message>
    <message>
        <source>How large a light may be; 50 is a hundredth of the picture.</source>
        <translation>Wie groß ein Licht sein darf; 50 ist ein Hundertstel des Bildes.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>To the right the arms grow longer.</source>
        <translation>Nach rechts werden die Strahlen länger.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>To the right the arms grow broader.</source>
        <translation>Nach rechts werden die Strahlen breiter.</translation>
    </message>
    <message>
        <source>Arms</source>
        <translation>Strahlen</translation>
    </message>
    <message>
        <source>How many arms a star has.</source>
        <translation>Wie viele Strahlen ein Stern hat.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Turns the star, in degrees.</source>
        <translation>Dreht den Stern, in Grad.</translation>
    </message>
    <message>
        <source>Show the lights that count</source>
        <translation>Lichter zeigen, die zählen</translation>
    </message>
    <message>
        <source>Marks the lights in place of the stars, to set the controls by.</source>
        <translation>Markiert die Lichter statt der Sterne, um die Regler danach zu stellen.</translation>
    </message>
    <message>
        <source>Takes the shadow away.</source>
        <translation>Nimmt den Schatten weg.</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Wand</translation>
    </message>
    <message>
        <source>A shadow on a wall behind the subject, at its starting position.</source>
        <translation>Ein Schatten auf einer Wand hinter der Person, an seinem Ausgangsplatz.</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Boden</translation>
    </message>
    <message>
        <source>A shadow on the floor, at its starting position.</source>
        <translation>Ein Schatten auf dem Boden, an seinem Ausgangsplatz.</translation>
    </message>
    <message>
        <source>Floor and wall</source>
        <translation>Boden, Wand</translation>
    </message>
    <message>
        <source>A shadow over the floor and up a wall, at its starting position.</source>
        <translation>Ein Schatten über den Boden und eine Wand hinauf, an seinem Ausgangsplatz.</translation>
    </message>
    <message>
        <source>Start with usual values</source>
        <translation>Mit üblichen Werten beginnen</translation>
    </message>
    <message>
        <source>Skin is smoothed a little, as suits most faces.</source>
        <translation>Haut wird ein wenig geglättet, wie es zu den meisten Gesichtern passt.</translation>
    </message>
    <message>
        <source>The chosen shape at a usual place and strength; a circle if none is.</source>
        <translation>Die gewählte Form an üblichem Platz in üblicher Stärke; ein Kreis, wenn keine gewählt ist.</translation>
    </message>
    <message>
        <source>Six slender arms on each small light.</source>
        <translation>Sechs schlanke Strahlen auf jedem kleinen Licht.</translation>
    </message>
    <message>
        <source>The finished picture, smoothed a little.</source>
        <translation>Das fertige Bild, ein wenig geglättet.</translation>
    </message>
    <message>
        <source>As on calm water; the line stays where it is.</source>
        <translation>Wie auf ruhigem Wasser; die Linie bleibt, wo sie ist.</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Struktur</translation>
    </message>
    <message>
        <source>A picture of a surface, such as canvas or paper. A file can be dropped here.</source>
        <translation>Das Bild einer Oberfläche, etwa Leinwand oder Papier. Eine Datei kann hierher gezogen werden.</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Frame picture</source>
        <translation>Rahmenbild</translation>
    </message>
    <message>
        <source>Fills the frame with a picture, such as wood or gold. A file can be dropped here.</source>
        <translation>Füllt den Rahmen mit einem Bild, etwa Holz oder Gold. Eine Datei kann hierher gezogen werden.</translation>
    </message>
    <message>
        <source>Picture in the shape</source>
        <translation>Bild in der Form</translation>
    </message>
    <message>
        <source>Fills the silhouette in place of its colour. A file can be dropped here.</source>
        <translation>Füllt den Schattenriss anstelle seiner Farbe. Eine Datei kann hierher gezogen werden.</translation>
    </message>
    <message>
        <source>Select Silhouette Image</source>
        <translation>Bild für den Schattenriss wählen</translation>
    </message>
    <message>
        <source>Frame colour</source>
        <translation>Rahmenfarbe</translation>
    </message>
    <message>
        <source>The colour of a frame that is filled with one.</source>
        <translation>Die Farbe eines Rahmens, der mit einer gefüllt ist.</translation>
    </message>
    <message>
        <source>Select Font Outline Color</source>
        <translation>Farbe der Schriftkontur wählen</translation>
    </message>
    <message>
        <source>Select Frame Overlay Color</source>
        <translation>Farbe des zweiten Rahmens wählen</translation>
    </message>
    <message>
        <source>Colour of the shape</source>
        <translation>Farbe der Form</translation>
    </message>
    <message>
        <source>The colour of the silhouette where no picture fills it.</source>
        <translation>Die Farbe des Schattenrisses, wo ihn kein Bild füllt.</translation>
    </message>
    <message>
        <source>Select Silhouette Color</source>
        <translation>Farbe des Schattenrisses wählen</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Shadow, frames, light, drawings, textures, skin</source>
        <translation>Schatten, Rahmen, Licht, Zeichnungen, Strukturen, Haut</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Einfrieren</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>The opening in which the picture is seen.</source>
        <translation>Die Öffnung, in der das Bild zu sehen ist.</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>Oval</source>
        <translation>Oval</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>Jagged</source>
        <translation>Gezackt</translation>
    </message>
    <message>
        <source>Filled with</source>
        <translation>Gefüllt mit</translation>
    </message>
    <message>
        <source>What the frame is made of: a colour, the picture blurred, the background, or a picture of your own.</source>
        <translation>Woraus der Rahmen ist: eine Farbe, das Bild unscharf, der Hintergrund oder ein eigenes Bild.</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <source>Backgr.</source>
        <translation>Hintergr.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <source>How wide the frame is, in percent of the shorter side.</source>
        <translation>Wie breit der Rahmen ist, in Prozent der kürzeren Seite.</translation>
    </message>
    <message>
        <source>Soft edge</source>
        <translation>Weicher Rand</translation>
    </message>
    <message>
        <source>To the right the inner edge of the frame grows softer.</source>
        <translation>Nach rechts wird der innere Rand des Rahmens weicher.</translation>
    </message>
    <message>
        <source>See-through</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>To the right more of the picture shows through the frame.</source>
        <translation>Nach rechts scheint mehr vom Bild durch den Rahmen.</translation>
    </message>
    <message>
        <source>How blurred the picture is in a frame that is filled with it.</source>
        <translation>Wie unscharf das Bild in einem Rahmen ist, den es füllt.</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>Leaves the lower side of a square or an oval open, like a door.</source>
        <translation>Lässt bei eckig und oval die untere Seite offen, wie bei einer Tür.</translation>
    </message>
    <message>
        <source>Second frame</source>
        <translation>Zweiter Rahmen</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Green guard</source>
        <translation>Grünschutz</translation>
    </message>
    <message>
        <source>Protect</source>
        <translation>Schützen</translation>
    </message>
    <message>
        <source>Keeps green that the subject wears: all that the screen does not reach, or clothes of one colour.</source>
        <translation>Behält Grün, das die Person trägt: alles, was die Leinwand nicht erreicht, oder Kleidung einer Farbe.</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Clothes</source>
        <translation>Kleidung</translation>
    </message>
    <message>
        <source>Counts as screen</source>
        <translation>Zählt als Leinwand</translation>
    </message>
    <message>
        <source>How far a green may be from the screen and still count as screen. To the left more is protected.</source>
        <translation>Wie weit ein Grün von der Leinwand entfernt sein und noch als Leinwand zählen darf. Nach links wird mehr geschützt.</translation>
    </message>
    <message>
        <source>Free edge</source>
        <translation>Freier Rand</translation>
    </message>
    <message>
        <source>Along the outline the guard leaves a band of this width to the key.</source>
        <translation>Am Umriss überlässt der Schutz der Freistellung einen so breiten Streifen.</translation>
    </message>
    <message>
        <source>Counts as clothes</source>
        <translation>Zählt als Kleidung</translation>
    </message>
    <message>
        <source>How far a colour may be from the clothes and still be protected. To the right more is.</source>
        <translation>Wie weit eine Farbe von der Kleidung entfernt sein und noch geschützt werden darf. Nach rechts wird mehr geschützt.</translation>
    </message>
    <message>
        <source>Key holes in the subject</source>
        <translation>Löcher in der Person freistellen</translation>
    </message>
    <message>
        <source>Screen that is seen between an arm and the body goes all the same.</source>
        <translation>Leinwand, die zwischen Arm und Körper zu sehen ist, verschwindet trotzdem.</translation>
    </message>
    <message>
        <source>Show what is protected</source>
        <translation>Zeigen, was geschützt ist</translation>
    </message>
    <message>
        <source>Shows the guard in place of the picture until the panel is closed.</source>
        <translation>Zeigt den Schutz statt des Bildes, bis die Gruppe geschlossen wird.</translation>
    </message>
    <message>
        <source>Behind the subject</source>
        <translation>Hinter der Person</translation>
    </message>
    <message>
        <source>The shadow falls away from the viewer and not towards him.</source>
        <translation>Der Schatten fällt vom Betrachter weg und nicht auf ihn zu.</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Moves the shadow; 500 leaves it behind the subject.</source>
        <translation>Verschiebt den Schatten; 500 lässt ihn hinter der Person.</translation>
    </message>
    <message>
        <source>Up, down</source>
        <translation>Auf, ab</translation>
    </message>
    <message>
        <source>Moves the shadow; 500 leaves it where the subject is.</source>
        <translation>Verschiebt den Schatten; 500 lässt ihn, wo die Person ist.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>500 is as large as the subject; to the right it grows.</source>
        <translation>500 ist so groß wie die Person; nach rechts wächst er.</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weichheit</translation>
    </message>
    <message>
        <source>To the right the shadow&apos;s edge grows softer.</source>
        <translation>Nach rechts wird der Rand des Schattens weicher.</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>To the right the shadow grows darker.</source>
        <translation>Nach rechts wird der Schatten dunkler.</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>Schräge</translation>
    </message>
    <message>
        <source>Lays a shadow on the floor over to one side; 500 is straight.</source>
        <translation>Legt einen Schatten auf dem Boden zur Seite; 500 ist gerade.</translation>
    </message>
    <message>
        <source>Foot line</source>
        <translation>Fußlinie</translation>
    </message>
    <message>
        <source>The line on which the subject stands, red in the preview. To the right it rises.</source>
        <translation>Die Linie, auf der die Person steht, rot in der Vorschau. Nach rechts steigt sie.</translation>
    </message>
    <message>
        <source>Tilt of the line</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Turns the foot line; 500 is level.</source>
        <translation>Dreht die Fußlinie; 500 ist waagerecht.</translation>
    </message>
    <message>
        <source>Wall, right</source>
        <translation>Wand rechts</translation>
    </message>
    <message>
        <source>Where the wall meets the floor at the right edge. 0 and 0: no wall.</source>
        <translation>Wo die Wand am rechten Rand auf den Boden trifft. 0 und 0: keine Wand.</translation>
    </message>
    <message>
        <source>Wall, left</source>
        <translation>Wand links</translation>
    </message>
    <message>
        <source>Where the wall meets the floor at the left edge. 0 and 0: no wall.</source>
        <translation>Wo die Wand am linken Rand auf den Boden trifft. 0 und 0: keine Wand.</translation>
    </message>
    <message>
        <source>Show the room</source>
        <translation>Raum zeigen</translation>
    </message>
    <message>
        <source>Shows wall and floor in grey to place the shadow by; only in the preview.</source>
        <translation>Zeigt Wand und Boden in Grau, um den Schatten danach zu setzen; nur in der Vorschau.</translation>
    </message>
    <message>
        <source>Dark limit</source>
        <translation>Dunkelgrenze</translation>
    </message>
    <message>
        <source>What is darker than this counts as the subject, too. To the right more does.</source>
        <translation>Was dunkler ist, zählt auch zur Person. Nach rechts zählt mehr.</translation>
    </message>
    <message>
        <source>Reflection</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>Show a reflection</source>
        <translation>Spiegelung zeigen</translation>
    </message>
    <message>
        <source>Mirrors the subject below a line, as on water or a polished floor.</source>
        <translation>Spiegelt die Person unter einer Linie, wie auf Wasser oder einem blanken Boden.</translation>
    </message>
    <message>
        <source>Water line</source>
        <translation>Wasserlinie</translation>
    </message>
    <message>
        <source>Where the mirror begins, in percent from the bottom; red in the preview.</source>
        <translation>Wo der Spiegel beginnt, in Prozent von unten; rot in der Vorschau.</translation>
    </message>
    <message>
        <source>100 is as long as the subject; to the left it is shorter.</source>
        <translation>100 ist so lang wie die Person; nach links wird sie kürzer.</translation>
    </message>
    <message>
        <source>Lays the reflection over to one side; 50 is straight.</source>
        <translation>Legt die Spiegelung zur Seite; 50 ist gerade.</translation>
    </message>
    <message>
        <source>Ripples</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>To the right the water line moves more; 0 is a floor.</source>
        <translation>Nach rechts bewegt sich die Wasserlinie mehr; 0 ist ein Boden.</translation>
    </message>
    <message>
        <source>To the right the reflection grows clearer.</source>
        <translation>Nach rechts wird die Spiegelung deutlicher.</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>A graded sheet, a spot, a beam, or a halo around the subject.</source>
        <translation>Ein Verlauf, ein Fleck, ein Strahl oder ein Schein um die Person.</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>Schein</translation>
    </message>
    <message>
        <source>Falls on</source>
        <translation>Fällt auf</translation>
    </message>
    <message>
        <source>What the light changes.</source>
        <translation>Was das Licht verändert.</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Light, inside</source>
        <translation>Licht innen</translation>
    </message>
    <message>
        <source>Where the light begins. 50 changes nothing; to the left it darkens.</source>
        <translation>Wo das Licht beginnt. 50 ändert nichts; nach links wird es dunkler.</translation>
    </message>
    <message>
        <source>Light, outside</source>
        <translation>Licht außen</translation>
    </message>
    <message>
        <source>Where the light ends. 50 changes nothing; to the left it darkens.</source>
        <translation>Wo das Licht endet. 50 ändert nichts; nach links wird es dunkler.</translation>
    </message>
    <message>
        <source>Moves the light. 200 is the middle for a circle, 50 for a cone.</source>
        <translation>Verschiebt das Licht. 200 ist die Mitte für einen Kreis, 50 für einen Kegel.</translation>
    </message>
    <message>
        <source>To the right the light grows.</source>
        <translation>Nach rechts wächst das Licht.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Turns a sheet or a cone, in degrees.</source>
        <translation>Dreht einen Verlauf oder Kegel, in Grad.</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>Wand</translation>
    </message>
    <message>
        <source>Wall Shadow</source>
        <translation>Schatten auf der Wand</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>Boden</translation>
    </message>
    <message>
        <source>Floor Shadow</source>
        <translation>Schatten auf dem Boden</translation>
    </message>
    <message>
        <source>wall and floor</source>
        <translation>Wand und Boden</translation>
    </message>
    <message>
        <source>Wall and Floor Shadow</source>
        <translation>Schatten auf Wand und Boden</translation>
    </message>
    <message>
        <source>No Shadow Active</source>
        <translation>Kein Schatten aktiv</translation>
    </message>
    <message>
        <source>Skin and make-up</source>
        <translation>Haut und Make-up</translation>
    </message>
    <message>
        <source>Smooth skin</source>
        <translation>Haut glätten</translation>
    </message>
    <message>
        <source>Smooths skin in the full picture; the preview shows none of it.</source>
        <translation>Glättet Haut im vollen Bild; die Vorschau zeigt nichts davon.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>How widely skin is blurred. To the right pores and spots go.</source>
        <translation>Wie weit Haut verwischt wird. Nach rechts verschwinden Poren und Flecken.</translation>
    </message>
    <message>
        <source>How much of the smooth skin is mixed in; 80 is all of it.</source>
        <translation>Wie viel der glatten Haut eingemischt wird; 80 ist alles.</translation>
    </message>
    <message>
        <source>Counts as skin</source>
        <translation>Zählt als Haut</translation>
    </message>
    <message>
        <source>How far a colour may be from the skin and still count. 60 suits most faces.</source>
        <translation>Wie weit eine Farbe von der Haut entfernt sein und noch zählen darf. 60 passt zu den meisten Gesichtern.</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Make-up</translation>
    </message>
    <message>
        <source>Evens the colour of the skin. To the right more is laid on.</source>
        <translation>Gleicht die Farbe der Haut aus. Nach rechts wird mehr aufgetragen.</translation>
    </message>
    <message>
        <source>Keep a little grain</source>
        <translation>Etwas Korn behalten</translation>
    </message>
    <message>
        <source>Smooths unevenly, so that skin does not look like plastic.</source>
        <translation>Glättet ungleichmäßig, damit Haut nicht wie Plastik aussieht.</translation>
    </message>
    <message>
        <source>Blend with the original</source>
        <translation>Mit dem Original mischen</translation>
    </message>
    <message>
        <source>Is kept while the program runs; it changes no picture.</source>
        <translation>Bleibt, solange das Programm läuft; ändert kein Bild.</translation>
    </message>
    <message>
        <source>Measure the skin</source>
        <translation>Haut messen</translation>
    </message>
    <message>
        <source>Takes the colour of the skin from this portrait and not an average.</source>
        <translation>Nimmt die Farbe der Haut aus diesem Porträt und nicht einen Mittelwert.</translation>
    </message>
    <message>
        <source>Show what counts as skin</source>
        <translation>Zeigen, was als Haut zählt</translation>
    </message>
    <message>
        <source>Shows the skin in white, to set the controls by.</source>
        <translation>Zeigt die Haut in Weiß, um die Regler danach zu stellen.</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glätten</translation>
    </message>
    <message>
        <source>Smooths surfaces and leaves edges: the portrait before the key, or the finished picture.</source>
        <translation>Glättet Flächen und lässt Kanten: das Porträt vor der Freistellung oder das fertige Bild.</translation>
    </message>
    <message>
        <source>To the right surfaces grow smoother; 0 changes nothing.</source>
        <translation>Nach rechts werden Flächen glatter; 0 ändert nichts.</translation>
    </message>
    <message>
        <source>How much of the texture is mixed in; to the right more.</source>
        <translation>Wie viel von der Struktur eingemischt wird; nach rechts mehr.</translation>
    </message>
    <message>
        <source>Darker to the left, brighter to the right; 50 leaves it.</source>
        <translation>Dunkler nach links, heller nach rechts; 50 lässt es.</translation>
    </message>
    <message>
        <source>How deep the surface is; 50 leaves it as its picture is.</source>
        <translation>Wie tief die Oberfläche ist; 50 lässt sie, wie ihr Bild ist.</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzerrung</translation>
    </message>
    <message>
        <source>How far the surface moves the picture about. Above 10 it tears faces.</source>
        <translation>Wie weit die Oberfläche das Bild verschiebt. Über 10 zerreißt sie Gesichter.</translation>
    </message>
    <message>
        <source>Light parts</source>
        <translation>Helle Teile</translation>
    </message>
    <message>
        <source>Dark parts</source>
        <translation>Dunkle Teile</translation>
    </message>
    <message>
        <source>Raised parts</source>
        <translation>Erhabenes</translation>
    </message>
    <message>
        <source>Whether the dark or the light parts of the texture rise.</source>
        <translation>Ob die dunklen oder die hellen Teile der Struktur erhaben sind.</translation>
    </message>
    <message>
        <source>Texture of the frame</source>
        <translation>Struktur des Rahmens</translation>
    </message>
    <message>
        <source>Texture of the second frame</source>
        <translation>Struktur des zweiten Rahmens</translation>
    </message>
    <message>
        <source>Texture of the reflection</source>
        <translation>Struktur der Spiegelung</translation>
    </message>
    <message>
        <source>Black and white, sepia</source>
        <translation>Schwarzweiß, Sepia</translation>
    </message>
    <message>
        <source>The colours of the portrait. Shape is kept with the picture and leaves its colours; the panel of silhouettes makes one.</source>
        <translation>Die Farben des Porträts. Form wird beim Bild gemerkt und lässt seine Farben; die Gruppe Schattenriss macht einen.</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>S/W</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>The colours of the background.</source>
        <translation>Die Farben des Hintergrunds.</translation>
    </message>
    <message>
        <source>Puts the background out of focus, in thousandths of an inch on paper. To the right it grows softer.</source>
        <translation>Nimmt den Hintergrund aus der Schärfe, in Tausendstel Zoll auf Papier. Nach rechts wird er weicher.</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Softens the finished picture, in thousandths of an inch on paper. It wants a range above 0.</source>
        <translation>Macht das fertige Bild weicher, in Tausendstel Zoll auf Papier. Es braucht einen Bereich über 0.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>How strong a detail may be and still be softened. To the left edges stay sharp.</source>
        <translation>Wie stark eine Einzelheit sein und noch weicher werden darf. Nach links bleiben Kanten scharf.</translation>
    </message>
    <message>
        <source>Silhouette</source>
        <translation>Schattenriss</translation>
    </message>
    <message>
        <source>Show a silhouette</source>
        <translation>Schattenriss zeigen</translation>
    </message>
    <message>
        <source>The portrait becomes a shape in one colour, or cut out of a picture.</source>
        <translation>Das Porträt wird zu einer Form in einer Farbe oder aus einem Bild.</translation>
    </message>
    <message>
        <source>Moves the picture inside the shape; 50 leaves it in place.</source>
        <translation>Verschiebt das Bild in der Form; 50 lässt es am Platz.</translation>
    </message>
    <message>
        <source>Output sizes</source>
        <translation>Ausgabegrößen</translation>
    </message>
    <message>
        <source>Print pages</source>
        <translation>Druckseiten</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Pages to print on, with places for pictures</source>
        <translation>Seiten zum Drucken, mit Plätzen für Bilder</translation>
    </message>
    <message>
        <source>Behind the subject, over the background&apos;s overlay</source>
        <translation>Hinter der Person, über dem Überzug des Hintergrunds</translation>
    </message>
    <message>
        <source>Over the subject</source>
        <translation>Über der Person</translation>
    </message>
    <message>
        <source>Over the subject&apos;s overlay</source>
        <translation>Über dem Überzug der Person</translation>
    </message>
    <message>
        <source>Over everything but frames</source>
        <translation>Über allem außer Rahmen</translation>
    </message>
    <message>
        <source>How wide the item is, in percent.</source>
        <translation>Wie breit das Element ist, in Prozent.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>How high the item is, in percent.</source>
        <translation>Wie hoch das Element ist, in Prozent.</translation>
    </message>
    <message>
        <source>Of the letters, in points.</source>
        <translation>Der Buchstaben, in Punkt.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Heavier letters</source>
        <translation>Kräftigere Buchstaben</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Slanted letters</source>
        <translation>Schräge Buchstaben</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Where shorter lines stand</source>
        <translation>Wo kürzere Zeilen stehen</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>What is drawn of them</source>
        <translation>Was von ihnen gezeichnet wird</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>Weichheit des Schattens</translation>
    </message>
    <message>
        <source>How soft the edge of the letters&apos; shadow is.</source>
        <translation>Wie weich der Rand des Schattens der Buchstaben ist.</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Schatten nach rechts</translation>
    </message>
    <message>
        <source>How far the letters&apos; shadow stands to the right; below 0 to the left.</source>
        <translation>Wie weit der Schatten der Buchstaben rechts steht; unter 0 links.</translation>
    </message>
    <message>
        <source>Shadow upward</source>
        <translation>Schatten nach oben</translation>
    </message>
    <message>
        <source>How far the letters&apos; shadow stands above them; below 0 under them.</source>
        <translation>Wie weit der Schatten über den Buchstaben steht; unter 0 darunter.</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Gewählter Text</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>At 0 the picture cannot be seen, at 100 it hides what is below.</source>
        <translation>Bei 0 ist das Bild nicht zu sehen, bei 100 verdeckt es, was darunter liegt.</translation>
    </message>
    <message>
        <source>Selected picture</source>
        <translation>Gewähltes Bild</translation>
    </message>
    <message>
        <source>Colour of the letters</source>
        <translation>Farbe der Buchstaben</translation>
    </message>
    <message>
        <source>Fills the letters</source>
        <translation>Füllt die Buchstaben</translation>
    </message>
    <message>
        <source>Select Font Fill Color</source>
        <translation>Füllfarbe der Schrift wählen</translation>
    </message>
    <message>
        <source>Colour of the outline</source>
        <translation>Farbe des Umrisses</translation>
    </message>
    <message>
        <source>Goes round the letters</source>
        <translation>Läuft um die Buchstaben</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Farbe des Schattens</translation>
    </message>
    <message>
        <source>Of the letters&apos; shadow</source>
        <translation>Des Schattens der Buchstaben</translation>
    </message>
    <message>
        <source>Select Font Shadow Color</source>
        <translation>Schattenfarbe der Schrift wählen</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>What the item lies over, and what covers it</source>
        <translation>Worüber das Element liegt und was es verdeckt</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What stands on the picture, in as many lines as you like</source>
        <translation>Was auf dem Bild steht, in beliebig vielen Zeilen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>The typeface of the words</source>
        <translation>Die Schriftart des Textes</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Extra large</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>By the ground</source>
        <translation>Je nach Grund</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Anlass</translation>
    </message>
    <message>
        <source>Shadow of the words</source>
        <translation>Schatten des Textes</translation>
    </message>
    <message>
        <source>Makes the words stand out from an unquiet ground.</source>
        <translation>Hebt den Text von unruhigem Grund ab.</translation>
    </message>
    <message>
        <source>One line on the picture; @filename puts the portrait&apos;s name.</source>
        <translation>Eine Zeile auf dem Bild; @filename setzt den Namen des Porträts ein.</translation>
    </message>
    <message>
        <source>How large the words are</source>
        <translation>Wie groß der Text ist</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Where the words stand</source>
        <translation>Wo der Text steht</translation>
    </message>
    <message>
        <source>White, black, or what can be read best on the ground</source>
        <translation>Weiß, schwarz oder was auf dem Grund am besten zu lesen ist</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Words and pictures on the picture</source>
        <translation>Texte und Bilder auf dem Bild</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Texte und Bilder</translation>
    </message>
    <message>
        <source>Insert...</source>
        <translation>Einfügen...</translation>
    </message>
    <message>
        <source>Insert what is filled in for each portrait</source>
        <translation>Einfügen, was für jedes Porträt ausgefüllt wird</translation>
    </message>
    <message>
        <source>File name, number, date or time, filled in for each portrait</source>
        <translation>Dateiname, Nummer, Datum oder Uhrzeit, für jedes Porträt ausgefüllt</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>Schutz</translation>
    </message>
    <message>
        <source>Erase Foreground</source>
        <translation>Vordergrund löschen</translation>
    </message>
    <message>
        <source>Takes the portrait away, so that the background shows</source>
        <translation>Nimmt das Porträt weg, so dass der Hintergrund zu sehen ist</translation>
    </message>
    <message>
        <source>Restore Foreground</source>
        <translation>Vordergrund zurückholen</translation>
    </message>
    <message>
        <source>Brings back what the key took from the portrait</source>
        <translation>Holt zurück, was beim Freistellen vom Porträt verloren ging</translation>
    </message>
    <message>
        <source>Blend Foreground</source>
        <translation>Vordergrund mischen</translation>
    </message>
    <message>
        <source>Mixes portrait and background as the slider says</source>
        <translation>Mischt Porträt und Hintergrund, wie es der Regler sagt</translation>
    </message>
    <message>
        <source>Restore Hair</source>
        <translation>Haare zurückholen</translation>
    </message>
    <message>
        <source>Brings hair of the chosen colour back, without the screen in it</source>
        <translation>Holt Haare der gewählten Farbe zurück, ohne die Leinwand darin</translation>
    </message>
    <message>
        <source>Remove Green Spill</source>
        <translation>Grünstich entfernen</translation>
    </message>
    <message>
        <source>Takes the screen&apos;s light off skin, hair and clothes</source>
        <translation>Nimmt das Licht der Leinwand von Haut, Haaren und Kleidung</translation>
    </message>
    <message>
        <source>Filter Color</source>
        <translation>Farbe filtern</translation>
    </message>
    <message>
        <source>Keeps what is near the chosen colour, and takes the screen out of it</source>
        <translation>Behält, was der gewählten Farbe nahe ist, und nimmt die Leinwand heraus</translation>
    </message>
    <message>
        <source>Blend Edge</source>
        <translation>Kante mischen</translation>
    </message>
    <message>
        <source>Softens an edge where green is near</source>
        <translation>Macht eine Kante weich, wo Grün in der Nähe ist</translation>
    </message>
    <message>
        <source>Restore Black</source>
        <translation>Schwarz zurückholen</translation>
    </message>
    <message>
        <source>Makes dark places grey again that turned green</source>
        <translation>Macht dunkle Stellen wieder grau, die grün geworden sind</translation>
    </message>
    <message>
        <source>Make Whiter</source>
        <translation>Weißer machen</translation>
    </message>
    <message>
        <source>Takes a tint off what is nearly white, such as a veil</source>
        <translation>Nimmt den Farbstich von fast Weißem, etwa einem Schleier</translation>
    </message>
    <message>
        <source>Makes darker or brighter</source>
        <translation>Macht dunkler oder heller</translation>
    </message>
    <message>
        <source>Less or more contrast</source>
        <translation>Weniger oder mehr Kontrast</translation>
    </message>
    <message>
        <source>Makes a place unsharp</source>
        <translation>Macht eine Stelle unscharf</translation>
    </message>
    <message>
        <source>Evens out the light of skin and cloth, and leaves its colour</source>
        <translation>Gleicht das Licht von Haut und Stoff aus und lässt die Farbe</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>Paints with the chosen colour</source>
        <translation>Malt mit der gewählten Farbe</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies from the place where A was pressed on the picture</source>
        <translation>Kopiert von der Stelle, an der auf dem Bild A gedrückt wurde</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Protects what is near a colour from all the other tools</source>
        <translation>Schützt, was einer Farbe nahe ist, vor allen anderen Werkzeugen</translation>
    </message>
    <message>
        <source>Keep Grayscale</source>
        <translation>Helligkeit behalten</translation>
    </message>
    <message>
        <source>Erase only if green</source>
        <translation>Nur Grünes löschen</translation>
    </message>
    <message>
        <source>Restore Green Areas</source>
        <translation>Auch Grünes zurückholen</translation>
    </message>
    <message>
        <source>Lock Anchor</source>
        <translation>Anker festhalten</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Mischung</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Darker</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <source>Brighter</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Gering</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Edge Sample</source>
        <translation>Kantenbereich</translation>
    </message>
    <message>
        <source>Blur Radius</source>
        <translation>Radius der Unschärfe</translation>
    </message>
    <message>
        <source>Smooth Radius</source>
        <translation>Radius der Glättung</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>Mends the finished picture by hand</source>
        <translation>Bessert das fertige Bild von Hand aus</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Steps and edits</source>
        <translation>Schritte und Striche</translation>
    </message>
    <message>
        <source>Folders of the batch</source>
        <translation>Ordner des Stapels</translation>
    </message>
    <message>
        <source>Files and names</source>
        <translation>Dateien und Namen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>What will be made</source>
        <translation>Was gemacht wird</translation>
    </message>
    <message>
        <source>Last pictures</source>
        <translation>Letzte Bilder</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fehlschläge</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Whole folders of portraits over folders of backgrounds</source>
        <translation>Ganze Ordner von Porträts über Ordnern von Hintergründen</translation>
    </message>
    <message>
        <source>Portraits</source>
        <translation>Porträts</translation>
    </message>
    <message>
        <source>The folder with the portraits; without one the present portrait is taken</source>
        <translation>Der Ordner mit den Porträts; ohne ihn wird das jetzige Porträt genommen</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Hintergründe</translation>
    </message>
    <message>
        <source>Every portrait is laid over every background of this folder; without one over the present background</source>
        <translation>Jedes Porträt wird über jeden Hintergrund dieses Ordners gelegt; ohne ihn über den jetzigen Hintergrund</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Stände</translation>
    </message>
    <message>
        <source>State files, each of which makes pictures of its own; without a folder the present settings are taken</source>
        <translation>Standdateien, von denen jede eigene Bilder macht; ohne Ordner gelten die jetzigen Einstellungen</translation>
    </message>
    <message>
        <source>Finished pictures</source>
        <translation>Fertige Bilder</translation>
    </message>
    <message>
        <source>The folder into which the pictures go</source>
        <translation>Der Ordner, in den die Bilder kommen</translation>
    </message>
    <message>
        <source>Overlay over the background</source>
        <translation>Auflage über dem Hintergrund</translation>
    </message>
    <message>
        <source>A picture with clear parts between background and portrait. A file can be dropped here.</source>
        <translation>Ein Bild mit durchsichtigen Teilen zwischen Hintergrund und Porträt. Eine Datei kann hier abgelegt werden.</translation>
    </message>
    <message>
        <source>Select Background Overlay</source>
        <translation>Auflage für den Hintergrund wählen</translation>
    </message>
    <message>
        <source>No background overlay loaded</source>
        <translation>Keine Auflage über dem Hintergrund</translation>
    </message>
    <message>
        <source>Overlay over the portrait</source>
        <translation>Auflage über dem Porträt</translation>
    </message>
    <message>
        <source>A picture with clear parts over the portrait. A file can be dropped here.</source>
        <translation>Ein Bild mit durchsichtigen Teilen über dem Porträt. Eine Datei kann hier abgelegt werden.</translation>
    </message>
    <message>
        <source>Select Forground Overlay</source>
        <translation>Auflage für das Porträt wählen</translation>
    </message>
    <message>
        <source>No foreground overlay loaded</source>
        <translation>Keine Auflage über dem Porträt</translation>
    </message>
    <message>
        <source>Overlay over the whole</source>
        <translation>Auflage über dem Ganzen</translation>
    </message>
    <message>
        <source>A picture with clear parts over everything, such as a frame. A file can be dropped here.</source>
        <translation>Ein Bild mit durchsichtigen Teilen über allem, etwa ein Rahmen. Eine Datei kann hier abgelegt werden.</translation>
    </message>
    <message>
        <source>Select Frame Overlay</source>
        <translation>Auflage für das Ganze wählen</translation>
    </message>
    <message>
        <source>No frame overlay loaded</source>
        <translation>Keine Auflage über dem Ganzen</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Auflagen</translation>
    </message>
    <message>
        <source>Floor, back</source>
        <translation>Boden, hinten</translation>
    </message>
    <message>
        <source>A shadow on the floor, from the feet away from the viewer.</source>
        <translation>Ein Schatten auf dem Boden, von den Füßen weg vom Betrachter.</translation>
    </message>
    <message>
        <source>Wall, back</source>
        <translation>Wand, hinten</translation>
    </message>
    <message>
        <source>A shadow away from the viewer over the floor and up a wall.</source>
        <translation>Ein Schatten weg vom Betrachter über den Boden und eine Wand hinauf.</translation>
    </message>
    <message>
        <source>Takes the frame away.</source>
        <translation>Nimmt den Rahmen weg.</translation>
    </message>
    <message>
        <source>A frame along the four sides.</source>
        <translation>Ein Rahmen entlang der vier Seiten.</translation>
    </message>
    <message>
        <source>A frame around an oval.</source>
        <translation>Ein Rahmen um ein Oval.</translation>
    </message>
    <message>
        <source>A frame around a heart.</source>
        <translation>Ein Rahmen um ein Herz.</translation>
    </message>
    <message>
        <source>A frame with teeth like torn paper.</source>
        <translation>Ein Rahmen mit Zacken wie gerissenes Papier.</translation>
    </message>
    <message>
        <source>A frame of one colour.</source>
        <translation>Ein Rahmen in einer Farbe.</translation>
    </message>
    <message>
        <source>A frame of the picture itself, blurred.</source>
        <translation>Ein Rahmen aus dem Bild selbst, weichgezeichnet.</translation>
    </message>
    <message>
        <source>A frame of the background without the subject.</source>
        <translation>Ein Rahmen aus dem Hintergrund ohne die Person.</translation>
    </message>
    <message>
        <source>Walnut</source>
        <translation>Nussbaum</translation>
    </message>
    <message>
        <source>A frame of dark wood.</source>
        <translation>Ein Rahmen aus dunklem Holz.</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>A frame of brushed gold.</source>
        <translation>Ein Rahmen aus gebürstetem Gold.</translation>
    </message>
    <message>
        <source>Marble</source>
        <translation>Marmor</translation>
    </message>
    <message>
        <source>A frame of pale marble.</source>
        <translation>Ein Rahmen aus hellem Marmor.</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Samt</translation>
    </message>
    <message>
        <source>A frame of red velvet.</source>
        <translation>Ein Rahmen aus rotem Samt.</translation>
    </message>
    <message>
        <source>Takes the light away.</source>
        <translation>Nimmt das Licht weg.</translation>
    </message>
    <message>
        <source>Brighter at one side, darker at the other.</source>
        <translation>Auf der einen Seite heller, auf der anderen dunkler.</translation>
    </message>
    <message>
        <source>A spot of light behind the head.</source>
        <translation>Ein Lichtfleck hinter dem Kopf.</translation>
    </message>
    <message>
        <source>A beam of light from above.</source>
        <translation>Ein Lichtstrahl von oben.</translation>
    </message>
    <message>
        <source>A halo around the subject.</source>
        <translation>Ein Lichtschein um die Person.</translation>
    </message>
    <message>
        <source>The picture is no drawing.</source>
        <translation>Das Bild ist keine Zeichnung.</translation>
    </message>
    <message>
        <source>Black lines and strong colours.</source>
        <translation>Schwarze Linien und kräftige Farben.</translation>
    </message>
    <message>
        <source>A soft pencil sketch.</source>
        <translation>Eine weiche Bleistiftskizze.</translation>
    </message>
    <message>
        <source>Hatched with a pencil.</source>
        <translation>Mit Bleistift schraffiert.</translation>
    </message>
    <message>
        <source>Hatched on old parchment.</source>
        <translation>Auf altem Pergament schraffiert.</translation>
    </message>
    <message>
        <source>Takes the texture away.</source>
        <translation>Nimmt die Struktur weg.</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>As on a painter&apos;s canvas.</source>
        <translation>Wie auf der Leinwand eines Malers.</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>As on finely woven linen.</source>
        <translation>Wie auf fein gewebtem Leinen.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>As on rough drawing paper.</source>
        <translation>Wie auf rauem Zeichenpapier.</translation>
    </message>
    <message>
        <source>Takes the overlays away.</source>
        <translation>Nimmt die Auflagen weg.</translation>
    </message>
    <message>
        <source>A thin golden frame.</source>
        <translation>Ein dünner goldener Rahmen.</translation>
    </message>
    <message>
        <source>Graduation</source>
        <translation>Abschluss</translation>
    </message>
    <message>
        <source>A set of overlays for graduations.</source>
        <translation>Auflagen für Abschlussfeiern.</translation>
    </message>
    <message>
        <source>Winter</source>
        <translation>Winter</translation>
    </message>
    <message>
        <source>A set of overlays for winter.</source>
        <translation>Auflagen für den Winter.</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Feier</translation>
    </message>
    <message>
        <source>A set of overlays for parties.</source>
        <translation>Auflagen für Feiern.</translation>
    </message>
    <message>
        <source>Sets the key for this colour of hair.</source>
        <translation>Stellt das Freistellen auf diese Haarfarbe ein.</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Postausgang</translation>
    </message>
    <message>
        <source>Sends the finished picture by mail</source>
        <translation>Verschickt das fertige Bild per Mail</translation>
    </message>
    <message>
        <source>Sheets to be printed</source>
        <translation>Zu druckende Bögen</translation>
    </message>
    <message>
        <source>A set of overlays of your own.</source>
        <translation>Ein eigener Satz von Auflagen.</translation>
    </message>
    <message>
        <source>Print a folder</source>
        <translation>Einen Ordner drucken</translation>
    </message>
    <message>
        <source>Sort photos by shape</source>
        <translation>Fotos nach Format sortieren</translation>
    </message>
    <message>
        <source>Photo booth</source>
        <translation>Fotobox</translation>
    </message>
    <message>
        <source>This guest</source>
        <translation>Dieser Gast</translation>
    </message>
    <message>
        <source>Text on the picture</source>
        <translation>Text auf dem Bild</translation>
    </message>
    <message>
        <source>How the booth is doing</source>
        <translation>Wie es der Fotobox geht</translation>
    </message>
    <message>
        <source>The photo booth: one press for each guest</source>
        <translation>Die Fotobox: ein Druck für jeden Gast</translation>
    </message>
    <message>
        <source>Where the camera puts the portraits</source>
        <translation>Wohin die Kamera die Porträts legt</translation>
    </message>
    <message>
        <source>Backgrounds, portrait layout</source>
        <translation>Hintergründe, Hochformat</translation>
    </message>
    <message>
        <source>A state file of the same name beside a background is its recipe</source>
        <translation>Eine Standdatei gleichen Namens neben einem Hintergrund ist sein Rezept</translation>
    </message>
    <message>
        <source>Backgrounds, landscape layout</source>
        <translation>Hintergründe, Querformat</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Where the finished pictures go, and a ticket for each press</source>
        <translation>Wohin die fertigen Bilder kommen und für jeden Druck ein Zettel</translation>
    </message>
</context>
<context>
    <name>ShortcutDialog</name>
    <message>
        <source>The desktop takes this key itself.</source>
        <translation>Diese Taste nimmt der Schreibtisch selbst.</translation>
    </message>
    <message>
        <source>Lists, fields and sliders need this key themselves.</source>
        <translation>Listen, Felder und Regler brauchen diese Taste selbst.</translation>
    </message>
    <message>
        <source>A key that is held stands alone, without Ctrl, Alt or Shift.</source>
        <translation>Eine Taste, die gehalten wird, steht allein, ohne Strg, Alt oder Umschalt.</translation>
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
        <translation>%1, Grenze %2</translation>
    </message>
    <message>
        <source>Nothing is keyed: the portrait is shown as it is.</source>
        <translation>Nichts wird freigestellt: das Porträt wird gezeigt, wie es ist.</translation>
    </message>
    <message>
        <source>The colour that the key takes as screen is shown instead.</source>
        <translation>Stattdessen wird die Farbe gezeigt, die als Leinwand gilt.</translation>
    </message>
    <message>
        <source>The map of the green guard is shown instead.</source>
        <translation>Stattdessen wird die Karte des Grünschutzes gezeigt.</translation>
    </message>
    <message>
        <source>Clipped away.</source>
        <translation>Abgeschnitten.</translation>
    </message>
    <message>
        <source>Subject: dark (%1) and near grey (%2).</source>
        <translation>Person: dunkel (%1) und fast grau (%2).</translation>
    </message>
    <message>
        <source>Screen, brighter or darker: its hue fits (distance %1), and it is light enough (%2).</source>
        <translation>Leinwand, heller oder dunkler: der Farbton passt (Abstand %1), und sie ist hell genug (%2).</translation>
    </message>
    <message>
        <source>Screen: nearly its very colour (distance %1).</source>
        <translation>Leinwand: fast genau ihre Farbe (Abstand %1).</translation>
    </message>
    <message>
        <source>Subject: red or blue leads green by more than 40, which no screen does.</source>
        <translation>Person: Rot oder Blau liegt mehr als 40 über Grün, was keine Leinwand tut.</translation>
    </message>
    <message>
        <source>A mix of subject and screen (distance from the screen&apos;s hue %1).</source>
        <translation>Eine Mischung von Person und Leinwand (Abstand vom Farbton der Leinwand %1).</translation>
    </message>
    <message>
        <source>The refined key decided, by what lies around the pixel.</source>
        <translation>Das verfeinerte Freistellen entschied nach dem, was um den Bildpunkt liegt.</translation>
    </message>
    <message>
        <source>Protected: it keeps the portrait&apos;s own colour.</source>
        <translation>Geschützt: es behält die eigene Farbe des Porträts.</translation>
    </message>
    <message>
        <source>Not protected: it is connected to the screen at the border.</source>
        <translation>Nicht geschützt: es hängt mit der Leinwand am Rand zusammen.</translation>
    </message>
    <message>
        <source>Not protected: the screen&apos;s colour inside of the subject.</source>
        <translation>Nicht geschützt: die Farbe der Leinwand innerhalb der Person.</translation>
    </message>
    <message>
        <source>The colour of the protected clothes.</source>
        <translation>Die Farbe der geschützten Kleidung.</translation>
    </message>
    <message>
        <source>Not protected: at the edge of the subject.</source>
        <translation>Nicht geschützt: am Rand der Person.</translation>
    </message>
    <message>
        <source>Not the screen&apos;s colour.</source>
        <translation>Nicht die Farbe der Leinwand.</translation>
    </message>
    <message>
        <source>Off.</source>
        <translation>Aus.</translation>
    </message>
    <message>
        <source>%1 of 255, %2</source>
        <translation>%1 von 255, %2</translation>
    </message>
    <message>
        <source>Nothing of the subject is left here.</source>
        <translation>Von der Person ist hier nichts übrig.</translation>
    </message>
    <message>
        <source>about %1, worked back from the result</source>
        <translation>etwa %1, aus dem Ergebnis zurückgerechnet</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1, y %2</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>Seen by the key</source>
        <translation>Beim Freistellen gesehen</translation>
    </message>
    <message>
        <source>Screen here</source>
        <translation>Leinwand hier</translation>
    </message>
    <message>
        <source>The key</source>
        <translation>Freistellen</translation>
    </message>
    <message>
        <source>Its share</source>
        <translation>Sein Anteil</translation>
    </message>
    <message>
        <source>%1, as a mix of hair and screen</source>
        <translation>%1, als Mischung von Haar und Leinwand</translation>
    </message>
    <message>
        <source>Green guard</source>
        <translation>Grünschutz</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>Eigene Farbe</translation>
    </message>
    <message>
        <source>Spill taken away</source>
        <translation>Entferntes Streulicht</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>x %1  y %2    %3    alpha %4 %    spill %5</source>
        <translation>x %1  y %2    %3    Alpha %4 %    Streulicht %5</translation>
    </message>
</context>
<context>
    <name>tavrin::ActionRow</name>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
</context>
<context>
    <name>tavrin::ActionSearch</name>
    <message>
        <source>Find an Action</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>What to do, or which control</source>
        <translation>Was zu tun ist, oder welcher Regler</translation>
    </message>
    <message>
        <source>Words in any order; arrows choose, Enter takes</source>
        <translation>Wörter in beliebiger Reihenfolge; Pfeile wählen, die Eingabetaste nimmt</translation>
    </message>
    <message>
        <source>Commands and controls</source>
        <translation>Befehle und Regler</translation>
    </message>
    <message>
        <source>%1   (%2)</source>
        <translation>%1   (%2)</translation>
    </message>
    <message>
        <source>Nothing has these words.</source>
        <translation>Nichts hat diese Wörter.</translation>
    </message>
</context>
<context>
    <name>tavrin::AdjustPage</name>
    <message>
        <source>Adjust: %1</source>
        <translation>Anpassen: %1</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>The controls below change the portrait</source>
        <translation>Die Regler darunter ändern das Porträt</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The controls below change the background</source>
        <translation>Die Regler darunter ändern den Hintergrund</translation>
    </message>
</context>
<context>
    <name>tavrin::Airbrush</name>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>Save Edits</source>
        <translation>Striche speichern</translation>
    </message>
    <message>
        <source>Edits (*.edits)</source>
        <translation>Striche (*.edits)</translation>
    </message>
    <message>
        <source>Load Edits</source>
        <translation>Striche laden</translation>
    </message>
    <message>
        <source>Edits (*.edits);;All files (*)</source>
        <translation>Striche (*.edits);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The edits cannot be saved.</source>
        <translation>Die Striche können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Not all edits are in the file.</source>
        <translation>Nicht alle Striche stehen in der Datei.</translation>
    </message>
    <message>
        <source>%1 holds %2 items, and there were %3 more.</source>
        <translation>%1 fasst %2 Einträge, und es waren %3 mehr.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>The edits cannot be loaded.</source>
        <translation>Die Striche können nicht geladen werden.</translation>
    </message>
    <message>
        <source>The edits were made for a picture of %1 x %2 pixels, and this one has %3 x %4: their places go with its height.</source>
        <translation>Die Striche wurden für ein Bild von %1 x %2 Pixel gemacht, und dieses hat %3 x %4: Ihre Stellen richten sich nach der Höhe.</translation>
    </message>
    <message>
        <source>The file has more than %1 items; %2 were left out.</source>
        <translation>Die Datei hat mehr als %1 Einträge; %2 wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Items of kinds that are not known here were left out: %1.</source>
        <translation>Einträge unbekannter Art wurden ausgelassen: %1.</translation>
    </message>
    <message>
        <source>The edits were loaded.</source>
        <translation>Die Striche wurden geladen.</translation>
    </message>
    <message>
        <source>Replay &amp;Edits</source>
        <translation>Striche &amp;wiederholen</translation>
    </message>
    <message>
        <source>Does again what was done with the airbrush, on the picture that stands</source>
        <translation>Macht auf dem jetzigen Bild noch einmal, was mit dem Airbrush gemacht wurde</translation>
    </message>
    <message>
        <source>Sa&amp;ve Edits...</source>
        <translation>Striche s&amp;peichern...</translation>
    </message>
    <message>
        <source>Writes all strokes into a file, to be played on this or another picture</source>
        <translation>Schreibt alle Striche in eine Datei, für dieses oder ein anderes Bild</translation>
    </message>
    <message>
        <source>&amp;Load Edits...</source>
        <translation>Striche &amp;laden...</translation>
    </message>
    <message>
        <source>Plays the strokes of a file on this picture</source>
        <translation>Macht die Striche einer Datei auf diesem Bild</translation>
    </message>
</context>
<context>
    <name>tavrin::BackgroundGrid</name>
    <message>
        <source>All Backgrounds</source>
        <translation>Alle Hintergründe</translation>
    </message>
    <message>
        <source>The portrait over each background</source>
        <translation>Das Porträt vor jedem Hintergrund</translation>
    </message>
    <message>
        <source>No folder of backgrounds was chosen yet.</source>
        <translation>Noch ist kein Ordner mit Hintergründen gewählt.</translation>
    </message>
    <message>
        <source>%1 backgrounds. A click lays one behind the portrait.</source>
        <translation>%1 Hintergründe. Ein Klick legt einen hinter das Porträt.</translation>
    </message>
    <message>
        <source>%1 pictures are being made...</source>
        <translation>%1 Bilder entstehen noch...</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchChoices</name>
    <message>
        <source>Go on as files arrive</source>
        <translation>Weitermachen, wenn Dateien kommen</translation>
    </message>
    <message>
        <source>A run does not end; it takes portraits, backgrounds and states as they come</source>
        <translation>Ein Lauf endet nicht; er nimmt Porträts, Hintergründe und Stände, wie sie kommen</translation>
    </message>
    <message>
        <source>Low resolution (kept only)</source>
        <translation>Kleine Auflösung (nur gemerkt)</translation>
    </message>
    <message>
        <source>Is kept with the settings; a run makes full pictures all the same</source>
        <translation>Wird mit den Einstellungen gemerkt; ein Lauf macht trotzdem volle Bilder</translation>
    </message>
    <message>
        <source>Subfolders are named like their background</source>
        <translation>Unterordner heißen wie ihr Hintergrund</translation>
    </message>
    <message>
        <source>Portraits lie in subfolders of the portraits&apos; folder; each is laid over the background of its subfolder&apos;s name</source>
        <translation>Porträts liegen in Unterordnern des Porträtordners; jedes kommt über den Hintergrund mit dem Namen seines Unterordners</translation>
    </message>
    <message>
        <source>Take the jobs from a list file</source>
        <translation>Aufträge aus einer Listendatei</translation>
    </message>
    <message>
        <source>The first XML file in the portraits&apos; folder says what is made; it is moved into the folder SavedXML there as soon as it is read</source>
        <translation>Die erste XML-Datei im Porträtordner sagt, was gemacht wird; sobald sie gelesen ist, kommt sie dort in den Ordner SavedXML</translation>
    </message>
    <message>
        <source>Type and names of the pictures, watching, lists</source>
        <translation>Art und Namen der Bilder, Überwachen, Listen</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Small files</source>
        <translation>Kleine Dateien</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Without loss, and can be clear in parts</source>
        <translation>Ohne Verlust, und kann durchsichtige Teile haben</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Without loss, for printers</source>
        <translation>Ohne Verlust, für Druckereien</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Joined</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>The names of portrait, background and state, one behind the other</source>
        <translation>Die Namen von Porträt, Hintergrund und Stand hintereinander</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nummern</translation>
    </message>
    <message>
        <source>BatchFile1, BatchFile2 and so on; what lies there stays</source>
        <translation>BatchFile1, BatchFile2 und so weiter; was schon da ist, bleibt</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>A folder for each background, and in it one for each state</source>
        <translation>Ein Ordner je Hintergrund, darin einer je Stand</translation>
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
        <translation>Bilder im Stapel</translation>
    </message>
    <message>
        <source>In the history</source>
        <translation>Im Verlauf</translation>
    </message>
    <message>
        <source>Start, stop and history</source>
        <translation>Start, Halt und Verlauf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Makes the pictures one by one in this window, where each is seen</source>
        <translation>Macht die Bilder eins nach dem anderen in diesem Fenster, wo jedes zu sehen ist</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>Ends the run after the picture in hand; the next run goes on there</source>
        <translation>Beendet den Lauf nach dem Bild in Arbeit; der nächste macht dort weiter</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Forgets what was made, so that a run makes all of it again</source>
        <translation>Vergisst, was gemacht ist, so dass ein Lauf alles noch einmal macht</translation>
    </message>
    <message>
        <source>Start fast</source>
        <translation>Schnell starten</translation>
    </message>
    <message>
        <source>Makes the pictures beside this window, several at a time; the picture that is open stays. It has a history of its own in the folder of the pictures.</source>
        <translation>Macht die Bilder neben diesem Fenster, mehrere zugleich; das offene Bild bleibt. Der Lauf hat einen eigenen Verlauf im Ordner der Bilder.</translation>
    </message>
    <message>
        <source>Look ahead, fast</source>
        <translation>Vorschau, schnell</translation>
    </message>
    <message>
        <source>Lists what the fast run would make, and makes nothing</source>
        <translation>Nennt, was der schnelle Lauf machen würde, und macht nichts</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Diese noch einmal</translation>
    </message>
    <message>
        <source>Makes what failed once more, as soon as its cause is gone</source>
        <translation>Macht noch einmal, was misslang, sobald der Grund weg ist</translation>
    </message>
    <message>
        <source>Choose a Folder: %1</source>
        <translation>Ordner wählen: %1</translation>
    </message>
    <message>
        <source>The batch cannot start.</source>
        <translation>Der Stapel kann nicht beginnen.</translation>
    </message>
    <message>
        <source>The batch stops after the pictures in hand.</source>
        <translation>Der Stapel hält nach den Bildern in Arbeit.</translation>
    </message>
    <message>
        <source>There is no list file in the portraits&apos; folder.</source>
        <translation>Im Porträtordner ist keine Listendatei.</translation>
    </message>
    <message>
        <source>The batch has ended early.</source>
        <translation>Der Stapel ist vorzeitig zu Ende.</translation>
    </message>
    <message>
        <source>Nothing: all of it was made before.</source>
        <translation>Nichts: alles ist schon gemacht.</translation>
    </message>
    <message>
        <source>The batch has ended.</source>
        <translation>Der Stapel ist fertig.</translation>
    </message>
    <message>
        <source>The batch has ended. %1</source>
        <translation>Der Stapel ist fertig. %1</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchPrintPanel</name>
    <message>
        <source>Watch the folder</source>
        <translation>Ordner beobachten</translation>
    </message>
    <message>
        <source>Print a folder</source>
        <translation>Einen Ordner drucken</translation>
    </message>
    <message>
        <source>Prints every photo of a folder on the chosen page, and those that arrive while it is watched</source>
        <translation>Druckt jedes Foto eines Ordners auf die gewählte Seite, und solange er beobachtet wird auch die, die ankommen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>The printer to print on</source>
        <translation>Der Drucker, auf dem gedruckt wird</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>The run goes on and prints photos as they arrive in the folder</source>
        <translation>Der Lauf geht weiter und druckt Fotos, sobald sie im Ordner ankommen</translation>
    </message>
    <message>
        <source>The folder whose photos are printed</source>
        <translation>Der Ordner, dessen Fotos gedruckt werden</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Chooses the folder whose photos are printed</source>
        <translation>Wählt den Ordner, dessen Fotos gedruckt werden</translation>
    </message>
    <message>
        <source>The print page that every photo is printed on</source>
        <translation>Die Druckseite, auf die jedes Foto gedruckt wird</translation>
    </message>
    <message>
        <source>Shows the print pages and chooses the one to print on</source>
        <translation>Zeigt die Druckseiten und wählt die, auf die gedruckt wird</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Prints the photos that were not printed yet</source>
        <translation>Druckt die Fotos, die noch nicht gedruckt wurden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Ends the run after the photo in hand</source>
        <translation>Beendet den Lauf nach dem Foto, das in Arbeit ist</translation>
    </message>
    <message>
        <source>Print All Again</source>
        <translation>Alles neu drucken</translation>
    </message>
    <message>
        <source>Forgets which photos of the folder were printed</source>
        <translation>Vergisst, welche Fotos des Ordners gedruckt wurden</translation>
    </message>
    <message>
        <source>Photos:</source>
        <translation>Fotos:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Gedruckt:</translation>
    </message>
    <message>
        <source>Folder of Photos to Print</source>
        <translation>Ordner mit Fotos zum Drucken</translation>
    </message>
    <message>
        <source>Not everything of the folder is printed.</source>
        <translation>Nicht alles aus dem Ordner ist gedruckt.</translation>
    </message>
    <message>
        <source>There are no printers on this machine.</source>
        <translation>Auf diesem Rechner gibt es keine Drucker.</translation>
    </message>
    <message>
        <source>Batch Print Stopped</source>
        <translation>Stapeldruck angehalten</translation>
    </message>
    <message>
        <source>Printing %1</source>
        <translation>%1 wird gedruckt</translation>
    </message>
    <message>
        <source>Waiting for photos that arrive</source>
        <translation>Wartet auf Fotos, die ankommen</translation>
    </message>
    <message>
        <source>Waiting: %1</source>
        <translation>Wartet: %1</translation>
    </message>
    <message>
        <source>Choose the folder whose photos are to be printed.</source>
        <translation>Wählen Sie den Ordner, dessen Fotos gedruckt werden sollen.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Der Ordner %1 ist nicht da.</translation>
    </message>
</context>
<context>
    <name>tavrin::BatchProgress</name>
    <message>
        <source>Progress of the batch</source>
        <translation>Fortschritt des Stapels</translation>
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
        <translation>In Arbeit ...</translation>
    </message>
    <message>
        <source>About %1 left</source>
        <translation>Noch etwa %1</translation>
    </message>
    <message>
        <source>Pictures made: %1, in %2</source>
        <translation>Gemachte Bilder: %1, in %2</translation>
    </message>
    <message>
        <source>; made before: %1</source>
        <translation>; schon gemacht: %1</translation>
    </message>
    <message>
        <source>; failed: %1</source>
        <translation>; misslungen: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::Binder</name>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 aus</translation>
    </message>
</context>
<context>
    <name>tavrin::BrushSlider</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1, number</source>
        <translation>%1, Zahl</translation>
    </message>
</context>
<context>
    <name>tavrin::Chips</name>
    <message>
        <source>Set here; a click leads to the control</source>
        <translation>Hier gesetzt; ein Klick führt zum Regler</translation>
    </message>
    <message>
        <source>fewer</source>
        <translation>weniger</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 mehr</translation>
    </message>
    <message>
        <source>Shows what else is set here, or only the first</source>
        <translation>Zeigt, was hier noch gesetzt ist, oder nur das erste</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Switched on; a click leads to its controls</source>
        <translation>Eingeschaltet; ein Klick führt zu den Reglern</translation>
    </message>
    <message>
        <source>Switch it off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Texte und Bilder</translation>
    </message>
    <message>
        <source>Texts and pictures: %1</source>
        <translation>Texte und Bilder: %1</translation>
    </message>
    <message>
        <source>On the picture; a click leads to the controls</source>
        <translation>Auf dem Bild; ein Klick führt zu den Reglern</translation>
    </message>
    <message>
        <source>Take all of them away</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Take all texts and pictures away</source>
        <translation>Alle Texte und Bilder entfernen</translation>
    </message>
    <message>
        <source>Put back what it is at the start</source>
        <translation>Den Wert vom Start zurückholen</translation>
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
        <translation>Geändert; ein Klick holt den Vorgabewert zurück</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
</context>
<context>
    <name>tavrin::EditorPage</name>
    <message>
        <source>Radius follows the picture&apos;s size</source>
        <translation>Radius folgt der Bildgröße</translation>
    </message>
    <message>
        <source>Strokes that are replayed at another size of the picture become as much thicker or thinner</source>
        <translation>Striche, die bei anderer Bildgröße wiederholt werden, werden entsprechend dicker oder dünner</translation>
    </message>
    <message>
        <source>Keeps light and dark, and changes only the colour</source>
        <translation>Behält Hell und Dunkel und ändert nur die Farbe</translation>
    </message>
    <message>
        <source>Leaves what has another hue than the screen</source>
        <translation>Lässt stehen, was einen anderen Farbton als die Leinwand hat</translation>
    </message>
    <message>
        <source>Brings back also what is as green as the screen</source>
        <translation>Holt auch zurück, was so grün wie die Leinwand ist</translation>
    </message>
    <message>
        <source>Every stroke begins at the anchor again</source>
        <translation>Jeder Strich beginnt wieder beim Anker</translation>
    </message>
    <message>
        <source>Protects what is not near the colour</source>
        <translation>Schützt, was der Farbe nicht nahe ist</translation>
    </message>
    <message>
        <source>The airbrush opens when the full picture is there.</source>
        <translation>Der Airbrush öffnet sich, wenn das ganze Bild da ist.</translation>
    </message>
    <message>
        <source>Undo, replay and files of edits</source>
        <translation>Rückgängig, Wiederholen und Dateien der Striche</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>%1 (key %2)</source>
        <translation>%1 (Taste %2)</translation>
    </message>
    <message>
        <source>Radius, hardness, transparency, colour</source>
        <translation>Radius, Härte, Deckkraft, Farbe</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>How wide the brush is; [ and ] on the picture</source>
        <translation>Wie breit der Pinsel ist; [ und ] auf dem Bild</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>Härte</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Hart</translation>
    </message>
    <message>
        <source>How far from its middle the brush has its full strength</source>
        <translation>Wie weit von der Mitte der Pinsel seine volle Stärke hat</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Faint</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>How much a stroke does in the middle of the brush</source>
        <translation>Wie viel ein Strich in der Mitte des Pinsels bewirkt</translation>
    </message>
    <message>
        <source>What this tool does, from its least to its most</source>
        <translation>Was dieses Werkzeug bewirkt, vom Wenigsten zum Meisten</translation>
    </message>
    <message>
        <source>Colour...</source>
        <translation>Farbe...</translation>
    </message>
    <message>
        <source>The colour of this tool</source>
        <translation>Die Farbe dieses Werkzeugs</translation>
    </message>
    <message>
        <source>From the picture</source>
        <translation>Aus dem Bild</translation>
    </message>
    <message>
        <source>The next click on the picture takes its colour</source>
        <translation>Der nächste Klick auf das Bild nimmt dessen Farbe</translation>
    </message>
    <message>
        <source>No selection</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>Nothing is protected</source>
        <translation>Nichts ist geschützt</translation>
    </message>
    <message>
        <source>Colours of the portrait</source>
        <translation>Farben des Porträts</translation>
    </message>
    <message>
        <source>Protects by the colours that the portrait was taken with</source>
        <translation>Schützt nach den Farben, mit denen das Porträt aufgenommen wurde</translation>
    </message>
    <message>
        <source>Colours of the result</source>
        <translation>Farben des Ergebnisses</translation>
    </message>
    <message>
        <source>Protects by the colours that are seen</source>
        <translation>Schützt nach den Farben, die zu sehen sind</translation>
    </message>
    <message>
        <source>Pressure of a pen</source>
        <translation>Druck eines Stifts</translation>
    </message>
    <message>
        <source>Changes nothing</source>
        <translation>Ändert nichts</translation>
    </message>
    <message>
        <source>Changes the radius</source>
        <translation>Ändert den Radius</translation>
    </message>
    <message>
        <source>Changes the strength</source>
        <translation>Ändert die Stärke</translation>
    </message>
    <message>
        <source>What a pen on a tablet changes by how hard it is pressed</source>
        <translation>Was ein Stift auf einem Tablett durch seinen Druck ändert</translation>
    </message>
    <message>
        <source>Show alpha</source>
        <translation>Alpha zeigen</translation>
    </message>
    <message>
        <source>Colour of the Tool</source>
        <translation>Farbe des Werkzeugs</translation>
    </message>
    <message>
        <source>The edits are replayed...</source>
        <translation>Die Striche werden wiederholt...</translation>
    </message>
    <message>
        <source>%1 steps to take back, %2 MB on the disk; %3 of %4 items recorded</source>
        <translation>%1 Schritte zum Zurücknehmen, %2 MB auf der Platte; %3 von %4 Einträgen aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>tavrin::EffectsPage</name>
    <message>
        <source>Progress of the smoothing of skin</source>
        <translation>Fortschritt der Hautglättung</translation>
    </message>
    <message>
        <source>The green guard is on.</source>
        <translation>Der Grünschutz ist an.</translation>
    </message>
    <message>
        <source>The picture is frozen into the background.</source>
        <translation>Das Bild ist in den Hintergrund eingefroren.</translation>
    </message>
    <message>
        <source>Texture...</source>
        <translation>Struktur...</translation>
    </message>
    <message>
        <source>Opens the texture of the picture; that of the frame stands below</source>
        <translation>Öffnet die Struktur des Bildes; die des Rahmens steht darunter</translation>
    </message>
    <message>
        <source>Opens the controls: %1</source>
        <translation>Öffnet die Regler: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::EntryDialog</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Takes what is entered here</source>
        <translation>Übernimmt, was hier eingegeben ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tavrin::EventBooth</name>
    <message>
        <source>%1 was set aside.</source>
        <translation>%1 wurde beiseitegelegt.</translation>
    </message>
    <message>
        <source>%1 waits.</source>
        <translation>%1 wartet.</translation>
    </message>
    <message>
        <source>The picture of %1 stands.</source>
        <translation>Das Bild von %1 ist da.</translation>
    </message>
    <message>
        <source>Guests</source>
        <translation>Gäste</translation>
    </message>
    <message>
        <source>No folder of portraits was chosen yet: Setup...</source>
        <translation>Noch kein Ordner mit Porträts gewählt: Einrichten …</translation>
    </message>
    <message>
        <source>Backgrounds of the booth</source>
        <translation>Hintergründe der Fotobox</translation>
    </message>
    <message>
        <source>No folder of backgrounds was chosen yet: Setup...</source>
        <translation>Noch kein Ordner mit Hintergründen gewählt: Einrichten …</translation>
    </message>
    <message>
        <source>The recipe of the booth cannot be kept.</source>
        <translation>Das Rezept der Fotobox kann nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Main Window - Event Mode</source>
        <translation>Hauptfenster – Veranstaltung</translation>
    </message>
    <message>
        <source>Main Window - Adjust/Load Mode</source>
        <translation>Hauptfenster - Anpassen/Laden</translation>
    </message>
    <message>
        <source>No picture is made of this press.</source>
        <translation>Aus diesem Druck wird kein Bild.</translation>
    </message>
    <message>
        <source>The recipe of this background cannot be used.</source>
        <translation>Das Rezept dieses Hintergrunds kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Add a line of text</source>
        <translation>Textzeile hinzufügen</translation>
    </message>
    <message>
        <source>The text is not added.</source>
        <translation>Der Text wurde nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Save the Counts</source>
        <translation>Zählung speichern</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>The counts cannot be written.</source>
        <translation>Die Zählung kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Go to Portrait Layout</source>
        <translation>Zum Hochformat</translation>
    </message>
    <message>
        <source>Go to Landscape Layout</source>
        <translation>Zum Querformat</translation>
    </message>
    <message>
        <source>A press makes nothing while &quot;Save the State with Every Picture&quot; is off.</source>
        <translation>Ein Druck ergibt nichts, solange „Stand mit jedem Bild speichern“ aus ist.</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>texture</source>
        <translation>Struktur</translation>
    </message>
    <message>
        <source>reflection</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>stars</source>
        <translation>Sterne</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>The booth&apos;s pictures are made without: %1</source>
        <translation>Die Bilder der Fotobox entstehen ohne: %1</translation>
    </message>
    <message>
        <source>The prints of the pack are not counted.</source>
        <translation>Die Abzüge des Satzes werden nicht gezählt.</translation>
    </message>
    <message>
        <source>The pack holds %1 prints now.</source>
        <translation>Der Satz hat jetzt %1 Abzüge.</translation>
    </message>
    <message>
        <source>A guest gets %1 copies at most, so that many are printed.</source>
        <translation>Ein Gast bekommt höchstens %1 Abzüge; so viele werden gedruckt.</translation>
    </message>
</context>
<context>
    <name>tavrin::EventPage</name>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Tickets</source>
        <translation>Zettel</translation>
    </message>
    <message>
        <source>Guest screen</source>
        <translation>Gästebildschirm</translation>
    </message>
    <message>
        <source>Shows the picture and the backgrounds to the guests, on a second display where there is one</source>
        <translation>Zeigt den Gästen Bild und Hintergründe, auf einem zweiten Bildschirm, wenn es einen gibt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>From now on each press becomes a picture, beside what is done here</source>
        <translation>Von jetzt an wird aus jedem Druck ein Bild, neben dem, was hier geschieht</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Ends after the picture in hand; presses that wait are made with the next start</source>
        <translation>Endet nach dem Bild in Arbeit; was wartet, wird mit dem nächsten Start gemacht</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Einrichten …</translation>
    </message>
    <message>
        <source>Folders, letter, print page and printer</source>
        <translation>Ordner, Brief, Druckseite und Drucker</translation>
    </message>
    <message>
        <source>Turns to the other layout: its backgrounds, and the output size of its shape</source>
        <translation>Wechselt zum anderen Format: seine Hintergründe und die Ausgabegröße seiner Form</translation>
    </message>
    <message>
        <source>Start, stop, setup, layout</source>
        <translation>Start, Stopp, Einrichten, Format</translation>
    </message>
    <message>
        <source>Search a portrait by name</source>
        <translation>Porträt nach Namen suchen</translation>
    </message>
    <message>
        <source>Shows the first portrait whose name has these letters</source>
        <translation>Zeigt das erste Porträt, dessen Name diese Buchstaben hat</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Mail address or telephone number</source>
        <translation>Mailadresse oder Telefonnummer</translation>
    </message>
    <message>
        <source>Where the picture goes by mail or as a text message</source>
        <translation>Wohin das Bild per Mail oder als Textnachricht geht</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Prints of the next picture, 1 to 10; 1 again after it</source>
        <translation>Abzüge des nächsten Bildes, 1 bis 10; danach wieder 1</translation>
    </message>
    <message>
        <source>One print less</source>
        <translation>Ein Abzug weniger</translation>
    </message>
    <message>
        <source>One print more</source>
        <translation>Ein Abzug mehr</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The picture is made and kept</source>
        <translation>Das Bild wird gemacht und aufbewahrt</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The picture is made and printed</source>
        <translation>Das Bild wird gemacht und gedruckt</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>The picture is made and sent to the mail address</source>
        <translation>Das Bild wird gemacht und an die Mailadresse geschickt</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Textnachricht</translation>
    </message>
    <message>
        <source>The picture is made and sent to the telephone number</source>
        <translation>Das Bild wird gemacht und an die Telefonnummer geschickt</translation>
    </message>
    <message>
        <source>Save, print, mail, text message</source>
        <translation>Speichern, drucken, mailen, Textnachricht</translation>
    </message>
    <message>
        <source>Line of text</source>
        <translation>Textzeile</translation>
    </message>
    <message>
        <source>Such as the name of the guest</source>
        <translation>Etwa der Name des Gastes</translation>
    </message>
    <message>
        <source>Font of the line</source>
        <translation>Schrift der Zeile</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size of the line</source>
        <translation>Größe der Zeile</translation>
    </message>
    <message>
        <source>Very large</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Colour of the line</source>
        <translation>Farbe der Zeile</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>A shadow below the line, in the other colour</source>
        <translation>Ein Schatten unter der Zeile, in der anderen Farbe</translation>
    </message>
    <message>
        <source>Add the text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Puts the line on the picture, where it can be moved with the mouse on &quot;Text&quot;</source>
        <translation>Setzt die Zeile auf das Bild, wo die Maus sie bei „Text“ verschiebt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Sign of life</source>
        <translation>Lebenszeichen</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Mails</source>
        <translation>Mails</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>ohne Grenze</translation>
    </message>
    <message>
        <source>Most prints that one press gives</source>
        <translation>So viele Abzüge gibt ein Druck höchstens</translation>
    </message>
    <message>
        <source>Most copies a guest</source>
        <translation>Höchstens Abzüge je Gast</translation>
    </message>
    <message>
        <source>Prints that a new pack of paper and ribbon gives</source>
        <translation>Abzüge, die ein neuer Satz Papier und Farbband gibt</translation>
    </message>
    <message>
        <source>New pack of prints</source>
        <translation>Neuer Satz Abzüge</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Eingelegt</translation>
    </message>
    <message>
        <source>A new pack was put into the printer: its prints are counted down</source>
        <translation>Ein neuer Satz wurde eingelegt: Seine Abzüge werden heruntergezählt</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Was schiefging</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Diese noch einmal</translation>
    </message>
    <message>
        <source>Makes the tickets once more that were set aside</source>
        <translation>Macht die beiseitegelegten Zettel noch einmal</translation>
    </message>
    <message>
        <source>Counts as CSV...</source>
        <translation>Zählung als CSV …</translation>
    </message>
    <message>
        <source>Writes what each day gave into a table</source>
        <translation>Schreibt, was jeder Tag ergab, in eine Tabelle</translation>
    </message>
    <message>
        <source>Try again, counts</source>
        <translation>Noch einmal, Zählung</translation>
    </message>
    <message>
        <source>%1, for %2 s</source>
        <translation>%1, seit %2 s</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>wartend: %1</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nichts zu tun</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>perhaps printed, see Print: %1</source>
        <translation>vielleicht gedruckt, siehe Drucken: %1</translation>
    </message>
    <message>
        <source>left in the pack: %1</source>
        <translation>im Satz übrig: %1</translation>
    </message>
    <message>
        <source>to be looked at, see Mail: %1</source>
        <translation>anzusehen, siehe Mail: %1</translation>
    </message>
    <message>
        <source>%1 pictures, %2 prints, %3 mails</source>
        <translation>%1 Bilder, %2 Abzüge, %3 Mails</translation>
    </message>
</context>
<context>
    <name>tavrin::EventSetupPanel</name>
    <message>
        <source>Title of the mails</source>
        <translation>Titel der Mails</translation>
    </message>
    <message>
        <source>Subject of what the guests get</source>
        <translation>Betreff dessen, was die Gäste bekommen</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>How the pictures lie on the sheet</source>
        <translation>Wie die Bilder auf dem Blatt liegen</translation>
    </message>
    <message>
        <source>Text of the mails</source>
        <translation>Text der Mails</translation>
    </message>
    <message>
        <source>What the guests read</source>
        <translation>Was die Gäste lesen</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Prints of the booth come from here</source>
        <translation>Hier kommen die Abzüge der Fotobox heraus</translation>
    </message>
    <message>
        <source>Setup of the Booth</source>
        <translation>Fotobox einrichten</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Shows the print pages with the picture in them</source>
        <translation>Zeigt die Druckseiten mit dem Bild darin</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Keeps all of this and closes the panel</source>
        <translation>Behält all das und schließt das Fenster</translation>
    </message>
    <message>
        <source>%1: choose a folder</source>
        <translation>%1: Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a Folder: %1</source>
        <translation>Ordner wählen: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::FailureList</name>
    <message>
        <source>What could not be made</source>
        <translation>Was nicht gemacht werden konnte</translation>
    </message>
    <message>
        <source>Pictures that could not be made, each with its reason</source>
        <translation>Bilder, die nicht gemacht werden konnten, jedes mit seinem Grund</translation>
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
        <translation>Das Programm tavrin-cli lässt sich nicht starten: %1</translation>
    </message>
    <message>
        <source>The present settings cannot be handed over: %1</source>
        <translation>Die jetzigen Einstellungen lassen sich nicht übergeben: %1</translation>
    </message>
    <message>
        <source>The fast batch broke off. What it has made is there; start it again for the rest.</source>
        <translation>Der schnelle Stapel ist abgebrochen. Was er gemacht hat, ist da; für den Rest noch einmal starten.</translation>
    </message>
</context>
<context>
    <name>tavrin::FolderRow</name>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen ...</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Wählen: %1</translation>
    </message>
    <message>
        <source>Take none: %1</source>
        <translation>Keinen nehmen: %1</translation>
    </message>
    <message>
        <source>Take none</source>
        <translation>Keinen nehmen</translation>
    </message>
    <message>
        <source>Choose a folder for the finished pictures.</source>
        <translation>Bitte einen Ordner für die fertigen Bilder wählen.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Der Ordner %1 ist nicht da.</translation>
    </message>
    <message>
        <source>Nothing may be written into the folder %1.</source>
        <translation>In den Ordner %1 darf nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 may not be read.</source>
        <translation>Der Ordner %1 darf nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>tavrin::GalleryDesk</name>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>The gallery is being made.</source>
        <translation>Die Galerie wird erstellt.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>The gallery cannot be made.</source>
        <translation>Die Galerie kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Adjustment %1 of the gallery</source>
        <translation>Anpassung %1 aus der Galerie</translation>
    </message>
    <message>
        <source>Gallery of Ad&amp;justments...</source>
        <translation>Galerie der An&amp;passungen...</translation>
    </message>
    <message>
        <source>Shows the portrait under twelve settings of the key; a click takes one of them</source>
        <translation>Zeigt das Porträt mit zwölf Einstellungen der Freistellung; ein Klick übernimmt eine davon</translation>
    </message>
    <message>
        <source>Gallery of Back&amp;grounds...</source>
        <translation>Galerie der Hinter&amp;gründe...</translation>
    </message>
    <message>
        <source>Shows the portrait over every background of the folder; a click takes one of them</source>
        <translation>Zeigt das Porträt vor jedem Hintergrund des Ordners; ein Klick übernimmt einen davon</translation>
    </message>
    <message>
        <source>No folder of backgrounds is chosen, so the gallery is empty. The page &quot;Settings&quot; has that folder.</source>
        <translation>Es ist kein Ordner mit Hintergründen gewählt, darum ist die Galerie leer. Die Seite „Einstellungen“ hat diesen Ordner.</translation>
    </message>
</context>
<context>
    <name>tavrin::GroupBox</name>
    <message>
        <source>Fold the group away, or open it</source>
        <translation>Die Gruppe zuklappen oder öffnen</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>zurücksetzen</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>Put all defaults of this group back</source>
        <translation>Alle Vorgabewerte dieser Gruppe zurückholen</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>zugeklappt</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
</context>
<context>
    <name>tavrin::GuestScreen</name>
    <message>
        <source>Your picture</source>
        <translation>Ihr Bild</translation>
    </message>
    <message>
        <source>Backgrounds to choose from</source>
        <translation>Hintergründe zur Auswahl</translation>
    </message>
    <message>
        <source>Backgrounds before these</source>
        <translation>Hintergründe davor</translation>
    </message>
    <message>
        <source>More backgrounds</source>
        <translation>Weitere Hintergründe</translation>
    </message>
</context>
<context>
    <name>tavrin::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Steps of this portrait</source>
        <translation>Schritte dieses Porträts</translation>
    </message>
    <message>
        <source>A click goes back or forth to that step</source>
        <translation>Ein Klick geht zu diesem Schritt zurück oder vor</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>%1, taken back</source>
        <translation>%1, zurückgenommen</translation>
    </message>
</context>
<context>
    <name>tavrin::ItemTool</name>
    <message>
        <source>Place of an item</source>
        <translation>Lage eines Elements</translation>
    </message>
    <message>
        <source>Size of an item</source>
        <translation>Größe eines Elements</translation>
    </message>
    <message>
        <source>Are you shure you want to delete the text?</source>
        <translation>Soll der Text wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Delete an item</source>
        <translation>Element löschen</translation>
    </message>
</context>
<context>
    <name>tavrin::LastPictures</name>
    <message>
        <source>Last pictures</source>
        <translation>Letzte Bilder</translation>
    </message>
    <message>
        <source>The pictures that were made last</source>
        <translation>Die Bilder, die zuletzt gemacht wurden</translation>
    </message>
</context>
<context>
    <name>tavrin::LengthField</name>
    <message>
        <source>%1 goes from %2 to %3.</source>
        <translation>%1 geht von %2 bis %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number; %2 stays as it was.</source>
        <translation>„%1“ ist keine Zahl; %2 bleibt, wie es war.</translation>
    </message>
</context>
<context>
    <name>tavrin::LookDesk</name>
    <message>
        <source>Looks and state files (*.qlx)</source>
        <translation>Looks und Standdateien (*.qlx)</translation>
    </message>
    <message>
        <source>The look is copied. Ctrl+Shift+V pastes it on another portrait.</source>
        <translation>Der Look ist kopiert. Strg+Umschalt+V fügt ihn auf einem anderen Porträt ein.</translation>
    </message>
    <message>
        <source>Portrait: %1</source>
        <translation>Porträt: %1</translation>
    </message>
    <message>
        <source>Background: %1</source>
        <translation>Hintergrund: %1</translation>
    </message>
    <message>
        <source>This portrait has that look already.</source>
        <translation>Dieses Porträt hat diesen Look schon.</translation>
    </message>
    <message>
        <source>No look was copied yet. Ctrl+Shift+C copies the present one.</source>
        <translation>Noch kein Look kopiert. Strg+Umschalt+C kopiert den jetzigen.</translation>
    </message>
    <message>
        <source>Paste a Look</source>
        <translation>Look einfügen</translation>
    </message>
    <message>
        <source>Paste a look</source>
        <translation>Look einfügen</translation>
    </message>
    <message>
        <source>Paste a Look on %1 Portraits</source>
        <translation>Look auf %1 Porträts einfügen</translation>
    </message>
    <message>
        <source>Select Portraits for the Look</source>
        <translation>Porträts für den Look wählen</translation>
    </message>
    <message>
        <source>Save Look</source>
        <translation>Look speichern</translation>
    </message>
    <message>
        <source>Name of the look:</source>
        <translation>Name des Looks:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Look</translation>
    </message>
    <message>
        <source>There is a look %1 already. Replace it?</source>
        <translation>Es gibt schon einen Look %1. Ersetzen?</translation>
    </message>
    <message>
        <source>The look is not saved.</source>
        <translation>Der Look ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>Saved the look %1</source>
        <translation>Der Look %1 ist gespeichert</translation>
    </message>
    <message>
        <source>The look cannot be taken.</source>
        <translation>Der Look kann nicht übernommen werden.</translation>
    </message>
    <message>
        <source>Take the Look %1</source>
        <translation>Den Look %1 übernehmen</translation>
    </message>
    <message>
        <source>Look %1</source>
        <translation>Look %1</translation>
    </message>
    <message>
        <source>Rename Look</source>
        <translation>Look umbenennen</translation>
    </message>
    <message>
        <source>New name of %1:</source>
        <translation>Neuer Name von %1:</translation>
    </message>
    <message>
        <source>The look keeps its name.</source>
        <translation>Der Look behält seinen Namen.</translation>
    </message>
    <message>
        <source>The look is not deleted.</source>
        <translation>Der Look ist nicht gelöscht.</translation>
    </message>
    <message>
        <source>Delete the look %1</source>
        <translation>Den Look %1 löschen</translation>
    </message>
    <message>
        <source>The look does not come back.</source>
        <translation>Der Look kommt nicht zurück.</translation>
    </message>
    <message>
        <source>Deleted the look %1. Undo brings it back.</source>
        <translation>Der Look %1 ist gelöscht. Rückgängig holt ihn zurück.</translation>
    </message>
    <message>
        <source>Import Look</source>
        <translation>Look importieren</translation>
    </message>
    <message>
        <source>There is a look %1 already.</source>
        <translation>Es gibt schon einen Look %1.</translation>
    </message>
    <message>
        <source>&amp;Skip It</source>
        <translation>&amp;Auslassen</translation>
    </message>
    <message>
        <source>Import under &amp;Another Name</source>
        <translation>Unter &amp;anderem Namen importieren</translation>
    </message>
    <message>
        <source>&amp;Replace the Old One</source>
        <translation>Alten &amp;ersetzen</translation>
    </message>
    <message>
        <source>Nothing was imported; the look %1 is the old one.</source>
        <translation>Nichts importiert; der Look %1 ist der alte.</translation>
    </message>
    <message>
        <source>The look is not imported.</source>
        <translation>Der Look ist nicht importiert.</translation>
    </message>
    <message>
        <source>Imported %1 as the look %2</source>
        <translation>%1 ist als Look %2 importiert</translation>
    </message>
    <message>
        <source>Export Look</source>
        <translation>Look exportieren</translation>
    </message>
    <message>
        <source>The look is not exported.</source>
        <translation>Der Look ist nicht exportiert.</translation>
    </message>
    <message>
        <source>Exported the look %1 to %2</source>
        <translation>Der Look %1 ist nach %2 exportiert</translation>
    </message>
    <message>
        <source>&amp;Copy the Look</source>
        <translation>Look &amp;kopieren</translation>
    </message>
    <message>
        <source>Takes the look of this portrait, to paste it on others</source>
        <translation>Nimmt den Look dieses Porträts, um ihn auf andere einzufügen</translation>
    </message>
    <message>
        <source>&amp;Paste the Look...</source>
        <translation>Look &amp;einfügen...</translation>
    </message>
    <message>
        <source>Shows what the copied look changes here, and pastes what is ticked</source>
        <translation>Zeigt, was der kopierte Look hier ändert, und fügt ein, was angehakt ist</translation>
    </message>
    <message>
        <source>Paste the Look on P&amp;ortraits...</source>
        <translation>Look auf P&amp;orträts einfügen...</translation>
    </message>
    <message>
        <source>Pastes the copied look on many portraits at once</source>
        <translation>Fügt den kopierten Look auf vielen Porträts zugleich ein</translation>
    </message>
    <message>
        <source>Save as My &amp;Look...</source>
        <translation>Als meinen &amp;Look speichern...</translation>
    </message>
    <message>
        <source>Keeps all settings under a name</source>
        <translation>Bewahrt alle Einstellungen unter einem Namen</translation>
    </message>
    <message>
        <source>&amp;Import a Look...</source>
        <translation>Look &amp;importieren...</translation>
    </message>
    <message>
        <source>Takes a look or a state file into my looks</source>
        <translation>Nimmt einen Look oder eine Standdatei in meine Looks auf</translation>
    </message>
</context>
<context>
    <name>tavrin::LookDialog</name>
    <message>
        <source>Key</source>
        <translation>Freistellen</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Haare</translation>
    </message>
    <message>
        <source>Light and colour</source>
        <translation>Licht und Farbe</translation>
    </message>
    <message>
        <source>Skin and smoothing</source>
        <translation>Haut und Glättung</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Place and size</source>
        <translation>Lage und Größe</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Beschnitt</translation>
    </message>
    <message>
        <source>What the look changes</source>
        <translation>Was der Look ändert</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Dann</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Take What Is Ticked</source>
        <translation>Angehaktes übernehmen</translation>
    </message>
    <message>
        <source>One step of undo brings all of it back.</source>
        <translation>Ein Schritt Rückgängig holt alles zurück.</translation>
    </message>
</context>
<context>
    <name>tavrin::LooksPanel</name>
    <message>
        <source>My Looks</source>
        <translation>Meine Looks</translation>
    </message>
    <message>
        <source>A double click or Enter takes the look; the pictures stay</source>
        <translation>Ein Doppelklick oder die Eingabetaste übernimmt den Look; die Bilder bleiben</translation>
    </message>
    <message>
        <source>Take...</source>
        <translation>Übernehmen...</translation>
    </message>
    <message>
        <source>Shows what the look changes, and takes what is ticked</source>
        <translation>Zeigt, was der Look ändert, und übernimmt, was angehakt ist</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Speichern als...</translation>
    </message>
    <message>
        <source>Keeps the present settings under a name</source>
        <translation>Bewahrt die jetzigen Einstellungen unter einem Namen</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Umbenennen...</translation>
    </message>
    <message>
        <source>Gives the look another name</source>
        <translation>Gibt dem Look einen anderen Namen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deletes the look; undo brings it back</source>
        <translation>Löscht den Look; Rückgängig holt ihn zurück</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <source>Takes a look or a state file into the list</source>
        <translation>Nimmt einen Look oder eine Standdatei in die Liste auf</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Writes the look to a file, for another machine</source>
        <translation>Schreibt den Look in eine Datei, für einen anderen Rechner</translation>
    </message>
</context>
<context>
    <name>tavrin::MailPage</name>
    <message>
        <source>To</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Subject of the mail</source>
        <translation>Betreff der Mail</translation>
    </message>
    <message>
        <source>Answers to</source>
        <translation>Antworten an</translation>
    </message>
    <message>
        <source>Mail address that answers go to; the mail itself comes from the account of the server</source>
        <translation>Mailadresse, an die Antworten gehen; die Mail selbst kommt vom Konto des Servers</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What the mail says beside the picture</source>
        <translation>Was außer dem Bild in der Mail steht</translation>
    </message>
    <message>
        <source>Tell where the picture was taken</source>
        <translation>Aufnahmeort mitschicken</translation>
    </message>
    <message>
        <source>Leaves the place on earth in the picture, if the camera noted one</source>
        <translation>Lässt den Ort im Bild, falls die Kamera einen vermerkt hat</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Sends the finished picture with this text</source>
        <translation>Verschickt das fertige Bild mit diesem Text</translation>
    </message>
    <message>
        <source>Open in mail program</source>
        <translation>Im Mailprogramm öffnen</translation>
    </message>
    <message>
        <source>Opens a new mail with the picture in your own mail program</source>
        <translation>Öffnet eine neue Mail mit dem Bild im eigenen Mailprogramm</translation>
    </message>
    <message>
        <source>Mail server...</source>
        <translation>Mailserver ...</translation>
    </message>
    <message>
        <source>The server and the account that send the mails</source>
        <translation>Server und Konto, die die Mails verschicken</translation>
    </message>
    <message>
        <source>Mail address of who gets the picture, or telephone number for a text message</source>
        <translation>Mailadresse dessen, der das Bild bekommt, oder Telefonnummer für eine Textnachricht</translation>
    </message>
    <message>
        <source>Send, text message, mail program and mail server</source>
        <translation>Senden, Textnachricht, Mailprogramm und Mailserver</translation>
    </message>
    <message>
        <source>As text message...</source>
        <translation>Als Textnachricht ...</translation>
    </message>
    <message>
        <source>Sends the finished picture to the telephone number that stands in place of the address</source>
        <translation>Sendet das fertige Bild an die Telefonnummer, die statt der Adresse dasteht</translation>
    </message>
</context>
<context>
    <name>tavrin::MainWindow</name>
    <message>
        <source>Turns the whole layer</source>
        <translation>Dreht die ganze Ebene</translation>
    </message>
    <message>
        <source>The colours of the window</source>
        <translation>Die Farben des Fensters</translation>
    </message>
    <message>
        <source>Select Foreground File</source>
        <translation>Vordergrunddatei wählen</translation>
    </message>
    <message>
        <source>Select Background File</source>
        <translation>Hintergrunddatei wählen</translation>
    </message>
    <message>
        <source>Main Window - Adjust/Load Mode</source>
        <translation>Hauptfenster - Anpassen/Laden</translation>
    </message>
    <message>
        <source>Nothing to take back</source>
        <translation>Nichts zurückzunehmen</translation>
    </message>
    <message>
        <source>Take back: %1</source>
        <translation>Zurücknehmen: %1</translation>
    </message>
    <message>
        <source>Nothing to do again</source>
        <translation>Nichts zu wiederholen</translation>
    </message>
    <message>
        <source>Do again: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Noch nichts</translation>
    </message>
    <message>
        <source>The settings cannot be saved.</source>
        <translation>Die Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Open State</source>
        <translation>Stand öffnen</translation>
    </message>
    <message>
        <source>Save State</source>
        <translation>Stand speichern</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>The picture is not finished yet.</source>
        <translation>Das Bild ist noch nicht fertig.</translation>
    </message>
    <message>
        <source>The picture is not frozen.</source>
        <translation>Das Bild ist nicht eingefroren.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>The window closes when everything is saved.</source>
        <translation>Das Fenster schließt, sobald alles gespeichert ist.</translation>
    </message>
    <message>
        <source>Not everything is as it should be at the start.</source>
        <translation>Beim Start ist nicht alles, wie es sein soll.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Output size </source>
        <translation>Ausgabegröße </translation>
    </message>
    <message>
        <source>Full picture %1 %</source>
        <translation>Volles Bild %1 %</translation>
    </message>
    <message>
        <source>Progress of the full picture</source>
        <translation>Fortschritt des vollen Bildes</translation>
    </message>
    <message>
        <source>%1 x %2, %3 dpi</source>
        <translation>%1 x %2, %3 dpi</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Speichert...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Return To Lightroom</source>
        <translation>Zurück zu Lightroom</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open &amp;Portrait...</source>
        <translation>&amp;Porträt öffnen...</translation>
    </message>
    <message>
        <source>Opens a portrait in front of a green or blue screen</source>
        <translation>Öffnet ein Porträt vor grüner oder blauer Leinwand</translation>
    </message>
    <message>
        <source>Open &amp;Background...</source>
        <translation>&amp;Hintergrund öffnen...</translation>
    </message>
    <message>
        <source>Lays another picture behind the portrait</source>
        <translation>Legt ein anderes Bild hinter das Porträt</translation>
    </message>
    <message>
        <source>Open S&amp;tate...</source>
        <translation>&amp;Stand öffnen...</translation>
    </message>
    <message>
        <source>Brings every setting and both pictures back</source>
        <translation>Holt alle Einstellungen und beide Bilder zurück</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>Saves the finished picture</source>
        <translation>Speichert das fertige Bild</translation>
    </message>
    <message>
        <source>Save State &amp;As...</source>
        <translation>Stand speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Saves every setting, to go on with later</source>
        <translation>Speichert alle Einstellungen, um später weiterzumachen</translation>
    </message>
    <message>
        <source>&amp;Frame New Portraits</source>
        <translation>Neue Porträts &amp;einpassen</translation>
    </message>
    <message>
        <source>Places portraits around their subject</source>
        <translation>Legt Porträts um ihre Person herum</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change of a setting back</source>
        <translation>Nimmt die letzte Änderung einer Einstellung zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Does again what was taken back</source>
        <translation>Macht wieder, was zurückgenommen wurde</translation>
    </message>
    <message>
        <source>&amp;Find a Control</source>
        <translation>Regler &amp;finden</translation>
    </message>
    <message>
        <source>Searches the controls by words</source>
        <translation>Sucht die Regler nach Wörtern</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Shows the whole picture</source>
        <translation>Zeigt das ganze Bild</translation>
    </message>
    <message>
        <source>A Little &amp;Larger</source>
        <translation>Etwas &amp;größer</translation>
    </message>
    <message>
        <source>A tenth larger</source>
        <translation>Ein Zehntel größer</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>A pixel of the picture on a pixel of the screen</source>
        <translation>Ein Bildpunkt des Bildes auf einem des Bildschirms</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Save the State with Every &amp;Picture</source>
        <translation>Stand mit jedem &amp;Bild speichern</translation>
    </message>
    <message>
        <source>Writes a state file of the same name beside each saved picture</source>
        <translation>Schreibt neben jedes gespeicherte Bild eine Standdatei gleichen Namens</translation>
    </message>
    <message>
        <source>&amp;Controls</source>
        <translation>&amp;Regler</translation>
    </message>
    <message>
        <source>Folds the controls away, or shows them</source>
        <translation>Blendet die Regler aus oder ein</translation>
    </message>
    <message>
        <source>Full &amp;Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Nothing but the program on the screen</source>
        <translation>Nur das Programm auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Colours of the &amp;Desktop</source>
        <translation>Farben der &amp;Arbeitsfläche</translation>
    </message>
    <message>
        <source>L&amp;ight Colours</source>
        <translation>&amp;Helle Farben</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>Portrait: Upright</source>
        <translation>Porträt: aufrecht</translation>
    </message>
    <message>
        <source>Portrait: 90 Degrees</source>
        <translation>Porträt: 90 Grad</translation>
    </message>
    <message>
        <source>Portrait: 270 Degrees</source>
        <translation>Porträt: 270 Grad</translation>
    </message>
    <message>
        <source>Background: Upright</source>
        <translation>Hintergrund: aufrecht</translation>
    </message>
    <message>
        <source>Background: 90 Degrees</source>
        <translation>Hintergrund: 90 Grad</translation>
    </message>
    <message>
        <source>Background: 270 Degrees</source>
        <translation>Hintergrund: 270 Grad</translation>
    </message>
    <message>
        <source>&amp;Freeze into the Background</source>
        <translation>In den Hintergrund &amp;einfrieren</translation>
    </message>
    <message>
        <source>The picture becomes the background, and another portrait can go before it</source>
        <translation>Das Bild wird zum Hintergrund, und ein anderes Porträt kann davor</translation>
    </message>
    <message>
        <source>&amp;Clear the Freeze</source>
        <translation>Einfrieren &amp;aufheben</translation>
    </message>
    <message>
        <source>Portrait and background are what their files are again</source>
        <translation>Porträt und Hintergrund sind wieder, was ihre Dateien sind</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Not every setting could be taken up.</source>
        <translation>Nicht jede Einstellung konnte übernommen werden.</translation>
    </message>
    <message>
        <source>Tavrin ended without being closed. The work on %1 was kept.</source>
        <translation>Tavrin endete, ohne geschlossen zu werden. Die Arbeit an %1 wurde aufgehoben.</translation>
    </message>
    <message>
        <source>Take Up</source>
        <translation>Weitermachen</translation>
    </message>
    <message>
        <source>Brings both pictures, every setting and the history back</source>
        <translation>Holt beide Bilder, alle Einstellungen und den Verlauf zurück</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Removes what was kept</source>
        <translation>Entfernt, was aufgehoben wurde</translation>
    </message>
    <message>
        <source>The picture of %1 was changed and not saved since.</source>
        <translation>Das Bild von %1 wurde geändert und seither nicht gespeichert.</translation>
    </message>
    <message>
        <source>Its settings are kept, and come back when the portrait is opened again.</source>
        <translation>Seine Einstellungen bleiben erhalten und kommen zurück, wenn das Porträt wieder geöffnet wird.</translation>
    </message>
    <message>
        <source>Close &amp;without Saving</source>
        <translation>Schließen &amp;ohne Speichern</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Folder of the Backgrounds</source>
        <translation>Ordner der Hintergründe</translation>
    </message>
    <message>
        <source>Find an &amp;Action...</source>
        <translation>Befehl &amp;suchen...</translation>
    </message>
    <message>
        <source>Finds every command and control by words, and does or shows it</source>
        <translation>Findet jeden Befehl und Regler nach Wörtern und führt ihn aus oder zeigt ihn</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>Alle Einstellungen &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Puts every default of both layers back, as one step</source>
        <translation>Holt alle Vorgabewerte beider Ebenen zurück, als ein Schritt</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Every step of this portrait</source>
        <translation>Jeder Schritt dieses Porträts</translation>
    </message>
    <message>
        <source>&amp;My Looks</source>
        <translation>&amp;Meine Looks</translation>
    </message>
    <message>
        <source>Looks by name: take, save, rename, delete, import, export</source>
        <translation>Looks nach Namen: übernehmen, speichern, umbenennen, löschen, importieren, exportieren</translation>
    </message>
    <message>
        <source>Open F&amp;older...</source>
        <translation>&amp;Ordner öffnen...</translation>
    </message>
    <message>
        <source>Fills the strip with a folder&apos;s portraits and opens the first</source>
        <translation>Füllt den Streifen mit den Porträts eines Ordners und öffnet das erste</translation>
    </message>
    <message>
        <source>S&amp;trip of Pictures</source>
        <translation>Bilder&amp;streifen</translation>
    </message>
    <message>
        <source>Shows the pictures of the strip, or folds them away</source>
        <translation>Zeigt die Bilder des Streifens oder klappt sie weg</translation>
    </message>
    <message>
        <source>&amp;Next Portrait</source>
        <translation>&amp;Nächstes Porträt</translation>
    </message>
    <message>
        <source>Opens the portrait that comes next in the strip</source>
        <translation>Öffnet das nächste Porträt im Streifen</translation>
    </message>
    <message>
        <source>&amp;Previous Portrait</source>
        <translation>&amp;Voriges Porträt</translation>
    </message>
    <message>
        <source>Opens the portrait before this one in the strip</source>
        <translation>Öffnet das Porträt davor im Streifen</translation>
    </message>
    <message>
        <source>Mark: &amp;Keep</source>
        <translation>Markieren: &amp;Behalten</translation>
    </message>
    <message>
        <source>This portrait is good</source>
        <translation>Dieses Porträt ist gut</translation>
    </message>
    <message>
        <source>Mark: &amp;Reject</source>
        <translation>Markieren: &amp;Verwerfen</translation>
    </message>
    <message>
        <source>This portrait goes out; the next one is opened</source>
        <translation>Dieses Porträt fällt weg; das nächste wird geöffnet</translation>
    </message>
    <message>
        <source>Mark: &amp;Look Again</source>
        <translation>Markieren: &amp;Nochmals ansehen</translation>
    </message>
    <message>
        <source>This portrait needs another look</source>
        <translation>Dieses Porträt muss nochmals angesehen werden</translation>
    </message>
    <message>
        <source>&amp;Unmark</source>
        <translation>Markierung &amp;entfernen</translation>
    </message>
    <message>
        <source>Takes the mark from this portrait</source>
        <translation>Nimmt diesem Porträt die Markierung</translation>
    </message>
    <message>
        <source>Take the Last &amp;Mark Back</source>
        <translation>Letzte &amp;Markierung zurücknehmen</translation>
    </message>
    <message>
        <source>Gives the portrait that was marked last the mark it had, and opens it</source>
        <translation>Gibt dem zuletzt markierten Porträt seine alte Markierung und öffnet es</translation>
    </message>
    <message>
        <source>The look waits, and is there when these portraits are opened: %1</source>
        <translation>Der Look wartet und ist da, wenn diese Porträts geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Overlay over the &amp;Whole...</source>
        <translation>Auflage über dem &amp;Ganzen...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts over everything, such as a frame</source>
        <translation>Legt ein Bild mit durchsichtigen Teilen über alles, etwa einen Rahmen</translation>
    </message>
    <message>
        <source>Select Frame Overlay</source>
        <translation>Auflage für das Ganze wählen</translation>
    </message>
    <message>
        <source>Overlay over the P&amp;ortrait...</source>
        <translation>Auflage über dem P&amp;orträt...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts over the portrait</source>
        <translation>Legt ein Bild mit durchsichtigen Teilen über das Porträt</translation>
    </message>
    <message>
        <source>Select Forground Overlay</source>
        <translation>Auflage für das Porträt wählen</translation>
    </message>
    <message>
        <source>Overlay over the &amp;Background...</source>
        <translation>Auflage über dem &amp;Hintergrund...</translation>
    </message>
    <message>
        <source>Lays a picture with clear parts between background and portrait</source>
        <translation>Legt ein Bild mit durchsichtigen Teilen zwischen Hintergrund und Porträt</translation>
    </message>
    <message>
        <source>Select Background Overlay</source>
        <translation>Auflage für den Hintergrund wählen</translation>
    </message>
    <message>
        <source>Overlays of a &amp;Set...</source>
        <translation>Auflagen eines &amp;Satzes...</translation>
    </message>
    <message>
        <source>Choose one of a set (FR_, FG_, BG_ and a name): all of the set are laid on</source>
        <translation>Eine aus einem Satz wählen (FR_, FG_, BG_ und ein Name): alle des Satzes werden aufgelegt</translation>
    </message>
    <message>
        <source>&amp;Reset with Each New Portrait</source>
        <translation>Mit jedem neuen Porträt &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>A portrait that is opened for the first time begins with the settings of the start-up state</source>
        <translation>Ein zum ersten Mal geöffnetes Porträt beginnt mit den Einstellungen des Stands für den Start</translation>
    </message>
    <message>
        <source>Reset with &amp;Each New Background</source>
        <translation>Mit jedem neuen &amp;Hintergrund zurücksetzen</translation>
    </message>
    <message>
        <source>A background that is opened begins with the start-up state&apos;s settings of the background</source>
        <translation>Ein geöffneter Hintergrund beginnt mit den Hintergrund-Einstellungen des Stands für den Start</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Auflage</translation>
    </message>
    <message>
        <source>Select Overlay</source>
        <translation>Auflage wählen</translation>
    </message>
    <message>
        <source>There is no set of this name in %1.</source>
        <translation>In %1 gibt es keinen Satz dieses Namens.</translation>
    </message>
    <message>
        <source>Overlays of a set</source>
        <translation>Auflagen eines Satzes</translation>
    </message>
    <message>
        <source>The picture is saved as %1, which is there already. Replace it?</source>
        <translation>Das Bild wird als %1 gespeichert, das es schon gibt. Ersetzen?</translation>
    </message>
    <message>
        <source>Pasting the look</source>
        <translation>Der Look wird eingefügt</translation>
    </message>
    <message>
        <source>&amp;Results in the Strip</source>
        <translation>&amp;Ergebnisse im Streifen</translation>
    </message>
    <message>
        <source>Shows the portraits of the strip as they come out with the present settings</source>
        <translation>Zeigt die Porträts des Streifens so, wie sie mit den jetzigen Einstellungen werden</translation>
    </message>
    <message>
        <source>All Back&amp;grounds...</source>
        <translation>Alle &amp;Hintergründe...</translation>
    </message>
    <message>
        <source>Shows the portrait over every background of the folder; a click lays one behind it</source>
        <translation>Zeigt das Porträt vor jedem Hintergrund des Ordners; ein Klick legt einen dahinter</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Takes it off the picture; the file stays as it is</source>
        <translation>Nimmt sie vom Bild; die Datei bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>&amp;Mend a Result of a Batch...</source>
        <translation>Ergebnis eines Stapels &amp;nachbessern...</translation>
    </message>
    <message>
        <source>Opens a batch&apos;s picture with its settings; Save then replaces it</source>
        <translation>Öffnet ein Bild eines Stapels mit seinen Einstellungen; Speichern ersetzt es dann</translation>
    </message>
    <message>
        <source>No Overlay over the W&amp;hole</source>
        <translation>Keine Auflage über dem &amp;Ganzen</translation>
    </message>
    <message>
        <source>No Overlay over the Portrait</source>
        <translation>Keine Auflage über dem Porträt</translation>
    </message>
    <message>
        <source>No Overlay over the Background</source>
        <translation>Keine Auflage über dem Hintergrund</translation>
    </message>
    <message>
        <source>No Overla&amp;ys</source>
        <translation>Keine Au&amp;flagen</translation>
    </message>
    <message>
        <source>%1 has no state, so the present settings stay.</source>
        <translation>%1 hat keinen Stand, daher bleiben die jetzigen Einstellungen.</translation>
    </message>
    <message>
        <source>A batch saves one beside each picture while &quot;%1&quot; is on.</source>
        <translation>Ein Stapel speichert einen neben jedem Bild, solange „%1“ an ist.</translation>
    </message>
    <message>
        <source>Select a Result of a Batch</source>
        <translation>Ergebnis eines Stapels wählen</translation>
    </message>
    <message>
        <source>Save to Batch</source>
        <translation>In den Stapel speichern</translation>
    </message>
    <message>
        <source>Tool Ti&amp;ps</source>
        <translation>&amp;Hinweise</translation>
    </message>
    <message>
        <source>Shows what a control does while the pointer rests on it</source>
        <translation>Zeigt, was ein Regler tut, solange der Zeiger auf ihm ruht</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Take the last stroke back</source>
        <translation>Den letzten Strich zurücknehmen</translation>
    </message>
    <message>
        <source>Do the stroke again</source>
        <translation>Den Strich wieder machen</translation>
    </message>
    <message>
        <source>Main Window - Airbrush Editor Mode</source>
        <translation>Hauptfenster - Airbrush</translation>
    </message>
    <message>
        <source>The picture was made anew, without the strokes of the airbrush: %1.</source>
        <translation>Das Bild wurde neu gemacht, ohne die Striche des Airbrushs: %1.</translation>
    </message>
    <message>
        <source>Bring Them Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Turns to the airbrush and replays the strokes</source>
        <translation>Wechselt zum Airbrush und wiederholt die Striche</translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation>Weglassen</translation>
    </message>
    <message>
        <source>The picture stays as it is</source>
        <translation>Das Bild bleibt, wie es ist</translation>
    </message>
    <message>
        <source>The edits are still being replayed.</source>
        <translation>Die Striche werden noch wiederholt.</translation>
    </message>
    <message>
        <source>A batch is running.</source>
        <translation>Ein Stapel läuft.</translation>
    </message>
    <message>
        <source>The pictures in hand are finished first. The next run goes on with the rest.</source>
        <translation>Die Bilder in Arbeit werden noch fertig. Der nächste Lauf macht mit dem Rest weiter.</translation>
    </message>
    <message>
        <source>Stop and &amp;Close</source>
        <translation>Anhalten und s&amp;chließen</translation>
    </message>
    <message>
        <source>Saving was stopped, and nothing under the name %1 was changed.</source>
        <translation>Das Speichern wurde angehalten; unter dem Namen %1 hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Ends this work; what is done stays, and can be taken back</source>
        <translation>Beendet diese Arbeit; was fertig ist, bleibt und lässt sich zurücknehmen</translation>
    </message>
    <message>
        <source>Ends the saving; what was there before under the name stays</source>
        <translation>Hält das Speichern an; was unter dem Namen da war, bleibt</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>Every key and what it does, and another one where you want it</source>
        <translation>Jede Taste und was sie tut, und eine andere, wo Sie sie wollen</translation>
    </message>
    <message>
        <source>User&apos;s &amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>From the first picture to whole folders, with pictures</source>
        <translation>Vom ersten Bild bis zu ganzen Ordnern, mit Bildern (auf Englisch)</translation>
    </message>
    <message>
        <source>&amp;About Tavrin</source>
        <translation>Ü&amp;ber Tavrin</translation>
    </message>
    <message>
        <source>The version of this program</source>
        <translation>Die Version dieses Programms</translation>
    </message>
    <message>
        <source>The window closes when the mail is sent.</source>
        <translation>Das Fenster schließt sich, sobald die Mail verschickt ist.</translation>
    </message>
    <message>
        <source>The mail to %1 is sent.</source>
        <translation>Die Mail an %1 ist verschickt.</translation>
    </message>
    <message>
        <source>The mail to %1 may have gone.</source>
        <translation>Die Mail an %1 ist vielleicht angekommen.</translation>
    </message>
    <message>
        <source>The mail to %1 is not sent. It is kept in the outbox.</source>
        <translation>Die Mail an %1 ist nicht verschickt. Sie bleibt im Postausgang.</translation>
    </message>
    <message>
        <source>The mail to %1 is not sent.</source>
        <translation>Die Mail an %1 ist nicht verschickt.</translation>
    </message>
    <message>
        <source>Ends the sending; the outbox keeps the mail while it is on</source>
        <translation>Bricht das Senden ab; der Postausgang behält die Mail, solange er eingeschaltet ist</translation>
    </message>
    <message>
        <source>Mail to %1</source>
        <translation>Mail an %1</translation>
    </message>
    <message>
        <source>The mail program could not be opened.</source>
        <translation>Das Mailprogramm konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Prints the finished picture, or saves the sheet as a PDF</source>
        <translation>Druckt das fertige Bild oder speichert den Bogen als PDF</translation>
    </message>
    <message>
        <source>Page La&amp;yout...</source>
        <translation>Sei&amp;tenlayout...</translation>
    </message>
    <message>
        <source>Chooses the paper to print on and how it lies</source>
        <translation>Wählt das Papier, auf das gedruckt wird, und wie es liegt</translation>
    </message>
    <message>
        <source>Save the Sheet</source>
        <translation>Bogen speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>tavrin::MessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Show the reason</source>
        <translation>Den Grund zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>tavrin::MouseMode</name>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>Drags act on the portrait</source>
        <translation>Ziehen wirkt auf das Porträt</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Drags act on the background</source>
        <translation>Ziehen wirkt auf den Hintergrund</translation>
    </message>
    <message>
        <source>Mouse: %1</source>
        <translation>Maus: %1</translation>
    </message>
    <message>
        <source>A drag on the picture moves what is chosen beside</source>
        <translation>Ziehen auf dem Bild verschiebt, was daneben gewählt ist</translation>
    </message>
    <message>
        <source>A drag up makes it larger, a drag down smaller</source>
        <translation>Ziehen nach oben macht es größer, nach unten kleiner</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>A click selects a text or picture item, and drags act on it</source>
        <translation>Ein Klick wählt einen Text oder ein Bild, und Ziehen wirkt darauf</translation>
    </message>
</context>
<context>
    <name>tavrin::OutboxPanel</name>
    <message>
        <source>is sent again at %1</source>
        <translation>wird um %1 erneut gesendet</translation>
    </message>
    <message>
        <source>is not sent by itself</source>
        <translation>wird nicht von selbst gesendet</translation>
    </message>
    <message>
        <source>may have gone, and is not sent by itself</source>
        <translation>ist vielleicht angekommen und wird nicht von selbst gesendet</translation>
    </message>
    <message>
        <source>is being sent</source>
        <translation>wird gesendet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing waits.</source>
        <translation>Nichts wartet.</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Postausgang</translation>
    </message>
    <message>
        <source>Mails that could not be sent</source>
        <translation>Mails, die nicht gesendet werden konnten</translation>
    </message>
    <message>
        <source>Mails that could not be sent, each with its reason</source>
        <translation>Mails, die nicht gesendet werden konnten, mit dem Grund</translation>
    </message>
    <message>
        <source>Keep what could not be sent, and try again</source>
        <translation>Nicht Gesendetes behalten und erneut versuchen</translation>
    </message>
    <message>
        <source>The pauses between the tries grow from a minute to four hours</source>
        <translation>Die Pausen zwischen den Versuchen wachsen von einer Minute auf vier Stunden</translation>
    </message>
    <message>
        <source>Send now</source>
        <translation>Jetzt senden</translation>
    </message>
    <message>
        <source>Sends the selected mails; where none is selected, all but those that may have gone</source>
        <translation>Sendet die gewählten Mails; ist keine gewählt, alle außer denen, die vielleicht angekommen sind</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Removes the selected mails without sending them</source>
        <translation>Entfernt die gewählten Mails, ohne sie zu senden</translation>
    </message>
</context>
<context>
    <name>tavrin::PageLayoutDialog</name>
    <message>
        <source>Upright</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>On its side</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>The paper in the printer; the sheet is printed in its middle</source>
        <translation>Das Papier im Drucker; der Bogen wird in seine Mitte gedruckt</translation>
    </message>
    <message>
        <source>As the printer has it (%1)</source>
        <translation>Wie es der Drucker hat (%1)</translation>
    </message>
    <message>
        <source>The paper is higher than wide</source>
        <translation>Das Papier ist höher als breit</translation>
    </message>
    <message>
        <source>The paper is wider than high</source>
        <translation>Das Papier ist breiter als hoch</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Takes this paper for all that is printed</source>
        <translation>Nimmt dieses Papier für alles, was gedruckt wird</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tavrin::PageWindow</name>
    <message>
        <source>The page is in the desktop&apos;s browser. What is clicked there does not reach this program: for that its package for web pages is missing.</source>
        <translation>Die Seite ist im Browser des Schreibtischs. Klicks dort erreichen dieses Programm nicht: Dafür fehlt sein Paket für Webseiten.</translation>
    </message>
    <message>
        <source>There is no web engine here and no browser: the page is %1.</source>
        <translation>Hier gibt es weder einen Teil für Webseiten noch einen Browser: Die Seite ist %1.</translation>
    </message>
</context>
<context>
    <name>tavrin::PathRow</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Wählen: %1</translation>
    </message>
    <message>
        <source>Take none: %1</source>
        <translation>Keine nehmen: %1</translation>
    </message>
    <message>
        <source>Take none</source>
        <translation>Keine nehmen</translation>
    </message>
</context>
<context>
    <name>tavrin::PhoneTextView</name>
    <message>
        <source>Text Message</source>
        <translation>Textnachricht</translation>
    </message>
    <message>
        <source>Which carrier has the number %1?</source>
        <translation>Welcher Anbieter hat die Nummer %1?</translation>
    </message>
    <message>
        <source>Sends the picture as a text message</source>
        <translation>Sendet das Bild als Textnachricht</translation>
    </message>
    <message>
        <source>No way to this carrier yet: nothing is sent</source>
        <translation>Zu diesem Anbieter gibt es noch keinen Weg: Nichts wird gesendet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sends nothing</source>
        <translation>Sendet nichts</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureFiles</name>
    <message>
        <source>The state file cannot be opened.</source>
        <translation>Die Standdatei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The state file cannot be saved.</source>
        <translation>Die Standdatei kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The settings were not reset.</source>
        <translation>Die Einstellungen wurden nicht zurückgesetzt.</translation>
    </message>
    <message>
        <source>The picture cannot be saved.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureList</name>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>verwerfen</translation>
    </message>
    <message>
        <source>look again</source>
        <translation>nochmals ansehen</translation>
    </message>
    <message>
        <source>open now</source>
        <translation>jetzt offen</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
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
        <translation>Das Bild wegnehmen</translation>
    </message>
    <message>
        <source>%1: none</source>
        <translation>%1: keines</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Choose: %1...</source>
        <translation>Wählen: %1...</translation>
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
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Place of the background</source>
        <translation>Lage des Hintergrunds</translation>
    </message>
    <message>
        <source>Place of the portrait</source>
        <translation>Lage des Porträts</translation>
    </message>
    <message>
        <source>Before (hold the key)</source>
        <translation>Vorher (Taste halten)</translation>
    </message>
    <message>
        <source>The portrait as it was taken</source>
        <translation>Das Porträt, wie es aufgenommen wurde</translation>
    </message>
    <message>
        <source>&amp;Before | After</source>
        <translation>&amp;Vorher | Nachher</translation>
    </message>
    <message>
        <source>A line to drag across the picture: the portrait on its left, the result on its right</source>
        <translation>Eine Linie zum Ziehen über das Bild: links das Porträt, rechts das Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Alpha</source>
        <translation>&amp;Alpha</translation>
    </message>
    <message>
        <source>What the key leaves of the portrait: dark stays, light goes</source>
        <translation>Was vom Porträt bleibt: Dunkles bleibt, Helles geht</translation>
    </message>
    <message>
        <source>S&amp;creen</source>
        <translation>&amp;Leinwand</translation>
    </message>
    <message>
        <source>The colour that the key takes as screen, over the whole picture</source>
        <translation>Die Farbe, die als Leinwand gilt, über das ganze Bild</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>&amp;Guard</source>
        <translation>&amp;Schutz</translation>
    </message>
    <message>
        <source>What the green guard protects; clothes must be protected for it</source>
        <translation>Was der Grünschutz schützt; dafür muss Kleidung geschützt sein</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>Schutz</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;Fragen</translation>
    </message>
    <message>
        <source>A click on the picture tells how its pixel came about</source>
        <translation>Ein Klick auf das Bild erzählt, wie der Bildpunkt zustande kam</translation>
    </message>
</context>
<context>
    <name>tavrin::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Drop a portrait on the left half
and a background on the right half,
or open them from the File menu.</source>
        <translation>Ein Porträt auf die linke Hälfte ziehen
und einen Hintergrund auf die rechte,
oder beide im Menü Datei öffnen.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>before and after</source>
        <translation>vorher und nachher</translation>
    </message>
    <message>
        <source>result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 percent, %4</source>
        <translation>%1 x %2 Bildpunkte, %3 Prozent, %4</translation>
    </message>
</context>
<context>
    <name>tavrin::PlanList</name>
    <message>
        <source>What will be made</source>
        <translation>Was gemacht wird</translation>
    </message>
    <message>
        <source>The pictures of the next run, in its order; what was made before is left out</source>
        <translation>Die Bilder des nächsten Laufs in seiner Reihenfolge; was schon gemacht ist, fehlt</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 aus %2</translation>
    </message>
</context>
<context>
    <name>tavrin::PrintDesk</name>
    <message>
        <source>There is not enough memory for the sheet.</source>
        <translation>Für den Bogen reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>The sheet cannot be made.</source>
        <translation>Der Bogen kann nicht hergestellt werden.</translation>
    </message>
    <message>
        <source>The sheet is saved as %1.</source>
        <translation>Der Bogen ist als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The sheet cannot be saved.</source>
        <translation>Der Bogen kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 is not printed.</source>
        <translation>%1 ist nicht gedruckt.</translation>
    </message>
    <message>
        <source>The sheet stays.</source>
        <translation>Der Bogen bleibt.</translation>
    </message>
    <message>
        <source>%1 is printed.</source>
        <translation>%1 ist gedruckt.</translation>
    </message>
    <message>
        <source>%1 is not printed; it waits among the sheets of the Print page.</source>
        <translation>%1 ist nicht gedruckt; der Bogen wartet auf der Seite Drucken.</translation>
    </message>
    <message>
        <source>%1 is sent to %2.</source>
        <translation>%1 ist an %2 gesendet.</translation>
    </message>
</context>
<context>
    <name>tavrin::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>The printer to print on</source>
        <translation>Der Drucker, auf dem gedruckt wird</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Drucker werden gesucht...</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>How often the sheet is printed</source>
        <translation>Wie oft der Bogen gedruckt wird</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>The print page: where the picture lies on the sheet, and how often</source>
        <translation>Die Druckseite: wo das Bild auf dem Bogen liegt und wie oft</translation>
    </message>
    <message>
        <source>Only the picture, at its own size</source>
        <translation>Nur das Bild, in seiner eigenen Größe</translation>
    </message>
    <message>
        <source>The sheet is the picture itself, without a page</source>
        <translation>Der Bogen ist das Bild selbst, ohne Druckseite</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Chooses the paper to print on and how it lies</source>
        <translation>Wählt das Papier, auf das gedruckt wird, und wie es liegt</translation>
    </message>
    <message>
        <source>Page Layout...</source>
        <translation>Seitenlayout...</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>What becomes of a picture that has not the shape of its place on the page</source>
        <translation>Was mit einem Bild geschieht, das nicht die Form seines Platzes auf der Seite hat</translation>
    </message>
    <message>
        <source>Stretched to its place</source>
        <translation>In seinen Platz gestreckt</translation>
    </message>
    <message>
        <source>Cut to fill its place</source>
        <translation>Beschnitten, füllt den Platz</translation>
    </message>
    <message>
        <source>Whole, with grey sides</source>
        <translation>Ganz, mit grauen Rändern</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>Thin lines beside the pictures&apos; corners, to cut along</source>
        <translation>Dünne Linien neben den Ecken der Bilder, zum Schneiden</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Left and right exchanged, for transfer paper that is ironed on</source>
        <translation>Links und rechts vertauscht, für Transferpapier zum Aufbügeln</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>A line beside the pictures, where the page has room. &lt;&lt;filename&gt;&gt;, &lt;&lt;filenumber&gt;&gt;, &lt;&lt;date&gt;&gt; and &lt;&lt;time&gt;&gt; are replaced</source>
        <translation>Eine Zeile neben den Bildern, wo die Seite Platz hat. &lt;&lt;filename&gt;&gt;, &lt;&lt;filenumber&gt;&gt;, &lt;&lt;date&gt;&gt; und &lt;&lt;time&gt;&gt; werden ersetzt</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>The ICC profile of the printer and its paper; without one the printer gets sRGB</source>
        <translation>Das ICC-Profil des Druckers und seines Papiers; ohne eines bekommt der Drucker sRGB</translation>
    </message>
    <message>
        <source>Choose the colour profile</source>
        <translation>Farbprofil wählen</translation>
    </message>
    <message>
        <source>Chooses the ICC profile of the printer and its paper</source>
        <translation>Wählt das ICC-Profil des Druckers und seines Papiers</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Take no colour profile</source>
        <translation>Kein Farbprofil nehmen</translation>
    </message>
    <message>
        <source>Takes no colour profile</source>
        <translation>Nimmt kein Farbprofil</translation>
    </message>
    <message>
        <source>Intent</source>
        <translation>Umwandlung</translation>
    </message>
    <message>
        <source>What becomes of colours that the printer does not have</source>
        <translation>Was aus Farben wird, die der Drucker nicht hat</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Wahrnehmung</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>Makes the sheet and sends it to the printer</source>
        <translation>Stellt den Bogen her und sendet ihn an den Drucker</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern...</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Saves the sheet on its paper as a file, with all pixels of the picture</source>
        <translation>Speichert den Bogen auf seinem Papier als Datei, mit allen Pixeln des Bildes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Prints nothing</source>
        <translation>Druckt nichts</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No printers</source>
        <translation>Keine Drucker</translation>
    </message>
    <message>
        <source>There are no printers on this machine. Add one in the desktop&apos;s settings, or save the sheet as a PDF.</source>
        <translation>Auf diesem Rechner gibt es keine Drucker. Fügen Sie in den Einstellungen der Arbeitsumgebung einen hinzu oder speichern Sie den Bogen als PDF.</translation>
    </message>
    <message>
        <source>%1, on its side</source>
        <translation>%1, quer</translation>
    </message>
    <message>
        <source>The sheet is larger than the paper; what stands over is cut off.</source>
        <translation>Der Bogen ist größer als das Papier; was übersteht, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>The sheet is larger than the paper as it lies; turn the paper in Page Layout.</source>
        <translation>Der Bogen ist größer als das Papier, so wie es liegt; drehen Sie das Papier im Seitenlayout.</translation>
    </message>
    <message>
        <source>This page has no room for a caption; it is left out.</source>
        <translation>Diese Seite hat keinen Platz für eine Beschriftung; sie entfällt.</translation>
    </message>
    <message>
        <source>Select the Colour Profile</source>
        <translation>Farbprofil wählen</translation>
    </message>
    <message>
        <source>Colour profiles (*.icc *.icm)</source>
        <translation>Farbprofile (*.icc *.icm)</translation>
    </message>
    <message>
        <source>This page has no place for a picture.</source>
        <translation>Diese Seite hat keinen Platz für ein Bild.</translation>
    </message>
</context>
<context>
    <name>tavrin::ReviewDesk</name>
    <message>
        <source>Results of the Batch</source>
        <translation>Ergebnisse des Stapels</translation>
    </message>
    <message>
        <source>Compare Portraits</source>
        <translation>Porträts vergleichen</translation>
    </message>
    <message>
        <source>No batch has been run yet.</source>
        <translation>Es ist noch kein Stapel gelaufen.</translation>
    </message>
    <message>
        <source>The pages cannot be written.</source>
        <translation>Die Seiten können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 holds no pictures.</source>
        <translation>In %1 sind keine Bilder.</translation>
    </message>
    <message>
        <source>Folder of Portraits</source>
        <translation>Ordner der Porträts</translation>
    </message>
    <message>
        <source>Re&amp;view a Batch...</source>
        <translation>Stapel durch&amp;sehen ...</translation>
    </message>
    <message>
        <source>Shows every result of the last batch beside its mask; a click opens one to be mended</source>
        <translation>Zeigt jedes Ergebnis des letzten Stapels neben seiner Maske; ein Klick öffnet eines zum Ausbessern</translation>
    </message>
    <message>
        <source>&amp;Compare Portraits...</source>
        <translation>Porträts ver&amp;gleichen ...</translation>
    </message>
    <message>
        <source>Shows the portraits of the folder side by side; a double click opens one</source>
        <translation>Zeigt die Porträts des Ordners nebeneinander; ein Doppelklick öffnet eines</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Die Seiten werden erstellt.</translation>
    </message>
</context>
<context>
    <name>tavrin::Safekeeping</name>
    <message>
        <source>The present settings cannot be kept for a next start.</source>
        <translation>Die jetzigen Einstellungen können nicht für den nächsten Start aufgehoben werden.</translation>
    </message>
    <message>
        <source>%1 on %2 portraits</source>
        <translation>%1 auf %2 Porträts</translation>
    </message>
</context>
<context>
    <name>tavrin::ScaleView</name>
    <message>
        <source>Map of the layer in the picture</source>
        <translation>Karte der Ebene im Bild</translation>
    </message>
    <message>
        <source>The layer in a small map of the picture: drag it to its place</source>
        <translation>Die Ebene in einer kleinen Karte des Bildes: an ihren Platz ziehen</translation>
    </message>
    <message>
        <source>Place of the portrait</source>
        <translation>Lage des Porträts</translation>
    </message>
    <message>
        <source>Place of the background</source>
        <translation>Lage des Hintergrunds</translation>
    </message>
</context>
<context>
    <name>tavrin::SegmentBar</name>
    <message>
        <source>Go to: %1</source>
        <translation>Gehe zu: %1</translation>
    </message>
    <message>
        <source>Scrolls to this part of the page</source>
        <translation>Rollt zu diesem Teil der Seite</translation>
    </message>
</context>
<context>
    <name>tavrin::SettingsPage</name>
    <message>
        <source>Prefix of saved pictures</source>
        <translation>Vorsilbe gespeicherter Bilder</translation>
    </message>
    <message>
        <source>The names that are proposed for saved pictures begin with this</source>
        <translation>Damit beginnen die Namen, die für gespeicherte Bilder vorgeschlagen werden</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Vorsilbe</translation>
    </message>
    <message>
        <source>A prefix is part of a file&apos;s name, so it has no &quot;/&quot;.</source>
        <translation>Eine Vorsilbe ist Teil eines Dateinamens und hat darum kein „/“.</translation>
    </message>
</context>
<context>
    <name>tavrin::Shelf</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;&amp;nbsp; %2</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&amp;nbsp; %2</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>the folder is being read...</source>
        <translation>der Ordner wird gelesen...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Gives up reading this folder; the pictures that are shown stay</source>
        <translation>Liest diesen Ordner nicht weiter; die gezeigten Bilder bleiben</translation>
    </message>
</context>
<context>
    <name>tavrin::ShortcutDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search by words or by a key</source>
        <translation>Nach Wörtern oder einer Taste suchen</translation>
    </message>
    <message>
        <source>Words in any order, or a key such as Ctrl+K</source>
        <translation>Wörter in beliebiger Folge oder eine Taste wie Strg+K</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was sie tut</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Click here and press the new key</source>
        <translation>Hier klicken und die neue Taste drücken</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Neue Taste</translation>
    </message>
    <message>
        <source>&amp;New key:</source>
        <translation>&amp;Neue Taste:</translation>
    </message>
    <message>
        <source>Take It</source>
        <translation>Nehmen</translation>
    </message>
    <message>
        <source>The other command has no key then</source>
        <translation>Der andere Befehl hat dann keine Taste</translation>
    </message>
    <message>
        <source>No Key</source>
        <translation>Keine Taste</translation>
    </message>
    <message>
        <source>Takes the key from the command that is chosen</source>
        <translation>Nimmt dem gewählten Befehl die Taste</translation>
    </message>
    <message>
        <source>Usual Key</source>
        <translation>Übliche Taste</translation>
    </message>
    <message>
        <source>The command that is chosen has the key it came with</source>
        <translation>Der gewählte Befehl hat die Taste, mit der er kam</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Takes the last change in this list back</source>
        <translation>Nimmt die letzte Änderung in dieser Liste zurück</translation>
    </message>
    <message>
        <source>Taken back.</source>
        <translation>Zurückgenommen.</translation>
    </message>
    <message>
        <source>All Usual Keys</source>
        <translation>Alle üblichen Tasten</translation>
    </message>
    <message>
        <source>Every command has the key it came with</source>
        <translation>Jeder Befehl hat die Taste, mit der er kam</translation>
    </message>
    <message>
        <source>Usually without a key</source>
        <translation>Üblich ohne Taste</translation>
    </message>
    <message>
        <source>Usually %1</source>
        <translation>Üblich %1</translation>
    </message>
    <message>
        <source>Move a slider; with Shift finer, with Ctrl coarser</source>
        <translation>Einen Regler bewegen; mit Umschalt feiner, mit Strg gröber</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Put the default of a slider back</source>
        <translation>Den Vorgabewert eines Reglers zurückholen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move what is shown; with Shift by a point</source>
        <translation>Den Ausschnitt verschieben; mit Umschalt um einen Punkt</translation>
    </message>
    <message>
        <source>Arrows on the picture</source>
        <translation>Pfeile auf dem Bild</translation>
    </message>
    <message>
        <source>Move the line</source>
        <translation>Die Linie verschieben</translation>
    </message>
    <message>
        <source>Arrows on the line between before and after</source>
        <translation>Pfeile auf der Linie zwischen vorher und nachher</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Um den Zeiger vergrößern</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>On the strip, or on a picture that is seen whole: open the portrait before, or the next one</source>
        <translation>Auf dem Streifen oder einem ganz gezeigten Bild: das vorige oder nächste Porträt öffnen</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>Hold and drag to move the picture</source>
        <translation>Halten und ziehen, um das Bild zu bewegen</translation>
    </message>
    <message>
        <source>Space or middle button</source>
        <translation>Leertaste oder mittlere Taste</translation>
    </message>
    <message>
        <source>Choose a command, click below and press its new key.</source>
        <translation>Befehl wählen, unten klicken und die neue Taste drücken.</translation>
    </message>
    <message>
        <source>This key belongs to the controls and stays.</source>
        <translation>Diese Taste gehört den Reglern und bleibt.</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;. Take it for &quot;%3&quot;?</source>
        <translation>%1 ist die Taste von „%2“. Soll „%3“ sie nehmen?</translation>
    </message>
    <message>
        <source>It has no key now.</source>
        <translation>Er hat jetzt keine Taste.</translation>
    </message>
    <message>
        <source>It has the key %1 now.</source>
        <translation>Er hat jetzt die Taste %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no key now.</source>
        <translation>„%1“ hat jetzt keine Taste.</translation>
    </message>
    <message>
        <source>Every command has its usual key again.</source>
        <translation>Jeder Befehl hat wieder seine übliche Taste.</translation>
    </message>
</context>
<context>
    <name>tavrin::SidePanel</name>
    <message>
        <source>Search the controls</source>
        <translation>Regler suchen</translation>
    </message>
    <message>
        <source>No control has these words.</source>
        <translation>Kein Regler hat diese Wörter.</translation>
    </message>
    <message>
        <source>Finds controls and commands by words in any order; Enter goes to the first</source>
        <translation>Findet Regler und Befehle nach Wörtern in beliebiger Reihenfolge; die Eingabetaste geht zum ersten</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Controls: %1</source>
        <translation>Regler: %1</translation>
    </message>
</context>
<context>
    <name>tavrin::SizeBox</name>
    <message>
        <source>Output size</source>
        <translation>Ausgabegröße</translation>
    </message>
    <message>
        <source>Size and resolution of the finished picture</source>
        <translation>Größe und Auflösung des fertigen Bildes</translation>
    </message>
    <message>
        <source>%1 (this picture only)</source>
        <translation>%1 (nur dieses Bild)</translation>
    </message>
</context>
<context>
    <name>tavrin::SizeDialog</name>
    <message>
        <source>New Output Size</source>
        <translation>Neue Ausgabegröße</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Ausgabegröße</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>How wide the printed picture is</source>
        <translation>Wie breit das gedruckte Bild ist</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>How high the printed picture is</source>
        <translation>Wie hoch das gedruckte Bild ist</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Dots an inch</source>
        <translation>Punkte je Zoll</translation>
    </message>
    <message>
        <source>How fine the picture is; 300 is usual for prints</source>
        <translation>Wie fein das Bild ist; für Abzüge sind 300 üblich</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>The page that this size is printed on</source>
        <translation>Die Seite, auf der diese Größe gedruckt wird</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Width and height are in centimetres; otherwise in inches</source>
        <translation>Breite und Höhe in Zentimetern; sonst in Zoll</translation>
    </message>
    <message>
        <source>A page of its own</source>
        <translation>Eine eigene Seite</translation>
    </message>
</context>
<context>
    <name>tavrin::SizesPanel</name>
    <message>
        <source>Output sizes</source>
        <translation>Ausgabegrößen</translation>
    </message>
    <message>
        <source>Sizes of your own; two stars mark them</source>
        <translation>Eigene Größen; zwei Sterne kennzeichnen sie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Bildpunkte</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>Adds an output size of your own</source>
        <translation>Fügt eine eigene Ausgabegröße hinzu</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Changes the size that is selected; one of the program&apos;s becomes your own</source>
        <translation>Ändert die gewählte Größe; eine des Programms wird zur eigenen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Takes a size of your own out of the list; pictures that have it keep it</source>
        <translation>Nimmt eine eigene Größe aus der Liste; Bilder, die sie haben, behalten sie</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>The sizes cannot be kept.</source>
        <translation>Die Größen können nicht aufgehoben werden.</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Neue Größe</translation>
    </message>
    <message>
        <source>Edit size</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Delete size</source>
        <translation>Größe löschen</translation>
    </message>
</context>
<context>
    <name>tavrin::SliderRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1, Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number; %2 stays as it was.</source>
        <translation>„%1“ ist keine Zahl; %2 bleibt, wie es war.</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3; it was set to %4.</source>
        <translation>%1 geht von %2 bis %3; es steht jetzt auf %4.</translation>
    </message>
</context>
<context>
    <name>tavrin::SmtpDialog</name>
    <message>
        <source>Mail Server</source>
        <translation>Mailserver</translation>
    </message>
    <message>
        <source>Use the default mail server</source>
        <translation>Voreingestellten Mailserver verwenden</translation>
    </message>
    <message>
        <source>Sends by the account that was set up with the program; the fields below are kept</source>
        <translation>Sendet über das Konto, das mit dem Programm eingerichtet wurde; die Felder darunter bleiben erhalten</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Name of the server that sends your mails</source>
        <translation>Name des Servers, der die Mails verschickt</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>587 or 25 with STARTTLS, 465 with SSL; your provider says which</source>
        <translation>587 oder 25 mit STARTTLS, 465 mit SSL; welcher gilt, sagt der Anbieter</translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation>STARTTLS</translation>
    </message>
    <message>
        <source>The connection is encrypted from the server&apos;s word on; without it nothing is sent</source>
        <translation>Die Verbindung wird verschlüsselt, sobald der Server es anbietet; tut er das nicht, wird nichts gesendet</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>The connection is encrypted from the first byte</source>
        <translation>Die Verbindung ist vom ersten Byte an verschlüsselt</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>The name that the server knows you by</source>
        <translation>Der Name, unter dem der Server das Konto kennt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Is kept in the settings file as it is, which nobody but you can read</source>
        <translation>Steht unverschlüsselt in der Datei der Einstellungen, die niemand anders lesen kann</translation>
    </message>
    <message>
        <source>Fill In for GMail</source>
        <translation>Für GMail ausfüllen</translation>
    </message>
    <message>
        <source>Fills the fields in; your account name and your password are still to be typed</source>
        <translation>Füllt die Felder aus; Kontoname und Passwort sind noch einzutippen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Keeps what is entered here</source>
        <translation>Übernimmt, was hier eingetragen ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leaves the settings as they were</source>
        <translation>Lässt die Einstellungen, wie sie waren</translation>
    </message>
    <message>
        <source>gmail-host is missing in delivery.conf</source>
        <translation>gmail-host fehlt in delivery.conf</translation>
    </message>
</context>
<context>
    <name>tavrin::SortPanel</name>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Chooses the folder whose photos are sorted</source>
        <translation>Wählt den Ordner, dessen Fotos sortiert werden</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Copies the photos into the subfolders Portrait and Landscape; the originals stay</source>
        <translation>Kopiert die Fotos in die Unterordner Portrait und Landscape; die Originale bleiben</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Ends sorting after the photo in hand</source>
        <translation>Beendet das Sortieren nach dem Foto, das in Arbeit ist</translation>
    </message>
    <message>
        <source>Sort photos by shape</source>
        <translation>Fotos nach Format sortieren</translation>
    </message>
    <message>
        <source>Splits a folder of photos into upright ones and wide ones, such as backgrounds for an event</source>
        <translation>Teilt einen Ordner mit Fotos in hohe und breite auf, zum Beispiel Hintergründe für eine Veranstaltung</translation>
    </message>
    <message>
        <source>Photos to sort</source>
        <translation>Fotos zum Sortieren</translation>
    </message>
    <message>
        <source>The folder whose photos are sorted</source>
        <translation>Der Ordner, dessen Fotos sortiert werden</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Folder of Photos to Sort</source>
        <translation>Ordner mit Fotos zum Sortieren</translation>
    </message>
    <message>
        <source>The photos are not sorted.</source>
        <translation>Die Fotos sind nicht sortiert.</translation>
    </message>
    <message>
        <source>Copied: %1, there already: %2, not copied or not read: %3.</source>
        <translation>Kopiert: %1, schon da: %2, nicht kopiert oder nicht gelesen: %3.</translation>
    </message>
    <message>
        <source>Sorting was stopped. %1</source>
        <translation>Das Sortieren wurde angehalten. %1</translation>
    </message>
    <message>
        <source>The photos are sorted. %1</source>
        <translation>Die Fotos sind sortiert. %1</translation>
    </message>
    <message>
        <source>Not every photo is sorted. %1</source>
        <translation>Nicht jedes Foto ist sortiert. %1</translation>
    </message>
</context>
<context>
    <name>tavrin::SplitLine</name>
    <message>
        <source>Line between before and after</source>
        <translation>Linie zwischen vorher und nachher</translation>
    </message>
    <message>
        <source>Drag it across the picture: the portrait as it was taken on its left, the result on its right</source>
        <translation>Über das Bild ziehen: links das Porträt wie aufgenommen, rechts das Ergebnis</translation>
    </message>
</context>
<context>
    <name>tavrin::StoryPanel</name>
    <message>
        <source>Story of a pixel</source>
        <translation>Geschichte eines Bildpunkts</translation>
    </message>
    <message>
        <source>close</source>
        <translation>schließen</translation>
    </message>
    <message>
        <source>Close the story of the pixel</source>
        <translation>Die Geschichte des Bildpunkts schließen</translation>
    </message>
    <message>
        <source>Closes this panel; Esc does the same</source>
        <translation>Schließt diese Tafel; Esc tut dasselbe</translation>
    </message>
    <message>
        <source>This pixel</source>
        <translation>Dieser Bildpunkt</translation>
    </message>
</context>
<context>
    <name>tavrin::Strip</name>
    <message>
        <source>Portraits</source>
        <translation>Porträts</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Hintergründe</translation>
    </message>
    <message>
        <source>Folder...</source>
        <translation>Ordner...</translation>
    </message>
    <message>
        <source>Folder of the backgrounds</source>
        <translation>Ordner der Hintergründe</translation>
    </message>
    <message>
        <source>Chooses the folder whose backgrounds stand here</source>
        <translation>Wählt den Ordner, dessen Hintergründe hier stehen</translation>
    </message>
    <message>
        <source>Portraits shown</source>
        <translation>Gezeigte Porträts</translation>
    </message>
    <message>
        <source>Shows only the portraits with this mark</source>
        <translation>Zeigt nur die Porträts mit dieser Markierung</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unmarked</source>
        <translation>Ohne Markierung</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Reject</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Nochmals ansehen</translation>
    </message>
    <message>
        <source>There is no picture in the folder.</source>
        <translation>Im Ordner ist kein Bild.</translation>
    </message>
    <message>
        <source>The mark is not kept.</source>
        <translation>Die Markierung wird nicht aufgehoben.</translation>
    </message>
</context>
<context>
    <name>tavrin::TapeDeckView</name>
    <message>
        <source>To the first</source>
        <translation>Zum ersten</translation>
    </message>
    <message>
        <source>Back five</source>
        <translation>Fünf zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>On five</source>
        <translation>Fünf weiter</translation>
    </message>
    <message>
        <source>To the last</source>
        <translation>Zum letzten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1, served</source>
        <translation>%1, erledigt</translation>
    </message>
    <message>
        <source>%1, empty place %2</source>
        <translation>%1, leerer Platz %2</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplatePanel</name>
    <message>
        <source>Print Page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>The print page: where the picture lies on the sheet, and how often</source>
        <translation>Die Druckseite: wo das Bild auf dem Bogen liegt und wie oft</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The page in the list is printed on</source>
        <translation>Auf die Seite in der Liste wird gedruckt</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplateView</name>
    <message>
        <source>The print page with the picture in its places</source>
        <translation>Die Druckseite mit dem Bild an seinen Plätzen</translation>
    </message>
    <message>
        <source>The sheet as it is printed: grey is paper that stays free</source>
        <translation>Das Blatt, wie es gedruckt wird: Grau ist Papier, das frei bleibt</translation>
    </message>
</context>
<context>
    <name>tavrin::TemplatesPanel</name>
    <message>
        <source>New Print Page</source>
        <translation>Neue Druckseite</translation>
    </message>
    <message>
        <source>Print Page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the page is called in lists</source>
        <translation>Wie die Seite in Listen heißt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>How wide the page is</source>
        <translation>Wie breit die Seite ist</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>How high the page is</source>
        <translation>Wie hoch die Seite ist</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Width and height are in centimetres; otherwise in inches</source>
        <translation>Breite und Höhe in Zentimetern; sonst in Zoll</translation>
    </message>
    <message>
        <source>Place for a Picture</source>
        <translation>Platz für ein Bild</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>From the left edge of the page</source>
        <translation>Vom linken Rand der Seite</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>From the lower edge of the page</source>
        <translation>Vom unteren Rand der Seite</translation>
    </message>
    <message>
        <source>How wide the picture is printed</source>
        <translation>Wie breit das Bild gedruckt wird</translation>
    </message>
    <message>
        <source>How high the picture is printed</source>
        <translation>Wie hoch das Bild gedruckt wird</translation>
    </message>
    <message>
        <source>The place is larger than the page or lies beside it, so nothing would be printed there.</source>
        <translation>Der Platz ist größer als die Seite oder liegt daneben, dort würde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Print pages</source>
        <translation>Druckseiten</translation>
    </message>
    <message>
        <source>Pages to print on, and the places for pictures on them</source>
        <translation>Seiten zum Drucken und die Plätze für Bilder darauf</translation>
    </message>
    <message>
        <source>Print page</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>The page to print on</source>
        <translation>Die Seite, auf die gedruckt wird</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Neu...</translation>
    </message>
    <message>
        <source>Adds a page of your own</source>
        <translation>Fügt eine eigene Seite hinzu</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Changes name and size of the page; one of the program&apos;s becomes your own</source>
        <translation>Ändert Name und Größe der Seite; eine des Programms wird zur eigenen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Takes a page of your own out of the list</source>
        <translation>Nimmt eine eigene Seite aus der Liste</translation>
    </message>
    <message>
        <source>Places for pictures on the page</source>
        <translation>Plätze für Bilder auf der Seite</translation>
    </message>
    <message>
        <source>Where pictures lie, counted from the lower left corner of the page</source>
        <translation>Wo Bilder liegen, von der unteren linken Ecke der Seite gezählt</translation>
    </message>
    <message>
        <source>Add Place...</source>
        <translation>Platz hinzufügen...</translation>
    </message>
    <message>
        <source>Adds a place for a picture to the page</source>
        <translation>Fügt der Seite einen Platz für ein Bild hinzu</translation>
    </message>
    <message>
        <source>Moves or sizes the selected place</source>
        <translation>Verschiebt den gewählten Platz oder ändert seine Größe</translation>
    </message>
    <message>
        <source>Takes the selected place off the page</source>
        <translation>Nimmt den gewählten Platz von der Seite</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Left, %1</source>
        <translation>Links, %1</translation>
    </message>
    <message>
        <source>Bottom, %1</source>
        <translation>Unten, %1</translation>
    </message>
    <message>
        <source>Width, %1</source>
        <translation>Breite, %1</translation>
    </message>
    <message>
        <source>Height, %1</source>
        <translation>Höhe, %1</translation>
    </message>
    <message>
        <source>The print pages cannot be kept.</source>
        <translation>Die Druckseiten können nicht aufgehoben werden.</translation>
    </message>
    <message>
        <source>New print page</source>
        <translation>Neue Druckseite</translation>
    </message>
    <message>
        <source>Edit print page</source>
        <translation>Druckseite ändern</translation>
    </message>
    <message>
        <source>Place on the page</source>
        <translation>Platz auf der Seite</translation>
    </message>
    <message>
        <source>Delete print page</source>
        <translation>Druckseite löschen</translation>
    </message>
    <message>
        <source>Delete place on the page</source>
        <translation>Platz auf der Seite löschen</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Prints the picture on this page</source>
        <translation>Druckt das Bild auf diese Seite</translation>
    </message>
</context>
<context>
    <name>tavrin::TextPage</name>
    <message>
        <source>IMAGE: %1</source>
        <translation>BILD: %1</translation>
    </message>
    <message>
        <source>TEXT: %1</source>
        <translation>TEXT: %1</translation>
    </message>
    <message>
        <source>Another picture...</source>
        <translation>Anderes Bild...</translation>
    </message>
    <message>
        <source>Puts another picture in the place of the selected one</source>
        <translation>Setzt ein anderes Bild an die Stelle des gewählten</translation>
    </message>
    <message>
        <source>Choose a Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Texts and pictures</source>
        <translation>Texte und Bilder</translation>
    </message>
    <message>
        <source>What is drawn first stands first; drag to change the order</source>
        <translation>Was zuerst gezeichnet wird, steht oben; ziehen ändert die Reihenfolge</translation>
    </message>
    <message>
        <source>Order of the items</source>
        <translation>Reihenfolge der Elemente</translation>
    </message>
    <message>
        <source>Add, edit and delete</source>
        <translation>Hinzufügen, ändern und löschen</translation>
    </message>
    <message>
        <source>Add text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Puts a new text on the picture</source>
        <translation>Setzt einen neuen Text auf das Bild</translation>
    </message>
    <message>
        <source>Add picture...</source>
        <translation>Bild hinzufügen...</translation>
    </message>
    <message>
        <source>Puts a picture, such as a logo, on the picture</source>
        <translation>Setzt ein Bild, etwa ein Logo, auf das Bild</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Shows the controls of the selected item</source>
        <translation>Zeigt die Regler des gewählten Elements</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Takes the selected item away</source>
        <translation>Entfernt das gewählte Element</translation>
    </message>
    <message>
        <source>Further down</source>
        <translation>Weiter nach unten</translation>
    </message>
    <message>
        <source>Draws the selected item earlier, so that the others cover it</source>
        <translation>Zeichnet das gewählte Element früher, so dass die anderen es verdecken</translation>
    </message>
    <message>
        <source>Further up</source>
        <translation>Weiter nach oben</translation>
    </message>
    <message>
        <source>Draws the selected item later, so that it covers the others</source>
        <translation>Zeichnet das gewählte Element später, so dass es die anderen verdeckt</translation>
    </message>
    <message>
        <source>Add a Picture</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Delete an item</source>
        <translation>Element löschen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>Anderes Bild</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Add a text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Takes back what was done to the item since it was selected; a new one goes</source>
        <translation>Nimmt zurück, was seit der Auswahl mit dem Eintrag geschah; ein neuer geht weg</translation>
    </message>
</context>
<context>
    <name>tavrin::TextScaleView</name>
    <message>
        <source>Map of the selected item in the picture</source>
        <translation>Karte des gewählten Elements im Bild</translation>
    </message>
    <message>
        <source>The selected text or picture in a small map of the picture: drag it to its place</source>
        <translation>Der gewählte Text oder das Bild in einer kleinen Karte: an seinen Platz ziehen</translation>
    </message>
    <message>
        <source>Place of an item</source>
        <translation>Lage eines Elements</translation>
    </message>
</context>
<context>
    <name>tavrin::Tile</name>
    <message>
        <source>%1: missing</source>
        <translation>%1: fehlt</translation>
    </message>
</context>
<context>
    <name>tavrin::TileRow</name>
    <message>
        <source>%1: looks</source>
        <translation>%1: Looks</translation>
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
        <translation>wartet</translation>
    </message>
    <message>
        <source>is being sent</source>
        <translation>wird gesendet</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>beim Drucker</translation>
    </message>
    <message>
        <source>may have been printed</source>
        <translation>vielleicht schon gedruckt</translation>
    </message>
    <message>
        <source>Sheets that are not printed yet</source>
        <translation>Bögen, die noch nicht gedruckt sind</translation>
    </message>
    <message>
        <source>Sheets on their way to a printer, and those that could not be printed</source>
        <translation>Bögen auf dem Weg zu einem Drucker und solche, die nicht gedruckt werden konnten</translation>
    </message>
    <message>
        <source>Each sheet with its printer and how it stands; rest on one to read why</source>
        <translation>Jeder Bogen mit seinem Drucker und seinem Stand; verweilen Sie darauf, um den Grund zu lesen</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Noch einmal senden</translation>
    </message>
    <message>
        <source>Sends the selected sheets to their printers once more</source>
        <translation>Sendet die ausgewählten Bögen noch einmal an ihre Drucker</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Forgets the selected sheets; they are not printed</source>
        <translation>Verwirft die ausgewählten Bögen; sie werden nicht gedruckt</translation>
    </message>
    <message>
        <source>What is selected may have been printed already. Print it once more?</source>
        <translation>Was ausgewählt ist, wurde vielleicht schon gedruckt. Noch einmal drucken?</translation>
    </message>
    <message>
        <source>Print Once More</source>
        <translation>Noch einmal drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tavrin::WordRow</name>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (nicht installiert)</translation>
    </message>
</context>
<context>
    <name>tavrin::WorkBar</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
</context>
<context>
    <name>tavrin::ZoomSlider</name>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Smaller to the left, larger to the right</source>
        <translation>Links kleiner, rechts größer</translation>
    </message>
</context>
</TS>
