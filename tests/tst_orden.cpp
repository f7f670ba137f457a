#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

static const QStringList Alta{u"declarante"_s, u"alta"_s};

static const QStringList Declarar430{u"declarar"_s, u"430"_s, u"--dni"_s, u"12345678Z"_s};

static const QStringList Declarar480{u"declarar"_s, u"480"_s, u"--dni"_s, u"12345678Z"_s};

static const QStringList Listar{u"listar"_s, u"declaraciones"_s, u"--dni"_s, u"12345678Z"_s};

/// "--a 1 --b 2 3" as arguments; "_" stands for a blank inside one.
static QStringList partes(const char *texto)
{
    QStringList lista = QString::fromUtf8(texto).split(u' ', Qt::SkipEmptyParts);
    return lista.replaceInStrings(u"_"_s, u" "_s);
}

/// A valid declarant's options, one of them changed, added, or left out (when `valor` is null).
static QStringList opcionesAlta(const QString &cambiada = {}, const QString &valor = {})
{
    QMap<QString, QString> valores{
        {u"dni"_s, u"12345678z"_s}, {u"nombre"_s, u"Seguros Ñandú"_s},
        {u"codpos"_s, u"20001"_s},  {u"domicilio"_s, u"Mayor"_s},
        {u"codmun"_s, u"1"_s},      {u"telefono"_s, u"943000000"_s},
    };
    if (!cambiada.isEmpty())
        valores[cambiada] = valor;
    QStringList opciones = Alta;
    for (const auto &[opcion, dado] : valores.asKeyValueRange())
        if (!dado.isNull())
            opciones += {u"--"_s + opcion, dado};
    return opciones;
}

