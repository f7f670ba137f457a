#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

/// The program itself, run as a user runs it in a terminal.
class TestOrden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_carpeta.emplace(); }

    void alta();
    void altaFuera();
    void altaRechazada_data();
    void altaRechazada();
    void declarar430();
    void declarar430Rechazada_data();
    void declarar430Rechazada();
    void declarar480();
    void declarar480Rechazada_data();
    void declarar480Rechazada();
    void listas();
    void json();
    void idioma();
    void malUso_data();
    void malUso();
    void ayuda_data();
    void ayuda();
    void carpeta();
    void baseDanada_data();
    void baseDanada();

private:
    struct Salida
    {
        int codigo;
        QString texto;
        QString error;
    };

    Salida ostrel(const QStringList &argumentos) const;
    void hacer(const QStringList &argumentos) const;
    QJsonArray lista(const QStringList &argumentos) const;
    QString tablas() const { return m_carpeta->filePath(u"Tablas"_qs); }

    std::optional<QTemporaryDir> m_carpeta;
};

static const QStringList Alta{u"declarante"_qs, u"alta"_qs};
static const QStringList Declarar430{u"declarar"_qs, u"430"_qs, u"--dni"_qs, u"12345678Z"_qs};
static const QStringList Declarar480{u"declarar"_qs, u"480"_qs, u"--dni"_qs, u"12345678Z"_qs};
static const QStringList Listar{u"listar"_qs, u"declaraciones"_qs, u"--dni"_qs, u"12345678Z"_qs};

/// "--a 1 --b 2 3" as arguments; "_" stands for a blank inside one.
static QStringList partes(const char *texto)
{
    QStringList lista = QString::fromUtf8(texto).split(u' ', Qt::SkipEmptyParts);
    return lista.replaceInStrings(u"_"_qs, u" "_qs);
}

/// A valid declarant's options, one of them changed, added, or left out (when `valor` is null).
static QStringList opcionesAlta(const QString &cambiada = {}, const QString &valor = {})
{
    QMap<QString, QString> valores{
        {u"dni"_qs, u"12345678z"_qs}, {u"nombre"_qs, u"Seguros Ñandú"_qs},
        {u"codpos"_qs, u"20001"_qs},  {u"domicilio"_qs, u"Mayor"_qs},
        {u"codmun"_qs, u"1"_qs},      {u"telefono"_qs, u"943000000"_qs},
    };
    if (!cambiada.isEmpty())
        valores[cambiada] = valor;
    QStringList opciones = Alta;
    for (const auto &[opcion, dado] : valores.asKeyValueRange())
        if (!dado.isNull())
            opciones += {u"--"_qs + opcion, dado};
    return opciones;
}

TestOrden::Salida TestOrden::ostrel(const QStringList &argumentos) const
{
    QProcess proceso;
    auto entorno = QProcessEnvironment::systemEnvironment();
    entorno.remove(u"DISPLAY"_qs);
    entorno.insert(u"QT_QPA_PLATFORM"_qs, u"none-that-exists"_qs);
    proceso.setProcessEnvironment(entorno);
    proceso.start(QStringLiteral(OSTREL),
                  argumentos + QStringList{u"--carpeta"_qs, m_carpeta->path()});
    if (!proceso.waitForFinished() || proceso.exitStatus() != QProcess::NormalExit)
        return {-1, {}, proceso.errorString()};
    return {proceso.exitCode(), QString::fromUtf8(proceso.readAllStandardOutput()),
            QString::fromUtf8(proceso.readAllStandardError())};
}

void TestOrden::hacer(const QStringList &argumentos) const
{
    const Salida salida = ostrel(argumentos);
    QCOMPARE(salida.error, QString());
    QCOMPARE(salida.codigo, 0);
}

QJsonArray TestOrden::lista(const QStringList &argumentos) const
{
    const Salida salida = ostrel(argumentos + QStringList{u"--json"_qs});
    return QJsonDocument::fromJson(salida.texto.toUtf8()).array();
}

