#include "core/FiltroTeclas.h"
#include "core/Importe.h"
#include "core/Redondeo.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/cFecha.h"

#include <QDir>
#include <QTest>

#include <cmath>

/// The 128-bit type is an extension that the pedantic flags would refuse by its plain name.
__extension__ using Entero = __int128;

class TestCore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leeImportes_data();
    void leeImportes();
    void rechazaImportes_data();
    void rechazaImportes();
    void escribeImportes_data();
    void escribeImportes();
    void importeIdaYVuelta();
    void redondeo_data();
    void redondeo();
    void redondeoTipos();
    void cuotaDeTodosLosTipos();
    void fechas_data();
    void fechas();
    void fechasVacias();
    void carpetas_data();
    void carpetas();
    void teclas();
};

void TestCore::leeImportes_data()
{
    QTest::addColumn<double>("centimos");
    const auto fila = [](const char *texto, double centimos) { QTest::newRow(texto) << centimos; };
    fila("", 0);
    fila("  ", 0);
    fila("0", 0);
    fila("-0", 0);
    fila("1234,56", 123456);
    fila("1.234,56", 123456);
    fila("1234.56", 123456);
    fila("1234,5", 123450);
    fila("12.5", 1250);
    fila("12.34", 1234);
    fila("1.234", 123400);
    fila("1.234.567", 123456700);
    fila("1.234.567,8", 123456780);
    fila("1234", 123400);
    fila(",5", 50);
    fila("5,", 500);
    fila("0,01", 1);
    fila("007", 700);
    fila("-1.234,56", -123456);
    fila("-0,01", -1);
    fila(" 12,00 ", 1200);
    fila("9999999999999,99", 999999999999999);
    fila("9.999.999.999.999,99", 999999999999999);
    fila("-9999999999999,99", -999999999999999);
    fila("0009999999999999", 999999999999900);
}

