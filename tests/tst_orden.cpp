#include "core/Unico.h"
#include "printing/cImOf.h"
#include "support/LineasPrueba.h"
#include "support/Ostrel.h"

#include <QJsonDocument>
#include <QStandardPaths>

#include <SQLiteCpp/Database.h>
#include <optional>

static const QStringList Listar = partes("listar declaraciones --dni 12345678Z");

/// A valid declarant's options, one of them changed, added, or left out (when `valor` is null).
static QStringList opcionesAlta(const QString &cambiada = {}, const QString &valor = {})
{
    QStringList opciones = partes("declarante alta --dni 12345678z --nombre Seguros_Ñandú "
                                  "--codpos 20001 --domicilio Mayor --codmun 1 "
                                  "--telefono 943000000");
    if (const auto lugar = opciones.indexOf(u"--"_s + cambiada); lugar > 0)
        opciones.remove(lugar, 2);
    if (!valor.isNull())
        opciones += {u"--"_s + cambiada, valor};
    return opciones;
}

/// A return of that declarant: "430 …" or "480 …".
static QStringList declarar(const char *resto)
{
    return partes("declarar --dni 12345678Z") + partes(resto);
}

/// The commands, as a user gives them in a terminal.
class TstOrden : public QObject, Ostrel
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_carpeta.emplace();
        carpeta = m_carpeta->path();
    }

    void alta()
    {
        decir(opcionesAlta()
                  + partes("--via av --numero 00012 --letra b --escalera=1 --piso 2 --mano dch"),
              "Declarante dado de alta: 12345678Z - SEGUROS ÑANDÚ\n");
        rechazar(opcionesAlta(), "No se puede dar de alta al nuevo declarante.");
        QStringList fuera = opcionesAlta(u"codmun"_s);
        fuera.replaceInStrings(u"20001"_s, u"01001"_s);
        fuera.replaceInStrings(u"12345678z"_s, u"A58818501"_s);
        hacer(fuera + partes("--codprov 1 --nommun otro_lugar"));
        // every field in its place: the whole lines of the exchange file
        QCOMPARE(QString::fromLatin1(ostrel(partes("exportar -")).texto),
                 u"12345678ZSEGUROS ÑANDÚ                           "
                 "AVMAYOR                         00012B 1 2 DCH2020001001"
                 "ABRENZUOLA               94300000000000000000000\r\n"
                 "A58818501SEGUROS ÑANDÚ                           "
                 "CLMAYOR                         00000         0101001000"
                 "OTRO LUGAR               94300000000000000000000\r\n"_s);
    }

    void altaRechazada()
    {
        const auto caso = [this](const char *opcion, const char *valor, const char *motivo) {
            rechazar(opcionesAlta(QString::fromUtf8(opcion), QString::fromUtf8(valor)), motivo);
        };
        caso("dni", "12345678A", "Opción --dni: El campo DNI-CIF es erróneo");
        caso("nombre", "", "Opción --nombre: La casilla Razón Social");
        caso("domicilio", " ", "Opción --domicilio: La casilla Domicilio");
        caso("codpos", "48001", "Opción --codpos: El Código de Provincia y el Código Postal");
        caso("codmun", "", "Opción --codmun: La casilla Código de Municipio");
        caso("codmun", "999", "Opción --codmun: el código «999» no está en la tabla");
        caso("nommun", "OTRO", "El valor «OTRO» no es válido para la opción --nommun");
        caso("codprov", "53", "Opción --codprov: el código «53» no está en la tabla");
        caso("codprov", "1", "El valor «1» no es válido para la opción --codmun");
        caso("via", "QQ", "Opción --via: el código «QQ» no está en la tabla");
        caso("telefono", "94300000", "Opción --telefono: El Teléfono debe ser un número de 9");
        caso("numero", "-1", "El valor «-1» no es válido para la opción --numero");
        caso("numero", "123456", "El valor de la opción --numero no puede tener más de 5");
        caso("nombre", "A@B", "No se admite el carácter «@» en la opción --nombre");
        caso("nombre", "日本", "No se admite el carácter «日» en la opción --nombre");
        caso("domicilio", "VEINTIUN CARACTERES X", "El valor de la opción --domicilio no puede");
        QCOMPARE(json("declarantes"), u"[]"_s);
    }

    void declaracionesYListas()
    {
        decir(partes("listar declarantes"), "No hay declarantes.\n");
        decir(partes("listar declarantes --json"), "[\n]\n");
        rechazar(Listar, "No existe ningún declarante con el DNI-CIF 12345678Z.\n");
        hacer(opcionesAlta());
        decir(Listar, "El declarante no tiene declaraciones.\n");
        decir(declarar("430 --ejercicio 2020 --periodo 1 --base 1.234,56"), // 6 % until 2020
              "Declaración guardada: modelo 430, 2020 - ENERO, 74,07 euros\n");
        hacer(declarar("430 --ejercicio 2026 --periodo 12 --base 1234.56 "
                       "--base-rectificacion -100,00 --cuota-rectificacion -8"));
        hacer(declarar("430 --ejercicio 2026 --periodo 11 --base=-9999999999999,99"));
        hacer(declarar("430 --ejercicio 2026 --periodo 9 --base 0 --base-rectificacion 1 "
                       "--cuota-rectificacion 9999999999999,99"));
        decir(declarar("480 --ejercicio 2026 --casilla 01=100000,00 --casilla 67=-0,50 "
                       "--casilla 2=7 --casilla 73=99999,50 --casilla 79=5 --casilla 80=-10"),
              "Declaración guardada: modelo 480, 2026 - ANUAL, 7.989,96 euros\n");
        hacer(declarar("480 --ejercicio 2025"));
        // the total fits, in whatever order the boxes come
        hacer(declarar("480 --ejercicio 2024 --casilla 04=5 --casilla 01=9999999999999,99 "
                       "--casilla 07=-9999999999999,99 --casilla 73=5"));
        decir(Listar,
              "Ejercicio  Período     Modelo               Importe\n"
              "2020       ENERO       430                    74,07\n"
              "2024       ANUAL       480                     0,40\n"
              "2025       ANUAL       480                     0,00\n"
              "2026       SEPTIEMBRE  430     9.999.999.999.999,99\n"
              "2026       NOVIEMBRE   430      -800.000.000.000,00\n"
              "2026       DICIEMBRE   430                    90,76\n"
              "2026       ANUAL       480                 7.989,96\n");
        decir(partes("listar declarantes"),
              "DNI        Razón social   Nombre del municipio  Nombre de provincia  430  480\n"
              "12345678Z  SEGUROS ÑANDÚ  ABRENZUOLA            VARLENDA               4    3\n");
        QCOMPARE(json("declarantes"),
                 u"[{CSCO:1,DNI:12345678Z,NOMBRE:SEGUROS ÑANDÚ,NOMMUN:ABRENZUOLA,"
                 "NOMPROV:VARLENDA,NUM430:4,NUM480:3}]"_s);
        const QString filas = json("declaraciones --dni 12345678Z");
        for (const QString &fila :
             {u"{CSDE:2,EJERCICIO:2026,IMPORTE:90.76,MODELO:430,PERIODICIDAD:1,PERIODO:12,"
              "TIPOLOGIA:1}"_s,
              u"{CSDE:5,EJERCICIO:2026,IMPORTE:7989.96,MODELO:480,PERIODICIDAD:2,PERIODO:12,"
              "TIPOLOGIA:2}"_s})
            QVERIFY2(filas.contains(fila), qPrintable(filas));
        QVERIFY(ostrel(Listar + partes("--json")).texto.contains(": 9999999999999.99,"));
    }

    void declaracionesRechazadas()
    {
        hacer(opcionesAlta());
        hacer(declarar("430 --ejercicio 2026 --periodo 1 --base 1"));
        const auto caso = [this](const char *opciones, const char *motivo, int codigo = 1) {
            rechazar(declarar("--ejercicio 2026") + partes(opciones), motivo, codigo);
        };
        caso("430 --periodo 1 --base 5", "No se puede dar de alta la nueva declaración.");
        caso("430 --periodo 2 --base abc", "Opción --base: «abc» no es un importe.");
        caso("430 --periodo 2 --base=", "Opción --base: «» no es un importe.");
        caso("430 --periodo 2 --base 1,234", "Opción --base: El importe no puede tener más de 2 d");
        caso("430 --periodo 2 --base 10000000000000", "Opción --base: El importe no puede tener ");
        caso("430 --periodo 2 --base 9999999999999,99 --base-rectificacion 0,01",
             "Opción --base-rectificacion: No se admite el cambio: el total «Base imponible»");
        caso("430 --periodo 2 --base 5 --base-rectificacion 1",
             "La casillas Base imponible y Cuota de Rectificación no pueden ser 0");
        rechazar(declarar("430 --ejercicio 2031 --periodo 1 --base 5"),
                 "El ejercicio-periodo no puede ser anterior al 2002-01\n ni posterior al 2030-12");
        caso("480 --casilla 01=5 --casilla 1=5", "La casilla 01 se ha indicado más de una vez.");
        caso("480 --casilla 82=5", "No existe la casilla 82.");
        caso("480 --casilla 03=5", "La casilla 03 la calcula el programa");
        caso("480 --casilla 74=5", "La casilla 74 la calcula el programa");
        caso("480 --casilla 01=x", "Casilla 01: «x» no es un importe.");
        caso("480 --casilla 01=9999999999999,99 --casilla 04=0,01",
             "Casilla 04: No se admite el cambio: el total «Totales»");
        caso("480 --casilla 01=100", "La casilla Total No Exento debe ser igual");
        caso("480 --casilla 01", "El valor «01» no es válido para la opción --casilla.", 2);
        caso("480 --casilla x=1", "El valor «x=1» no es válido para la opción --casilla.", 2);
        QCOMPARE(json("declaraciones --dni 12345678Z").count(u"CSDE"), 1);
    }

    /// Returns of a sheet, and what is due before and after.
    void hojaYPendientes()
    {
        hacer(opcionesAlta());
        hacer(opcionesAlta(u"dni"_s, u"A58818501"_s));
        hacer(declarar("430 --ejercicio 2026 --periodo 1 --base 100"));
        const QString hoja = m_carpeta->filePath(u"hoja.csv"_s);
        lineas::escribir(hoja,
                         "DNI;EJERCICIO;PERIODO;BASE\n12345678Z;2026;1;500\n"
                         "12345678Z;2026;3;1.000,50\nA58818501;2026;3;x\n");
        const QStringList desde = partes("declarar --desde") + QStringList{hoja};
        const QByteArray mala = "Fila 4: BASE: «x» no es un importe.\n";
        const QByteArray guardada
            = "Fila 2: ya está guardada; indique --sustituir para sustituirla\n" + mala;
        rechazar(desde + partes("--simular --sustituir"),
                 mala
                     + "Simulación: no se ha guardado nada. 3 filas: 1 nuevas, 1 sustituyen a "
                       "otra, 1 rechazadas. Marcadas para guardar: 2.\n");
        rechazar(desde + partes("--todo-o-nada --sustituir"),
                 mala + "Declaraciones guardadas: 0. No guardadas: 2. Rechazadas: 1.\n");
        rechazar(desde, guardada + "Declaraciones guardadas: 1. No guardadas: 1. Rechazadas: 1.\n");
        lineas::escribir(hoja, "DNI;EJERCICIO;PERIODO;BASE\n12345678Z;2026;1;500\n");
        decir(desde + partes("--todo-o-nada --sustituir"),
              "Declaraciones guardadas: 1. No guardadas: 0. Rechazadas: 0.\n");
        decir(Listar + partes("--csv"),
              "Ejercicio;Período;Modelo;Importe\r\n2026;ENERO;430;40,00\r\n"
              "2026;MARZO;430;80,04\n");
        rechazar(partes("declarar --desde /dev/null"), "");
        rechazar(partes("declarar --desde="), "Falta el valor de la opción --desde", 2);

        const auto pendientes
            = [](const char *resto) { return partes("pendientes") + partes(resto); };
        decir(pendientes("--ejercicio 2026 --periodo 3"),
              "DNI        Razón social   Estado     Importe  Meses anteriores sin declarar\n"
              "12345678Z  SEGUROS ÑANDÚ  Guardada     80,04  2026: FEBRERO\n"
              "A58818501  SEGUROS ÑANDÚ  Pendiente\n");
        decir(pendientes("--ejercicio 2026 --periodo anual --csv"),
              "DNI;Razón social;Estado;Importe;Meses anteriores sin declarar\r\n"
              "12345678Z;SEGUROS ÑANDÚ;Falta un mes anterior;;2026: FEBRERO, ABRIL, MAYO, JUNIO, "
              "JULIO, AGOSTO, SEPTIEMBRE, OCTUBRE, NOVIEMBRE, DICIEMBRE\r\n"
              "A58818501;SEGUROS ÑANDÚ;Pendiente;;\n");
        const auto filas = QJsonDocument::fromJson(
            ostrel(pendientes("--ejercicio 2026 --periodo 1 --json")).texto);
        QCOMPARE(filas.toJson(QJsonDocument::Compact),
                 QByteArray("[{\"CSCO\":1,\"CSDE\":1,\"DNI\":\"12345678Z\",\"ESTADO\":\"GUARDADA\","
                            "\"FALTAN\":\"\",\"IMPORTE\":40,\"NOMBRE\":\"SEGUROS ÑANDÚ\"},"
                            "{\"CSCO\":2,\"CSDE\":0,\"DNI\":\"A58818501\",\"ESTADO\":\"PENDIENTE\","
                            "\"FALTAN\":\"\",\"IMPORTE\":null,\"NOMBRE\":\"SEGUROS ÑANDÚ\"}]"));
        rechazar(pendientes("--ejercicio 2026 --periodo 13"), "El valor «13» no es válido", 2);
        rechazar(pendientes("--ejercicio 2031 --periodo 1"), "El ejercicio-periodo no puede ser");
        rechazar(pendientes("--ejercicio 2026 --periodo 1 --json --csv"),
                 "Las opciones --json y --csv no se pueden indicar a la vez.", 2);
    }

    /// Every option of the print command, read back from the paper.
    void imprimir()
    {
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed");
        hacer(opcionesAlta());
        hacer(declarar("430 --ejercicio 2026 --periodo 1 --base 100"));
        hacer(declarar("430 --ejercicio 2026 --periodo 2 --base 250"));
        hacer(declarar("480 --ejercicio 2026 --casilla 01=300 --casilla 73=300"));
        const auto comprobar = [this](const char *opciones, const char *lleva, const char *falta) {
            const QString pdf = carpeta + u"/salida.pdf"_s;
            QFile::remove(pdf);
            hacer(partes("imprimir --dni 12345678Z --ejercicio 2026") + partes(opciones)
                  + QStringList{u"--pdf"_s, pdf});
            QProcess lector;
            lector.start(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s});
            lector.waitForFinished();
            const QString texto = QString::fromUtf8(lector.readAllStandardOutput());
            for (const QString &uno : partes(lleva))
                QVERIFY2(texto.contains(uno), qPrintable(uno + u" | "_s + texto));
            for (const QString &uno : partes(falta))
                QVERIFY2(!texto.contains(uno), qPrintable(uno));
        };
        comprobar("--modelo 430 --periodo 2", "250,00 20,00 LA_ADMINISTRACIÓN EL_INTERESADO",
                  "100,00 BORRADOR");
        QCOMPARE(unico::la<cImOf>().FECHAPRE(),
                 QDate::currentDate().toString(u"yyyyMMdd"_s).toInt());
        comprobar("--modelo 430 --periodo 1 --copias adm", "100,00 LA_ADMINISTRACIÓN",
                  "EL_INTERESADO BORRADOR");
        comprobar("--modelo 430 --periodo 1 --copias int", "EL_INTERESADO",
                  "LA_ADMINISTRACIÓN BORRADOR");
        comprobar("--modelo 430 --periodo 1 --borrador", "BORRADOR",
                  "LA_ADMINISTRACIÓN EL_INTERESADO");
        comprobar("--modelo 480 --fecha 17/03/2027 --copias int", "300,00 24,00 2027 17",
                  "LA_ADMINISTRACIÓN");
    }

    void imprimirTodas()
    {
        const QDir salida(carpeta + u"/pdf"_s);
        const auto todas = [&](const char *resto) {
            return partes("imprimir --todas --ejercicio 2026") + partes(resto)
                + QStringList{u"--pdf"_s, salida.path()};
        };
        hacer(opcionesAlta());
        hacer(opcionesAlta(u"dni"_s, u"A58818501"_s));
        hacer(opcionesAlta(u"dni"_s, u"00000001R"_s));
        rechazar(todas("--modelo 430 --periodo 1"),
                 "No hay ninguna declaración guardada que imprimir.\n");
        for (const char *dni : {"12345678Z", "A58818501"})
            hacer(partes("declarar 430 --ejercicio 2026 --periodo 1 --base 100 --dni")
                  + partes(dni));
        hacer(declarar("430 --ejercicio 2026 --periodo 2 --base 100"));
        hacer(declarar("480 --ejercicio 2026"));
        rechazar(todas("--modelo 430 --periodo 1"),
                 u"No existe la carpeta «%1».\n"_s.arg(salida.path()).toUtf8());
        QVERIFY(salida.mkpath(u"."_s));
        const QString enlace = salida.filePath(u"430_2026-01_A58818501_AD.pdf"_s);
        QVERIFY(QFile::link(tablas() + u"/OstrMod.mdb"_s, enlace));
        lineas::escribir(salida.filePath(u"430_2026-01_12345678Z_AD.pdf"_s), "antes");
        const Salida dicho = ostrel(todas("--modelo 430 --periodo 1 --copias adm"));
        rechazada(dicho, "A58818501: ");
        QVERIFY(dicho.error.endsWith("Impresas: 1. No impresas: 1.\n"));
        QVERIFY(QFile::remove(enlace));
        decir(todas("--modelo 430 --periodo 1 --copias adm"), "Impresas: 2. No impresas: 0.\n");
        decir(todas("--modelo 480 --borrador"), "Impresas: 1. No impresas: 0.\n");
        QCOMPARE(salida.entryList(QDir::Files | QDir::Hidden).join(u' '),
                 u"430_2026-01_12345678Z_AD.pdf 430_2026-01_A58818501_AD.pdf "
                 "480_2026_12345678Z_BO.pdf"_s);
        for (const QFileInfo &uno : salida.entryInfoList(QDir::Files))
            QVERIFY(lineas::leer(uno.filePath()).startsWith("%PDF-"));
        rechazar(todas("--modelo 430 --periodo 1 --dni 12345678Z"),
                 "Las opciones --dni y --todas no se pueden indicar a la vez.", 2);
        rechazar(partes("imprimir --modelo 480 --ejercicio 2026 --pdf x"), "Falta la opción --dni",
                 2);
        rechazar(todas("--modelo 430 --periodo 1 --imprimir-en x --copias todas"),
                 "La opción --copias", 2);
    }

    void imprimirRechazado()
    {
        hacer(opcionesAlta());
        hacer(declarar("430 --ejercicio 2026 --periodo 1 --base 100"));
        const auto caso = [this](const char *opciones, const char *motivo, int codigo) {
            rechazar(partes("imprimir --dni 12345678Z --modelo") + partes(opciones), motivo,
                     codigo);
        };
        caso("431 --ejercicio 2026 --pdf x", "El valor «431» no es válido", 2);
        caso("430 --ejercicio 26x --periodo 1 --pdf x", "El valor «26x» no es", 2);
        caso("430 --ejercicio 2026 --periodo 13 --pdf x", "El valor «13» no es", 2);
        caso("430 --ejercicio 2026 --pdf x", "Falta la opción --periodo.", 2);
        caso("480 --ejercicio 2026 --periodo 3 --pdf x", "El valor «3» no es", 2);
        caso("430 --ejercicio 2026 --periodo 1", "Indique --pdf o --imprimir-en.", 2);
        caso("430 --ejercicio 2026 --periodo 1 --pdf=", "Falta el valor de la opción --pdf", 2);
        caso("430 --ejercicio 2026 --periodo 1 --pdf x --borrador --copias adm",
             "Las opciones --borrador y --copias no se pueden indicar a la vez.", 2);
        caso("430 --ejercicio 2026 --periodo 1 --pdf x --copias todas", "La opción --copias", 2);
        caso("430 --ejercicio 2026 --periodo 2 --pdf x", "", 1);
        caso("430 --ejercicio 2026 --periodo 1 --fecha 30/02/2026 --pdf x", "", 1);
        // a file of the program's own stays what it is, whatever name it is given by
        const QString base = tablas() + u"/OstrMod.mdb"_s;
        const QString enlace = carpeta + u"/salida.pdf"_s;
        QVERIFY(QFile::link(base, enlace));
        const QByteArray antes = lineas::leer(base);
        const QStringList orden
            = partes("imprimir --dni 12345678Z --modelo 430 --ejercicio 2026 --periodo 1 --pdf");
        for (const QString &destino : {base, enlace, tablas() + u"/../Tablas/OstrLec.mdb"_s,
                                       u"/dev/null"_s, carpeta + u"/no/a.pdf"_s})
            rechazar(orden + QStringList{destino}, "");
        QCOMPARE(lineas::leer(base), antes);
        // nor is a form without a word taken for one on a machine without typefaces
        const QString pdf = carpeta + u"/a.pdf"_s;
        lineas::escribir(carpeta + u"/sin.conf"_s, "<fontconfig/>");
        qputenv("FONTCONFIG_FILE", QFile::encodeName(carpeta + u"/sin.conf"_s));
        rechazada(proceso(orden + QStringList{pdf}), "no hay ningún tipo de letra");
        qunsetenv("FONTCONFIG_FILE");
        QVERIFY(!QFileInfo::exists(pdf));
    }

    /// Without a screen, or on a platform that is not there: one line, and no core dump.
    void sinPantalla()
    {
        const QByteArray motivo
            = "No se puede abrir la ventana del programa: no existe la plataforma ";
        rechazada(proceso({}), motivo + "«none-that-exists».\n");
        rechazada(proceso(partes("-platform otra")), motivo + "«otra».\n");
    }

    void idioma()
    {
        decir(partes("idioma"), "Idioma del programa: C (Castellano)\n");
        hacer(partes("idioma e"));
        dicha(proceso(partes("idioma")), "Programaren hizkuntza: E (Euskara)\n");
        decir(partes("listar declarantes"), "Ez dago aitortzailerik.\n");
        QVERIFY(ostrel(partes("--help")).texto.startsWith("Erabilera:"));
        rechazar(opcionesAlta(u"dni"_s, u"1"_s), "--dni aukera: NA-IFK");
    }

    void malUso()
    {
        const auto caso
            = [this](const char *orden, const char *motivo) { rechazar(partes(orden), motivo, 2); };
        caso("volar",
             "Orden desconocida: volar\nEscriba «ostrel --help» para ver las órdenes y sus "
             "opciones.\n");
        caso("listar todo", "Orden desconocida: listar todo");
        caso("listar declarantes --color", "Opción desconocida: --color");
        caso("listar declarantes -x", "Opción desconocida: -x");
        caso("listar declarantes --dni 1", "Opción desconocida: --dni");
        caso("listar declarantes --json --json", "La opción --json se ha indicado más de una vez.");
        caso("listar declarantes --json=si", "Sobra el argumento «--json=si».");
        caso("listar declarantes 5", "Sobra el argumento «5».");
        caso("listar declaraciones", "Falta la opción --dni.");
        caso("declarar 430 --dni 1 --ejercicio 12026 --periodo 1 --base 1",
             "El valor «12026» no es válido para la opción --ejercicio.");
        caso("declarar 430 --dni 1 --ejercicio 2026 --periodo 13 --base 1",
             "El valor «13» no es válido para la opción --periodo.");
        caso("idioma castellano", "«castellano» no es un idioma del programa");
        caso("idioma --carpeta=", "Falta el valor de la opción --carpeta.");
    }

    /// Every page of the help, against the list kept with the tests.
    void ayuda()
    {
        QByteArray paginas;
        for (const QString &orden :
             u"-h|declarante alta -h|declarar -h|declarar 430 --help|declarar 480 -h|pendientes -h|"
             "listar -h|listar declarantes -h|listar declaraciones -h|imprimir -h|importar -h|"
             "exportar -h|copia -h|restaurar -h|idioma -h|completado -h"_s.split(u'|'))
            paginas += ostrel(orden.split(u' ')).texto + '\n';
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/ordenes.txt");
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            lineas::escribir(ruta, paginas);
        QCOMPARE(paginas.split('\n'), lineas::leer(ruta).split('\n'));
        const Salida version = proceso(partes("--version"));
        dicha(version, "Ostrel de Seguros " + version.texto.mid(18));
        QCOMPARE(version.texto.count('.'), 2);
        // asking for help leaves no trace
        QVERIFY(!QFileInfo::exists(tablas()));
    }

    void carpetaQueNoExiste()
    {
        const QString ninguna = carpeta + u"/no existe"_s;
        rechazar({u"idioma"_s, u"--carpeta"_s, ninguna},
                 u"No existe la carpeta «%1».\n"_s.arg(ninguna).toUtf8());
        QVERIFY(!QFileInfo::exists(ninguna));
    }

    /// Refused by name and left as it is.
    void baseDanada()
    {
        hacer(opcionesAlta());
        const QByteArray contenido = QByteArray("not a database at all\n").repeated(500);
        lineas::escribir(tablas() + u"/OstrMod.mdb"_s, contenido);
        for (const QStringList &orden : {partes("listar declarantes"), opcionesAlta()})
            rechazada(proceso(orden), "OstrMod.mdb");
        QCOMPARE(lineas::leer(tablas() + u"/OstrMod.mdb"_s), contenido);
    }

    /// What is damaged is named and marked, and is in nothing that is made; the rest goes on.
    void registrosDanados()
    {
        const QString fichero = carpeta + u"/dos.txt"_s;
        hacer(opcionesAlta());
        hacer(opcionesAlta(u"dni"_s, u"A58818501"_s));
        for (const char *periodo : {"1", "2"})
            hacer(declarar("430 --ejercicio 2026 --base 100 --periodo") + partes(periodo));
        hacer({u"exportar"_s, fichero});
        SQLite::Database((tablas() + u"/OstrMod.mdb"_s).toStdString(), SQLite::OPEN_READWRITE)
            .exec("UPDATE DECLARANTES SET TELEFONO = '1' WHERE CSCO = 2;"
                  "UPDATE DATOS430 SET BASELIQ = 5 WHERE CSDE = 1;"
                  "UPDATE DECLARACIONES SET IMPORTE = 5 WHERE CSDE = 2");
        const QByteArray dicho = " están dañados y no se usan. ";
        QCOMPARE(json("declarantes"),
                 u"[{CSCO:1,DNI:12345678Z,NOMBRE:SEGUROS ÑANDÚ,NOMMUN:ABRENZUOLA,"
                 "NOMPROV:VARLENDA,NUM430:2,NUM480:0},{CSCO:2,DNI:A58818501,NOMBRE:,"
                 "NOMMUN:Datos dañados,NOMPROV:,NUM430:null,NUM480:null}]"_s);
        QVERIFY(json("declaraciones --dni 12345678Z")
                    .contains(u"CSDE:2,EJERCICIO:2026,IMPORTE:null"_s));
        const QByteArray pendientes
            = ostrel(partes("pendientes --ejercicio 2026 --periodo 2 --json")).texto;
        QCOMPARE(pendientes.count("\"DANADA\""), 2);
        QCOMPARE(pendientes.count("\"IMPORTE\": null"), 2);
        const Salida exportado = ostrel(partes("exportar -"));
        QCOMPARE(exportado.codigo, 1);
        QVERIFY(exportado.texto.startsWith("12345678Z") && exportado.texto.count('\n') == 1);
        QVERIFY(exportado.error.contains("«A58818501»" + dicho));
        rechazar({u"importar"_s, u"--automatico"_s, fichero},
                 "Sustituidos: 1. Ignorados: 0. Incorrectos: 1.");
        for (const char *periodo : {"1", "2"})
            rechazar(partes("imprimir --dni 12345678Z --ejercicio 2026 --modelo 430 --pdf x.pdf "
                            "--periodo")
                         + partes(periodo),
                     "«12345678Z - SEGUROS ÑANDÚ: 430 2026-0" + QByteArray(periodo) + "»" + dicho);
        rechazar(partes("imprimir --todas --ejercicio 2026 --modelo 430 --periodo 1 --pdf .")
                     .replaceInStrings(u"."_s, carpeta),
                 "430 2026-01»" + dicho);
        lineas::escribir(carpeta + u"/hoja.csv"_s,
                         "DNI;EJERCICIO;PERIODO;BASE\nA58818501;2026;3;1\n");
        rechazar({u"declarar"_s, u"--desde"_s, carpeta + u"/hoja.csv"_s}, "«A58818501»" + dicho);
        rechazar(partes("copia"),
                 "«A58818501; 12345678Z - SEGUROS ÑANDÚ: 430 2026-02; 12345678Z - "
                 "SEGUROS ÑANDÚ: 430 2026-01»"
                     + dicho);
        QVERIFY(QDir(carpeta).entryList({u"*.pdf"_s}).isEmpty());
        hacer(declarar("430 --ejercicio 2026 --periodo 3 --base 1"));
    }

private:
    /// A list on one line, without the quotes.
    QString json(const char *lista) const
    {
        const Salida salida = ostrel(partes("listar --json") + partes(lista));
        return QString::fromUtf8(
                   QJsonDocument::fromJson(salida.texto).toJson(QJsonDocument::Compact))
            .remove(u'"');
    }

    QString tablas() const { return carpeta + u"/Tablas"_s; }

    std::optional<QTemporaryDir> m_carpeta;
};

QTEST_MAIN(TstOrden)
#include "tst_orden.moc"