void TestOrden::alta()
{
    const Salida salida
        = ostrel(opcionesAlta()
                 + partes("--via av --numero 00012 --letra b --escalera=1 --piso 2 --mano dch"));
    QCOMPARE(salida.error, QString());
    QCOMPARE(salida.texto, u"Declarante dado de alta: 12345678Z - SEGUROS ÑANDÚ\n"_qs);
    QCOMPARE(salida.codigo, 0);
    const auto fila = lista(partes("listar declarantes")).first().toObject();
    QCOMPARE(fila[u"DNI"].toString(), u"12345678Z"_qs);
    QCOMPARE(fila[u"NOMMUN"].toString(), u"ABRENZUOLA"_qs);
    QCOMPARE(fila[u"NOMPROV"].toString(), u"VARLENDA"_qs);

    const Salida otra = ostrel(opcionesAlta());
    QCOMPARE(otra.codigo, 1);
    QVERIFY(otra.error.startsWith(u"No se puede dar de alta al nuevo declarante."));
}

void TestOrden::altaFuera()
{
    QStringList fuera = opcionesAlta(u"codmun"_qs);
    fuera.replaceInStrings(u"20001"_qs, u"01001"_qs);
    hacer(fuera + partes("--codprov 1 --nommun otro_lugar"));
    const auto fila = lista(partes("listar declarantes")).first().toObject();
    QCOMPARE(fila[u"NOMMUN"].toString(), u"OTRO LUGAR"_qs);
    QCOMPARE(fila[u"NOMPROV"].toString(), u"ÁLAVA"_qs);
}

void TestOrden::altaRechazada_data()
{
    QTest::addColumn<QString>("opcion");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("motivo");
    const auto fila = [](const char *opcion, const char *valor, const char *motivo) {
        QTest::addRow("%s %s", opcion, valor)
            << QString::fromUtf8(opcion) << QString::fromUtf8(valor) << QString::fromUtf8(motivo);
    };
    fila("dni", "12345678A", "Opción --dni: El campo DNI-CIF es erróneo");
    fila("nombre", "", "Opción --nombre: La casilla Razón Social");
    fila("domicilio", " ", "Opción --domicilio: La casilla Domicilio");
    fila("codpos", "48001", "Opción --codpos: El Código de Provincia y el Código Postal");
    fila("codpos", "2000", "Opción --codpos: El Código Postal debe ser un número de 5");
    fila("codpos", "20000", "Opción --codpos: Los tres últimos");
    fila("codpos", "00000", "Opción --codpos: El Código Postal debe ser distinto de cero");
    fila("codmun", "", "Opción --codmun: La casilla Código de Municipio");
    fila("codmun", "999", "Opción --codmun: el código «999» no está en la tabla");
    fila("nommun", "OTRO", "El valor «OTRO» no es válido para la opción --nommun");
    fila("codprov", "53", "Opción --codprov: el código «53» no está en la tabla");
    fila("codprov", "1", "El valor «1» no es válido para la opción --codmun");
    fila("via", "QQ", "Opción --via: el código «QQ» no está en la tabla");
    fila("telefono", "94300000", "Opción --telefono: El Teléfono debe ser un número de 9");
    fila("telefono", "", "Opción --telefono: La casilla Teléfono debe tener");
    fila("numero", "1A", "El valor «1A» no es válido para la opción --numero");
    fila("numero", "-1", "El valor «-1» no es válido para la opción --numero");
    fila("numero", "123456", "El valor de la opción --numero no puede tener más de 5");
    fila("nombre", "A@B", "No se admite el carácter «@» en la opción --nombre");
    fila("nombre", "日本", "No se admite el carácter «日» en la opción --nombre");
    fila("mano", "DCHA", "El valor de la opción --mano no puede tener más de 3");
    fila("letra", "ABC", "El valor de la opción --letra no puede tener más de 2");
    fila("domicilio", "VEINTIUN CARACTERES X", "El valor de la opción --domicilio no puede tener");
    fila("nombre", "UN NOMBRE QUE PASA DE LOS CUARENTA CARACT",
         "El valor de la opción --nombre no puede tener más de 40");
}