void TestCore::leeImportes()
{
    QFETCH(double, centimos);
    const ImporteLeido leido = leerImporte(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(leido.valido());
    QVERIFY(leido.centimos == centimos); // QCOMPARE would let a cent pass in large ones
    QVERIFY(!std::signbit(leido.centimos) || centimos < 0);
}

void TestCore::rechazaImportes_data()
{
    QTest::addColumn<int>("fallo");
    for (const char *texto : {"abc", "12a", "1,2,3", "1.23.456", "12.34.56", "1..000", "--5", "-",
                              "+5", ",", ".", "1e5", "1 234", "1,5-", "1.2345.678", "1234.567,00"})
        QTest::newRow(texto) << int(ImporteLeido::Ilegible);
    for (const char *texto : {"10000000000000", "10.000.000.000.000,00", "-99999999999999,00"})
        QTest::newRow(texto) << int(ImporteLeido::DemasiadasCifras);
    for (const char *texto : {"1,234", "0.123", "1234.567", "0,000"})
        QTest::newRow(texto) << int(ImporteLeido::DemasiadosDecimales);
}

void TestCore::rechazaImportes()
{
    QFETCH(int, fallo);
    const QString texto = QString::fromUtf8(QTest::currentDataTag());
    const ImporteLeido leido = leerImporte(texto);
    QCOMPARE(int(leido.fallo), fallo);
    QCOMPARE(leido.centimos, 0.0);
    QVERIFY(!leido.motivo(texto).isEmpty());
}

void TestCore::escribeImportes_data()
{
    QTest::addColumn<double>("centimos");
    QTest::newRow("0,00") << 0.0;
    QTest::newRow("0,01") << 1.0;
    QTest::newRow("-0,05") << -5.0;
    QTest::newRow("123,00") << 12300.0;
    QTest::newRow("1.234,56") << 123456.0;
    QTest::newRow("-1.234.567,80") << -123456780.0;
    QTest::newRow("9.999.999.999.999,99") << 999999999999999.0;
}

void TestCore::escribeImportes()
{
    QFETCH(double, centimos);
    const QString texto = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(textoImporte(centimos), texto);
    QCOMPARE(textoCasilla(centimos), centimos == 0 ? QString() : texto);
}

/// Every power of ten and its neighbours, both signs: never a cent, never a factor of 100.
void TestCore::importeIdaYVuelta()
{
    for (qint64 potencia = 1; potencia <= 100'000'000'000'000; potencia *= 10)
        for (const qint64 n : {potencia - 1, potencia, potencia + 1, potencia * 9 + 87}) {
            const auto centimos = static_cast<double>(n);
            QVERIFY(leerImporte(textoImporte(centimos)).centimos == centimos);
            QVERIFY(leerImporte(textoImporte(-centimos)).centimos == -centimos);
            QVERIFY(leerImporte(textoCasilla(centimos)).centimos == centimos);
        }
}

void TestCore::redondeo_data()
{
    QTest::addColumn<double>("valor");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<double>("esperado");
    QTest::newRow("below the half") << 7407.36 << 0 << 7407.0;
    QTest::newRow("half up") << 7407.5 << 0 << 7408.0;
    QTest::newRow("half away from zero") << -7407.5 << 0 << -7408.0;
    QTest::newRow("negative below") << -740.4 << 0 << -740.0;
    QTest::newRow("two decimals") << 1.125 << 2 << 1.13;
    QTest::newRow("six decimals") << 1.0000005 << 6 << 1.000001;
    QTest::newRow("seven are too many") << 1.23456789 << 7 << 1.23456789;
    QTest::newRow("largest") << 999999999999999.0 << 0 << 999999999999999.0;
    QTest::newRow("no negative zero") << -0.3 << 0 << 0.0;
}

void TestCore::redondeo()
{
    QFETCH(double, valor);
    QFETCH(int, decimales);
    QFETCH(double, esperado);
    const double obtenido = redondear(valor, decimales);
    QVERIFY(obtenido == esperado);
    QCOMPARE(std::signbit(obtenido), std::signbit(esperado));
}

void TestCore::redondeoTipos()
{
    QCOMPARE(redondearMitad(2.5), 3.0);
    QCOMPARE(redondearMitad(2.49), 2.0);
    QCOMPARE(redondearTipo(6.0F), 6.0F);
    // 6.005 widens to a little above the half, 1.005 to a little below
    QCOMPARE(redondearTipo(6.005F), 6.01F);
    QCOMPARE(redondearTipo(1.005F), 1.00F);
    QCOMPARE(textoTipo(7.15F), u"7,15"_qs);
}

/// Half away from zero of rate (in hundredths of a percent) × base / 10000, in integers.
static double cuotaEntera(int centesimas, qint64 base)
{
    const Entero producto = Entero(base) * centesimas;
    const Entero magnitud = producto < 0 ? -producto : producto;
    const auto redondeada = static_cast<qint64>((magnitud + 5000) / 10000);
    return static_cast<double>(producto < 0 ? -redondeada : redondeada);
}

void TestCore::cuotaDeTodosLosTipos()
{
    QList<qint64> bases{0,
                        1,
                        5,
                        49,
                        50,
                        51,
                        12345,
                        123456,
                        10'000'000,
                        1'000'000'000,
                        999'999'999'999'999,
                        999'999'999'999'998,
                        500'000'000'000'000};
    quint64 semilla = 20'260'101;
    for (int i = 0; i < 60; ++i) {
        semilla = semilla * 6364136223846793005ULL + 1442695040888963407ULL;
        bases += static_cast<qint64>((semilla >> 13) % 999'999'999'999'999ULL) >> (i % 45);
    }
    int fallos = 0;
    for (int centesimas = 0; centesimas <= 9999; ++centesimas) {
        const float tipo = static_cast<float>(centesimas) / 100;
        for (const qint64 base : std::as_const(bases))
            for (const qint64 n : {base, -base})
                fallos += calcularCuota(tipo, static_cast<double>(n)) != cuotaEntera(centesimas, n);
    }
    QCOMPARE(fallos, 0);
    QCOMPARE(calcularCuota(7.15F, 1'000'000'000.0), 71'500'000.0);
    QVERIFY(cabeEnCasilla(999'999'999'999'999.0) && cabeEnCasilla(-999'999'999'999'999.0));
    QVERIFY(!cabeEnCasilla(1e15) && !cabeEnCasilla(-1e15));
}

void TestCore::fechas_data()
{
    QTest::addColumn<QString>("idioma");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<qint32>("numero");
    const auto fila = [](const char *idioma, const char *texto, qint32 numero) {
        QTest::addRow("%s %s", idioma, texto)
            << QString::fromUtf8(idioma) << QString::fromUtf8(texto) << numero;
    };
    fila("C", "31/12/2026", 20261231);
    fila("C", "29/02/2024", 20240229);
    fila("C", "29/02/2000", 20000229);
    fila("E", "2024/02/29", 20240229);
    fila("", "2026/01/05", 20260105);
    fila("C", "29/02/2023", 0);
    fila("C", "29/02/1900", 0);
    fila("E", "2023/02/29", 0);
    fila("C", "2026/12/31", 0);
    fila("E", "31/12/2026", 0);
    for (const char *mala : {"", "//", "__/__/____", "01/01/", "01//2026", "/01/2026", "01/01/26",
                             "31/04/2026", "00/01/2026", "01/13/2026", "01/01/2026x"})
        fila("C", mala, 0);
    for (const char *mala : {"//", "____/__/__", "2026//", "2026/01/", "2026/01/32"})
        fila("E", mala, 0);
}

void TestCore::fechas()
{
    QFETCH(QString, idioma);
    QFETCH(QString, texto);
    QFETCH(qint32, numero);
    cFecha fecha;
    fecha.fecidioma(idioma);
    QCOMPARE(fecha.StringToLong(texto), numero);
    QCOMPARE(fecha.EsFecha(texto), numero != 0);
    if (numero != 0)
        QCOMPARE(fecha.LongToString(numero), texto);
}

void TestCore::fechasVacias()
{
    cFecha fecha;
    QCOMPARE(fecha.FecVacia(), u"__/__/____"_qs);
    QCOMPARE(fecha.LongToString(9010203), u"03/02/0901"_qs);
    fecha.fecidioma(u"E"_qs);
    QCOMPARE(fecha.FecVacia(), u"____/__/__"_qs);
    QCOMPARE(fecha.LongToString(9010203), u"0901/02/03"_qs);
    QCOMPARE(fecha.miYear(), QDate::currentDate().year());
}

void TestCore::carpetas_data()
{
    QTest::addColumn<QString>("programa");
    QTest::addColumn<QString>("tablas");
    const QString raiz = QDir::rootPath();
    const auto fila = [&](const char *programa, const char *tablas) {
        QTest::newRow(programa) << raiz + QString::fromUtf8(programa)
                                << raiz + QString::fromUtf8(tablas);
    };
    fila("datos/ostrel", "datos/ostrel/Tablas/");
    fila("datos/ostrel/", "datos/ostrel/Tablas/");
    fila("datos/Cliente", "datos/Tablas/");
    fila("datos/CLIENTE/x", "datos/Tablas/");
    fila("datos/clientes viejos", "datos/Tablas/");
    fila("datos/micliente", "datos/m/Tablas/");
    fila("cliente", "Tablas/");
}

void TestCore::carpetas()
{
    QFETCH(QString, programa);
    QFETCH(QString, tablas);
    const Rutas rutas = Rutas::desde(programa);
    QCOMPARE(rutas.programa, QDir::cleanPath(programa));
    QCOMPARE(rutas.tablas, tablas);
    QCOMPARE(rutas.modelo, tablas + u"OstrMod.mdb"_qs);
    QCOMPARE(rutas.lectura, tablas + u"OstrLec.mdb"_qs);
}

void TestCore::teclas()
{
    QCOMPARE(filtrarTexto(QChar(u'ñ')), QChar(u'Ñ'));
    QCOMPARE(filtrarTexto(QChar(u'ç')), QChar(u'Ç'));
    QCOMPARE(filtrarTexto(QChar(u'@')), QChar());
    QCOMPARE(filtrarTexto(QChar(u'á')), QChar());
    QCOMPARE(filtrarTexto(TeclaRetroceso), TeclaRetroceso);
    QCOMPARE(filtrarCifra(QChar(u'7')), QChar(u'7'));
    QCOMPARE(filtrarCifra(QChar(u'a')), QChar());
    QCOMPARE(filtrarCifra(QChar(u'٣')), QChar());
    QCOMPARE(filtrarCifra(TeclaRetroceso), TeclaRetroceso);
    QCOMPARE(filtrarTexto(u"c/ mayor @ 3º\b"_qs), u"C/ MAYOR  3º"_qs);
    const QString todos = u"0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ"_qs;
    int admitidos = 0;
    for (char16_t c = 32; c < 0x3000; ++c) {
        const QChar tomada = filtrarTexto(QChar(c));
        admitidos += tomada == QChar(c);
        QVERIFY2(tomada.isNull() || todos.contains(tomada), qPrintable(QChar(c)));
    }
    // "ç" is turned into its capital, so that it never comes out as itself
    QCOMPARE(admitidos, todos.size() - 1);
    QVERIFY(admitidoEnFichero(u'Á') && admitidoEnFichero(u'ç') && !admitidoEnFichero(u'a'));
}

QTEST_APPLESS_MAIN(TestCore)
#include "tst_core.moc"
