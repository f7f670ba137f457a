#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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
class TestOrden : public QObject
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
        const auto filas = lista(partes("listar declarantes"));
        QCOMPARE(filas[0][u"NOMMUN"].toString(), u"ABRENZUOLA"_s);
        QCOMPARE(filas[1][u"NOMMUN"].toString(), u"OTRO LUGAR"_s);
        QCOMPARE(filas[1][u"NOMPROV"].toString(), u"ÁLAVA"_s);
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
        QCOMPARE(filas.size(), 3);
        QCOMPARE(filas[0][u"IMPORTE"].toDouble(), 74.07);
        QCOMPARE(filas[1][u"IMPORTE"].toDouble(), -800000000000.0);
        QCOMPARE(filas[2][u"IMPORTE"].toDouble(), 90.76);
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
        const auto filas = lista(Listar);
        QCOMPARE(filas.size(), 2);
        QCOMPARE(filas[1][u"PERIODO"].toInt(), 12);
        QCOMPARE(filas[1][u"IMPORTE"].toDouble(), 7989.96);
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
        QCOMPARE(lista(partes("listar declarantes")).first().toObject().keys(),
                 partes("CSCO DNI NOMBRE NOMMUN NOMPROV NUM430 NUM480"));
        QCOMPARE(lista(Listar).first().toObject().keys(),
                 partes("CSDE EJERCICIO IMPORTE MODELO PERIODICIDAD PERIODO TIPOLOGIA"));
        const Salida salida = ostrel(Listar + partes("--json"));
        QVERIFY2(salida.texto.contains(u"\"IMPORTE\": 9999999999999.99,"),
                 qPrintable(salida.texto));
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

    QJsonArray lista(const QStringList &argumentos) const
    {
        const Salida salida = ostrel(argumentos + QStringList{u"--json"_s});
        return QJsonDocument::fromJson(salida.texto.toUtf8()).array();
    }

    QString tablas() const { return m_carpeta->filePath(u"Tablas"_s); }

    std::optional<QTemporaryDir> m_carpeta;
};

QTEST_GUILESS_MAIN(TestOrden)
#include "tst_orden.moc"