void TestOrden::altaRechazada()
{
    QFETCH(QString, opcion);
    QFETCH(QString, valor);
    QFETCH(QString, motivo);
    const Salida salida = ostrel(opcionesAlta(opcion, valor));
    QCOMPARE(salida.codigo, 1);
    QCOMPARE(salida.texto, QString());
    QVERIFY2(salida.error.startsWith(motivo), qPrintable(salida.error));
    QCOMPARE(lista(partes("listar declarantes")).size(), 0);
}

void TestOrden::declarar430()
{
    hacer(opcionesAlta());
    const Salida salida
        = ostrel(Declarar430 + partes("--ejercicio 2020 --periodo 1 --base 1.234,56"));
    QCOMPARE(salida.error, QString());
    // 6 % until 2020
    QCOMPARE(salida.texto, u"Declaración guardada: modelo 430, 2020 - ENERO, 74,07 euros\n"_qs);
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

void TestOrden::declarar430Rechazada_data()
{
    QTest::addColumn<QString>("motivo");
    const auto fila = [](const char *opciones, const char *motivo) {
        QTest::newRow(opciones) << QString::fromUtf8(motivo);
    };
    fila("--ejercicio 2026 --periodo 1 --base 5", "No se puede dar de alta la nueva declaración.");
    fila("--ejercicio 2001 --periodo 12 --base 5",
         "El ejercicio-periodo no puede ser anterior al 2002-01\n ni posterior al 2030-12");
    fila("--ejercicio 2031 --periodo 1 --base 5", "El ejercicio-periodo no puede ser");
    fila("--ejercicio 2026 --periodo 2 --base abc", "Opción --base: «abc» no es un importe.");
    fila("--ejercicio 2026 --periodo 2 --base=", "Opción --base: «» no es un importe.");
    fila("--ejercicio 2026 --periodo 2 --base 1,234",
         "Opción --base: El importe no puede tener más de 2 decimales.");
    fila("--ejercicio 2026 --periodo 2 --base 10000000000000",
         "Opción --base: El importe no puede tener más de 13 cifras enteras.");
    fila("--ejercicio 2026 --periodo 2 --base 9999999999999,99 --base-rectificacion 0,01",
         "Opción --base-rectificacion: No se admite el cambio: el total «Base imponible»");
    fila("--ejercicio 2026 --periodo 2 --base 5 --base-rectificacion 1",
         "La casillas Base imponible y Cuota de Rectificación no pueden ser 0");
    fila("--ejercicio 2026 --periodo 2 --base 5 --cuota-rectificacion 1",
         "La casillas Base imponible y Cuota de Rectificación no pueden ser 0");
    fila("--ejercicio 2026 --periodo 2 --base 5 --base-rectificacion 0 --cuota-rectificacion 0",
         "La casillas Base imponible y Cuota de Rectificación no pueden ser 0");
}

void TestOrden::declarar430Rechazada()
{
    QFETCH(QString, motivo);
    hacer(opcionesAlta());
    hacer(Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 1"));
    const Salida salida = ostrel(Declarar430 + partes(QTest::currentDataTag()));
    QCOMPARE(salida.codigo, 1);
    QCOMPARE(salida.texto, QString());
    QVERIFY2(salida.error.startsWith(motivo), qPrintable(salida.error));
    QCOMPARE(lista(Listar).size(), 1);
}

void TestOrden::declarar480()
{
    hacer(opcionesAlta());
    const Salida salida = ostrel(
        Declarar480
        + partes("--ejercicio 2026 --casilla 01=100000,00 --casilla 67=-0,50 --casilla 2=7 "
                 "--casilla 73=99999,50 --casilla 79=5 --casilla 80=-10"));
    QCOMPARE(salida.error, QString());
    QCOMPARE(salida.texto, u"Declaración guardada: modelo 480, 2026 - ANUAL, 7.989,96 euros\n"_qs);
    hacer(Declarar480 + partes("--ejercicio 2025"));
    const auto filas = lista(Listar);
    QCOMPARE(filas.size(), 2);
    QCOMPARE(filas[1][u"PERIODO"].toInt(), 12);
    QCOMPARE(filas[1][u"PERIODICIDAD"].toInt(), 2);
    QCOMPARE(filas[1][u"IMPORTE"].toDouble(), 7989.96);
}

void TestOrden::declarar480Rechazada_data()
{
    QTest::addColumn<int>("codigo");
    QTest::addColumn<QString>("motivo");
    const auto fila = [](const char *opciones, const char *motivo, int codigo = 1) {
        QTest::newRow(opciones) << codigo << QString::fromUtf8(motivo);
    };
    fila("--casilla 01=5 --casilla 1=5", "La casilla 01 se ha indicado más de una vez.");
    fila("--casilla 82=5", "No existe la casilla 82.");
    fila("--casilla 00=5", "No existe la casilla 00.");
    fila("--casilla 03=5", "La casilla 03 la calcula el programa");
    fila("--casilla 70=5", "La casilla 70 la calcula el programa");
    fila("--casilla 74=5", "La casilla 74 la calcula el programa");
    fila("--casilla 01=x", "Casilla 01: «x» no es un importe.");
    fila("--casilla 01=", "Casilla 01: «» no es un importe.");
    fila("--casilla 01=9999999999999,99 --casilla 04=0,01",
         "Casilla 04: No se admite el cambio: el total «Totales»");
    fila("--casilla 01=100", "La casilla Total No Exento debe ser igual");
    fila("--casilla 01", "El valor «01» no es válido para la opción --casilla.", 2);
    fila("--casilla x=1", "El valor «x=1» no es válido para la opción --casilla.", 2);
}

void TestOrden::declarar480Rechazada()
{
    QFETCH(int, codigo);
    QFETCH(QString, motivo);
    hacer(opcionesAlta());
    const Salida salida
        = ostrel(Declarar480 + partes("--ejercicio 2026") + partes(QTest::currentDataTag()));
    QVERIFY2(salida.error.startsWith(motivo), qPrintable(salida.error));
    QCOMPARE(salida.codigo, codigo);
    QCOMPARE(lista(Listar).size(), 0);
}

void TestOrden::listas()
{
    QCOMPARE(ostrel(partes("listar declarantes")).texto, u"No hay declarantes.\n"_qs);
    const Salida nadie = ostrel(Listar);
    QCOMPARE(nadie.codigo, 1);
    QCOMPARE(nadie.error, u"No existe ningún declarante con el DNI-CIF 12345678Z.\n"_qs);
    hacer(opcionesAlta());
    QCOMPARE(ostrel(Listar).texto, u"El declarante no tiene declaraciones.\n"_qs);
    hacer(Declarar430 + partes("--ejercicio 2026 --periodo 9 --base 1234567,89"));
    hacer(Declarar430 + partes("--ejercicio 2026 --periodo 10 --base 10"));
    QCOMPARE(ostrel(Listar).texto,
             u"Ejercicio  Período     Modelo    Importe\n"
             u"2026       SEPTIEMBRE  430     98.765,43\n"
             u"2026       OCTUBRE     430          0,80\n"_qs);
    QCOMPARE(ostrel(partes("listar declarantes")).texto,
             u"DNI        Razón social   Nombre del municipio  Nombre de provincia  430  480\n"
             u"12345678Z  SEGUROS ÑANDÚ  ABRENZUOLA            VARLENDA               2    0\n"_qs);
}

void TestOrden::json()
{
    QCOMPARE(ostrel(partes("listar declarantes --json")).texto, u"[\n]\n"_qs);
    hacer(opcionesAlta());
    hacer(Declarar430
          + partes("--ejercicio 2026 --periodo 1 --base 0 --base-rectificacion 1 "
                   "--cuota-rectificacion 9999999999999,99"));
    const auto declarante = lista(partes("listar declarantes")).first().toObject();
    QCOMPARE(declarante.keys(), partes("CSCO DNI NOMBRE NOMMUN NOMPROV NUM430 NUM480"));
    QCOMPARE(declarante[u"NOMBRE"].toString(), u"SEGUROS ÑANDÚ"_qs);
    QCOMPARE(declarante[u"NUM430"].toInteger(-1), 1);
    const Salida salida = ostrel(Listar + partes("--json"));
    QVERIFY2(salida.texto.contains(u"\"IMPORTE\": 9999999999999.99,"), qPrintable(salida.texto));
    const auto declaracion = lista(Listar).first().toObject();
    QCOMPARE(declaracion.keys(),
             partes("CSDE EJERCICIO IMPORTE MODELO PERIODICIDAD PERIODO TIPOLOGIA"));
    QCOMPARE(declaracion[u"MODELO"].toString(), u"430"_qs);
    QCOMPARE(declaracion[u"PERIODO"].toInteger(-1), 1);
}

void TestOrden::idioma()
{
    QCOMPARE(ostrel(partes("idioma")).texto, u"Idioma del programa: C (Castellano)\n"_qs);
    QCOMPARE(ostrel(partes("idioma e")).texto, u"Programaren hizkuntza: E (Euskera)\n"_qs);
    QCOMPARE(ostrel(partes("idioma")).texto, u"Programaren hizkuntza: E (Euskera)\n"_qs);
    QCOMPARE(ostrel(partes("listar declarantes")).texto, u"Ez dago aitortzailerik.\n"_qs);
    QVERIFY(ostrel(partes("--help")).texto.startsWith(u"Erabilera:"));
    QVERIFY(ostrel(partes("idioma F")).error.startsWith(u"«F» ez da programaren hizkuntza bat"));
    QVERIFY(ostrel(opcionesAlta(u"dni"_qs, u"1"_qs)).error.startsWith(u"--dni aukera: NA-IFK"));
    hacer(opcionesAlta());
    QCOMPARE(ostrel(Declarar430 + partes("--ejercicio 2026 --periodo 2 --base 1")).texto,
             u"Aitorpena gorde da: 430 eredua, 2026 - OTSAILA, 0,08 euro\n"_qs);
    hacer(partes("idioma C"));
    QCOMPARE(ostrel(partes("idioma")).texto, u"Idioma del programa: C (Castellano)\n"_qs);
}

void TestOrden::malUso_data()
{
    QTest::addColumn<QString>("motivo");
    const auto fila = [](const char *orden, const char *motivo) {
        QTest::newRow(orden) << QString::fromUtf8(motivo);
    };
    fila("volar", "Orden desconocida: volar");
    fila("listar", "Orden desconocida: listar");
    fila("listar todo", "Orden desconocida: listar todo");
    fila("listar declarantes --color", "Opción desconocida: --color");
    fila("listar declarantes -x", "Opción desconocida: -x");
    fila("listar declarantes --dni 1", "Opción desconocida: --dni");
    fila("listar declarantes --json --json", "La opción --json se ha indicado más de una vez.");
    fila("listar declarantes --json=si", "Sobra el argumento «--json=si».");
    fila("listar declarantes 5", "Sobra el argumento «5».");
    fila("listar declaraciones", "Falta la opción --dni.");
    fila("listar declaraciones --dni 1 --dni 2", "La opción --dni se ha indicado más de una vez.");
    fila("declarar 430 --dni 1 --ejercicio 2026 --periodo 1", "Falta la opción --base.");
    fila("declarar 430 --dni 1 --ejercicio X --periodo 1 --base 1",
         "El valor «X» no es válido para la opción --ejercicio.");
    fila("declarar 430 --dni 1 --ejercicio 12026 --periodo 1 --base 1",
         "El valor «12026» no es válido para la opción --ejercicio.");
    fila("declarar 430 --dni 1 --ejercicio 2026 --periodo 13 --base 1",
         "El valor «13» no es válido para la opción --periodo.");
    fila("declarar 430 --dni 1 --ejercicio 2026 --periodo 0 --base 1",
         "El valor «0» no es válido para la opción --periodo.");
    fila("idioma C E", "Sobra el argumento «E».");
    fila("idioma castellano", "«castellano» no es un idioma del programa");
    fila("idioma --carpeta=", "Falta el valor de la opción --carpeta.");
}

void TestOrden::malUso()
{
    QFETCH(QString, motivo);
    const Salida salida = ostrel(partes(QTest::currentDataTag()));
    QVERIFY2(salida.error.startsWith(motivo), qPrintable(salida.error));
    QCOMPARE(salida.texto, QString());
    QCOMPARE(salida.codigo, 2);
}

void TestOrden::ayuda_data()
{
    QTest::addColumn<QStringList>("contiene");
    QTest::newRow("--help") << QStringList{u"declarante alta"_qs, u"declarar 430"_qs,
                                           u"declarar 480"_qs,    u"listar declarantes"_qs,
                                           u"idioma [C|E]"_qs,    u"--carpeta DIR"_qs};
    QTest::newRow("-h") << QStringList{u"declarante alta"_qs};
    QTest::newRow("listar -h") << QStringList{u"listar declarantes"_qs, u"listar declaraciones"_qs};
    QTest::newRow("declarar 480 --help") << QStringList{
        u"ostrel declarar 480"_qs, u"[--casilla NN=EUROS …]"_qs, u"--ejercicio AAAA "_qs};
    QTest::newRow("--version") << QStringList{u"Ostrel de Seguros "_qs};
}

void TestOrden::ayuda()
{
    QFETCH(QStringList, contiene);
    const Salida salida = ostrel(partes(QTest::currentDataTag()));
    QCOMPARE(salida.codigo, 0);
    QCOMPARE(salida.error, QString());
    for (const QString &texto : std::as_const(contiene))
        QVERIFY2(salida.texto.contains(texto), qPrintable(texto));
    // asking for help leaves no trace
    QVERIFY(!QFileInfo::exists(tablas()));
}

void TestOrden::carpeta()
{
    QProcess proceso;
    const QString ninguna = m_carpeta->filePath(u"no existe"_qs);
    proceso.start(QStringLiteral(OSTREL), {u"--carpeta"_qs, ninguna, u"idioma"_qs});
    QVERIFY(proceso.waitForFinished());
    QCOMPARE(proceso.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(proceso.readAllStandardError()),
             u"No existe la carpeta «%1».\n"_qs.arg(ninguna));
    QVERIFY(!QFileInfo::exists(ninguna));
    proceso.start(QStringLiteral(OSTREL), {u"idioma"_qs, u"--carpeta"_qs});
    QVERIFY(proceso.waitForFinished());
    QCOMPARE(proceso.exitCode(), 2);
    QVERIFY(proceso.readAllStandardError().startsWith("Falta el valor de la opci"));
}

void TestOrden::baseDanada_data()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QByteArray>("contenido");
    for (const QString &fichero : {u"OstrMod.mdb"_qs, u"OstrLec.mdb"_qs}) {
        QTest::addRow("%s text", qPrintable(fichero))
            << fichero << QByteArray("not a database at all\n").repeated(500);
        QTest::addRow("%s truncated", qPrintable(fichero)) << fichero << QByteArray();
    }
}

/// Refused by name and left as it is; a truncated file is the good one cut in the middle.
void TestOrden::baseDanada()
{
    QFETCH(QString, fichero);
    QFETCH(QByteArray, contenido);
    hacer(opcionesAlta());
    QFile base(tablas() + u'/' + fichero);
    QVERIFY(base.open(QIODevice::ReadWrite));
    if (contenido.isEmpty())
        contenido = base.readAll().first(base.size() / 2);
    QVERIFY(base.resize(0) && base.seek(0));
    QCOMPARE(base.write(contenido), contenido.size());
    base.close();

    for (const QStringList &orden :
         {partes("listar declarantes"),
          Declarar430 + partes("--ejercicio 2026 --periodo 1 --base 1"), opcionesAlta()}) {
        const Salida salida = ostrel(orden);
        QCOMPARE(salida.codigo, 1);
        QCOMPARE(salida.texto, QString());
        QVERIFY2(salida.error.contains(fichero), qPrintable(salida.error));
    }
    QVERIFY(base.open(QIODevice::ReadOnly));
    QCOMPARE(base.readAll(), contenido);
}

QTEST_GUILESS_MAIN(TestOrden)
#include "tst_orden.moc"