/// The program itself, run as a user runs it in a terminal.
class TstOrden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_carpeta.emplace(); }

    void alta()
    {
        const Salida salida = ostrel(
            opcionesAlta()
            + partes("--via av --numero 00012 --letra b --escalera=1 --piso 2 --mano dch"));
        QCOMPARE(salida.error, QString());
        QCOMPARE(salida.texto, u"Declarante dado de alta: 12345678Z - SEGUROS ÑANDÚ\n"_s);
        QCOMPARE(salida.codigo, 0);
        rechazar(opcionesAlta(), "No se puede dar de alta al nuevo declarante.");
        QStringList fuera = opcionesAlta(u"codmun"_s);
        fuera.replaceInStrings(u"20001"_s, u"01001"_s);
        fuera.replaceInStrings(u"12345678z"_s, u"A58818501"_s);
        hacer(fuera + partes("--codprov 1 --nommun otro_lugar"));
        // every field in its place: the whole lines of the exchange file
        const QString fichero = m_carpeta->filePath(u"declarantes.txt"_s);
        hacer({u"exportar"_s, fichero});
        QFile exportado(fichero);
        QVERIFY(exportado.open(QIODevice::ReadOnly));
        const auto exportadas = QString::fromLatin1(exportado.readAll()).split(u"\r\n"_s);
        const auto linea = [](const QString &dni, const QString &nombre, const QString &resto) {
            return dni.leftJustified(9) + nombre.leftJustified(40) + resto;
        };
        QCOMPARE(exportadas.value(0),
                 linea(u"12345678Z"_s, u"SEGUROS ÑANDÚ"_s,
                       u"AVMAYOR                         00012B 1 2 DCH2020001001"
                       u"ABRENZUOLA               94300000000000000000000"_s));
        QCOMPARE(exportadas.value(1),
                 linea(u"A58818501"_s, u"SEGUROS ÑANDÚ"_s,
                       u"CLMAYOR                         00000         0101001000"
                       u"OTRO LUGAR               94300000000000000000000"_s));
        const auto filas = lista(partes("listar declarantes"));
        QCOMPARE(filas[1].toObject(),
                 QJsonObject({{u"CSCO"_s, 2},
                              {u"DNI"_s, u"A58818501"_s},
                              {u"NOMBRE"_s, u"SEGUROS ÑANDÚ"_s},
                              {u"NOMMUN"_s, u"OTRO LUGAR"_s},
                              {u"NOMPROV"_s, u"ÁLAVA"_s},
                              {u"NUM430"_s, 0},
                              {u"NUM480"_s, 0}}));
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
        QCOMPARE(lista(partes("listar declarantes")).size(), 0);
    }

    void declarar430()
    {
        hacer(opcionesAlta());
        const Salida salida
            = ostrel(Declarar430 + partes("--ejercicio 2020 --periodo 1 --base 1.234,56"));
        QCOMPARE(salida.error, QString());
        // 6 % until 2020
        QCOMPARE(salida.texto, u"Declaración guardada: modelo 430, 2020 - ENERO, 74,07 euros\n"_s);
        hacer(Declarar430
              + partes("--ejercicio 2026 --periodo 12 --base 1234.56 --base-rectificacion -100,00 "
                       "--cuota-rectificacion -8"));
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 11 --base=-9999999999999,99"));
        const auto filas = lista(Listar);
        QCOMPARE(
            filas,
            QJsonArray({declaracion(1, 2020, 1, 74.07), declaracion(3, 2026, 11, -800000000000.0),
                        declaracion(2, 2026, 12, 90.76)}));
    }

    void declarar430Rechazada()
    {
        hacer(opcionesAlta());
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 1"));
        const auto caso = [this](const char *opciones, const char *motivo) {
            rechazar(Declarar430 + partes("--ejercicio 2026") + partes(opciones), motivo);
        };
        caso("--periodo 1 --base 5", "No se puede dar de alta la nueva declaración.");
        caso("--periodo 2 --base abc", "Opción --base: «abc» no es un importe.");
        caso("--periodo 2 --base=", "Opción --base: «» no es un importe.");
        caso("--periodo 2 --base 1,234", "Opción --base: El importe no puede tener más de 2 dec");
        caso("--periodo 2 --base 10000000000000", "Opción --base: El importe no puede tener más");
        caso("--periodo 2 --base 9999999999999,99 --base-rectificacion 0,01",
             "Opción --base-rectificacion: No se admite el cambio: el total «Base imponible»");
        caso("--periodo 2 --base 5 --base-rectificacion 1",
             "La casillas Base imponible y Cuota de Rectificación no pueden ser 0");
        rechazar(Declarar430 + partes("--ejercicio 2031 --periodo 1 --base 5"),
                 "El ejercicio-periodo no puede ser anterior al 2002-01\n ni posterior al 2030-12");
        QCOMPARE(lista(Listar).size(), 1);
    }

    void declarar480()
    {
        hacer(opcionesAlta());
        const Salida salida = ostrel(
            Declarar480
            + partes("--ejercicio 2026 --casilla 01=100000,00 --casilla 67=-0,50 --casilla 2=7 "
                     "--casilla 73=99999,50 --casilla 79=5 --casilla 80=-10"));
        QCOMPARE(salida.error, QString());
        QCOMPARE(salida.texto,
                 u"Declaración guardada: modelo 480, 2026 - ANUAL, 7.989,96 euros\n"_s);
        hacer(Declarar480 + partes("--ejercicio 2025"));
        // the total fits, in whatever order the boxes come
        hacer(Declarar480
              + partes("--ejercicio 2024 --casilla 04=5 --casilla 01=9999999999999,99 --casilla "
                       "07=-9999999999999,99 "
                       "--casilla 73=5"));
        const auto filas = lista(Listar);
        QCOMPARE(filas,
                 QJsonArray({declaracion(3, 2024, 12, 0.40, u"480"_s),
                             declaracion(2, 2025, 12, 0, u"480"_s),
                             declaracion(1, 2026, 12, 7989.96, u"480"_s)}));
        QCOMPARE(lista(partes("listar declarantes"))[0][u"NUM480"].toInt(), 3);
        QCOMPARE(lista(partes("listar declarantes"))[0][u"NUM430"].toInt(), 0);
    }

    void declarar480Rechazada()
    {
        hacer(opcionesAlta());
        const auto caso = [this](const char *opciones, const char *motivo, int codigo = 1) {
            rechazar(Declarar480 + partes("--ejercicio 2026") + partes(opciones), motivo, codigo);
        };
        caso("--casilla 01=5 --casilla 1=5", "La casilla 01 se ha indicado más de una vez.");
        caso("--casilla 82=5", "No existe la casilla 82.");
        caso("--casilla 03=5", "La casilla 03 la calcula el programa");
        caso("--casilla 74=5", "La casilla 74 la calcula el programa");
        caso("--casilla 01=x", "Casilla 01: «x» no es un importe.");
        caso("--casilla 01=9999999999999,99 --casilla 04=0,01",
             "Casilla 04: No se admite el cambio: el total «Totales»");
        caso("--casilla 01=100", "La casilla Total No Exento debe ser igual");
        caso("--casilla 01", "El valor «01» no es válido para la opción --casilla.", 2);
        caso("--casilla x=1", "El valor «x=1» no es válido para la opción --casilla.", 2);
        QCOMPARE(lista(Listar).size(), 0);
    }

    void listas()
    {
        QCOMPARE(ostrel(partes("listar declarantes")).texto, u"No hay declarantes.\n"_s);
        QCOMPARE(ostrel(partes("listar declarantes --json")).texto, u"[\n]\n"_s);
        rechazar(Listar, "No existe ningún declarante con el DNI-CIF 12345678Z.\n");
        hacer(opcionesAlta());
        QCOMPARE(ostrel(Listar).texto, u"El declarante no tiene declaraciones.\n"_s);
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 9 --base 1234567,89"));
        hacer(Declarar430
              + partes("--ejercicio 2026 --periodo 10 --base 0 --base-rectificacion 1 "
                       "--cuota-rectificacion 9999999999999,99"));
        QCOMPARE(ostrel(Listar).texto,
                 u"Ejercicio  Período     Modelo               Importe\n"
                 u"2026       SEPTIEMBRE  430                98.765,43\n"
                 u"2026       OCTUBRE     430     9.999.999.999.999,99\n"_s);
        QCOMPARE(
            ostrel(partes("listar declarantes")).texto,
            u"DNI        Razón social   Nombre del municipio  Nombre de provincia  430  480\n"
            u"12345678Z  SEGUROS ÑANDÚ  ABRENZUOLA            VARLENDA               2    0\n"_s);
        const Salida salida = ostrel(Listar + partes("--json"));
        QVERIFY2(salida.texto.contains(u"\"IMPORTE\": 9999999999999.99,"),
                 qPrintable(salida.texto));
    }

    /// Every option of the print command, read back from the paper.
    void imprimir()
    {
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed");
        hacer(opcionesAlta());
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 100"));
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 2 --base 250"));
        hacer(Declarar480 + partes("--ejercicio 2026 --casilla 01=300 --casilla 73=300"));
        const auto papel = [this](const char *opciones) {
            const QString pdf = m_carpeta->filePath(u"salida.pdf"_s);
            QFile::remove(pdf);
            hacer(partes("imprimir --dni 12345678Z --ejercicio 2026") + partes(opciones)
                  + QStringList{u"--pdf"_s, pdf});
            QProcess texto;
            texto.start(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s});
            texto.waitForFinished();
            return QString::fromUtf8(texto.readAllStandardOutput());
        };
        const auto comprobar
            = [&](const char *opciones, const QStringList &lleva, const QStringList &falta) {
                  const QString texto = papel(opciones);
                  for (const QString &uno : lleva)
                      QVERIFY2(texto.contains(uno), qPrintable(uno + u" | "_s + texto));
                  for (const QString &uno : falta)
                      QVERIFY2(!texto.contains(uno), qPrintable(uno));
              };
        const QString adm = u"EJEMPLAR PARA LA ADMINISTRACIÓN"_s;
        const QString inte = u"EJEMPLAR PARA EL INTERESADO"_s;
        const QString borrador = u"BORRADOR"_s;
        comprobar("--modelo 430 --periodo 2", {u"250,00"_s, u"20,00"_s, adm, inte},
                  {u"100,00"_s, borrador});
        comprobar("--modelo 430 --periodo 1 --copias adm", {u"100,00"_s, adm}, {inte, borrador});
        comprobar("--modelo 430 --periodo 1 --copias int", {inte}, {adm, borrador});
        comprobar("--modelo 430 --periodo 1 --borrador", {borrador}, {adm, inte});
        comprobar("--modelo 480 --fecha 17/03/2027 --copias int",
                  {u"300,00"_s, u"24,00"_s, u"2027"_s, u"17"_s}, {adm});
    }

    void imprimirRechazado()
    {
        hacer(opcionesAlta());
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 100"));
        const auto caso = [this](const char *opciones, const char *motivo, int codigo) {
            rechazar(partes("imprimir --dni 12345678Z") + partes(opciones), motivo, codigo);
        };
        caso("--modelo 431 --ejercicio 2026 --pdf x", "El valor «431» no es válido", 2);
        caso("--modelo 430 --ejercicio 26x --periodo 1 --pdf x", "El valor «26x» no es", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 13 --pdf x", "El valor «13» no es", 2);
        caso("--modelo 430 --ejercicio 2026 --pdf x", "Falta la opción --periodo.", 2);
        caso("--modelo 480 --ejercicio 2026 --periodo 3 --pdf x", "El valor «3» no es", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 1", "Indique --pdf o --imprimir-en.", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 1 --pdf=",
             "Falta el valor de la opción --pdf", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 1 --pdf x --borrador --copias adm",
             "Las opciones --borrador y --copias no se pueden indicar a la vez.", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 1 --pdf x --copias todas",
             "La opción --copias", 2);
        caso("--modelo 430 --ejercicio 2026 --periodo 2 --pdf x", "", 1);
        caso("--modelo 430 --ejercicio 2026 --periodo 1 --fecha 30/02/2026 --pdf x", "", 1);
        // a file of the program's own stays what it is, whatever name it is given by
        const QString base = tablas() + u"/OstrMod.mdb"_s;
        const QString enlace = m_carpeta->filePath(u"salida.pdf"_s);
        QVERIFY(QFile::link(base, enlace));
        QFile fichero(base);
        QVERIFY(fichero.open(QIODevice::ReadOnly));
        const QByteArray antes = fichero.readAll();
        for (const QString &destino :
             {base, enlace, tablas() + u"/../Tablas/OstrLec.mdb"_s, u"/dev/null"_s}) {
            const Salida salida = ostrel(
                partes("imprimir --dni 12345678Z --modelo 430 --ejercicio 2026 --periodo 1 --pdf")
                + QStringList{destino});
            QCOMPARE(salida.codigo, 1);
            QVERIFY(!salida.error.isEmpty());
        }
        fichero.seek(0);
        QCOMPARE(fichero.readAll(), antes);
    }

    /// Without a screen, or on a platform that is not there: one line, and no core dump.
    void sinPantalla()
    {
        QCOMPARE(ostrel({}).error,
                 u"No se puede abrir la ventana del programa: no existe la plataforma "
                 "«none-that-exists».\n"_s);
        QCOMPARE(ostrel({}).codigo, 1);
        QCOMPARE(ostrel(partes("-platform otra")).error,
                 u"No se puede abrir la ventana del programa: no existe la plataforma «otra».\n"_s);
    }

    /// A file that may grow no further is told, and ends nothing.
    void ficheroSinSitio()
    {
        hacer(opcionesAlta());
        hacer(Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 100"));
        QProcess proceso;
        proceso.start(u"bash"_s,
                      {u"-c"_s, u"ulimit -f 1; exec \"$@\""_s, u"bash"_s, QStringLiteral(OSTREL),
                       u"--carpeta"_s, m_carpeta->path(), u"imprimir"_s, u"--dni"_s, u"12345678Z"_s,
                       u"--modelo"_s, u"430"_s, u"--ejercicio"_s, u"2026"_s, u"--periodo"_s, u"1"_s,
                       u"--pdf"_s, m_carpeta->filePath(u"a.pdf"_s)});
        QVERIFY(proceso.waitForFinished());
        QCOMPARE(proceso.exitStatus(), QProcess::NormalExit);
        QCOMPARE(proceso.exitCode(), 1);
        QVERIFY(!QFileInfo::exists(m_carpeta->filePath(u"a.pdf"_s)));
    }

    void idioma()
    {
        QCOMPARE(ostrel(partes("idioma")).texto, u"Idioma del programa: C (Castellano)\n"_s);
        hacer(partes("idioma e"));
        QCOMPARE(ostrel(partes("idioma")).texto, u"Programaren hizkuntza: E (Euskera)\n"_s);
        QCOMPARE(ostrel(partes("listar declarantes")).texto, u"Ez dago aitortzailerik.\n"_s);
        QVERIFY(ostrel(partes("--help")).texto.startsWith(u"Erabilera:"));
        QVERIFY(ostrel(opcionesAlta(u"dni"_s, u"1"_s)).error.startsWith(u"--dni aukera: NA-IFK"));
    }

    void malUso()
    {
        const auto caso
            = [this](const char *orden, const char *motivo) { rechazar(partes(orden), motivo, 2); };
        caso("volar", "Orden desconocida: volar");
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

    void ayuda()
    {
        for (const auto &[orden, contiene] : {std::pair{"--help", u"idioma [C|E]"_s},
                                              {"-h", u"declarante alta"_s},
                                              {"listar -h", u"listar declaraciones"_s},
                                              {"declarar 480 --help", u"[--casilla NN=EUROS …]"_s},
                                              {"--version", u"Ostrel de Seguros "_s}}) {
            const Salida salida = ostrel(partes(orden));
            QCOMPARE(salida.codigo, 0);
            QCOMPARE(salida.error, QString());
            QVERIFY2(salida.texto.contains(contiene), orden);
        }
        // asking for help leaves no trace
        QVERIFY(!QFileInfo::exists(tablas()));
    }

    void carpeta()
    {
        const QString ninguna = m_carpeta->filePath(u"no existe"_s);
        QProcess proceso;
        proceso.start(QStringLiteral(OSTREL), {u"--carpeta"_s, ninguna, u"idioma"_s});
        QVERIFY(proceso.waitForFinished());
        QCOMPARE(proceso.exitCode(), 1);
        QCOMPARE(QString::fromUtf8(proceso.readAllStandardError()),
                 u"No existe la carpeta «%1».\n"_s.arg(ninguna));
        QVERIFY(!QFileInfo::exists(ninguna));
    }

    /// Refused by name and left as it is.
    void baseDanada()
    {
        hacer(opcionesAlta());
        const QByteArray contenido = QByteArray("not a database at all\n").repeated(500);
        QFile base(tablas() + u"/OstrMod.mdb"_s);
        QVERIFY(base.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(base.write(contenido), contenido.size());
        base.close();
        for (const QStringList &orden : {partes("listar declarantes"), opcionesAlta()}) {
            const Salida salida = ostrel(orden);
            QCOMPARE(salida.codigo, 1);
            QCOMPARE(salida.texto, QString());
            QVERIFY2(salida.error.contains(u"OstrMod.mdb"), qPrintable(salida.error));
        }
        QVERIFY(base.open(QIODevice::ReadOnly));
        QCOMPARE(base.readAll(), contenido);
    }

private:
    struct Salida
    {
        int codigo;
        QString texto;
        QString error;
    };

    Salida ostrel(const QStringList &argumentos) const
    {
        QProcess proceso;
        auto entorno = QProcessEnvironment::systemEnvironment();
        entorno.remove(u"DISPLAY"_s);
        entorno.insert(u"QT_QPA_PLATFORM"_s, u"none-that-exists"_s);
        proceso.setProcessEnvironment(entorno);
        proceso.start(QStringLiteral(OSTREL),
                      argumentos + QStringList{u"--carpeta"_s, m_carpeta->path()});
        if (!proceso.waitForFinished() || proceso.exitStatus() != QProcess::NormalExit)
            return {-1, {}, proceso.errorString()};
        return {proceso.exitCode(), QString::fromUtf8(proceso.readAllStandardOutput()),
                QString::fromUtf8(proceso.readAllStandardError())};
    }

    /// The command fails with `codigo`, prints nothing else, and tells `motivo`.
    void rechazar(const QStringList &argumentos, const char *motivo, int codigo = 1) const
    {
        const Salida salida = ostrel(argumentos);
        QVERIFY2(salida.error.startsWith(QString::fromUtf8(motivo)), qPrintable(salida.error));
        QCOMPARE(salida.texto, QString());
        QCOMPARE(salida.codigo, codigo);
    }

    void hacer(const QStringList &argumentos) const
    {
        const Salida salida = ostrel(argumentos);
        QCOMPARE(salida.error, QString());
        QCOMPARE(salida.codigo, 0);
    }

    /// A row of the list of returns, whole.
    static QJsonObject declaracion(int csde, int ejercicio, int periodo, double importe,
                                   const QString &modelo = u"430"_s)
    {
        const int tipo = modelo == u"430" ? 1 : 2;
        return {{u"CSDE"_s, csde},       {u"EJERCICIO"_s, ejercicio}, {u"PERIODICIDAD"_s, tipo},
                {u"PERIODO"_s, periodo}, {u"MODELO"_s, modelo},       {u"TIPOLOGIA"_s, tipo},
                {u"IMPORTE"_s, importe}};
    }

    QJsonArray lista(const QStringList &argumentos) const
    {
        const Salida salida = ostrel(argumentos + QStringList{u"--json"_s});
        return QJsonDocument::fromJson(salida.texto.toUtf8()).array();
    }

    QString tablas() const { return m_carpeta->filePath(u"Tablas"_s); }

    std::optional<QTemporaryDir> m_carpeta;
};

QTEST_GUILESS_MAIN(TstOrden)
#include "tst_orden.moc"
