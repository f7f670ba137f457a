#include "core/Caracteres.h"
#include "core/Importe.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/cFecha.h"

#include <QDir>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <filesystem>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

/// The 128-bit type is an extension that the pedantic flags would refuse by its plain name.
__extension__ using Entero = __int128;

/// Half away from zero of rate (in hundredths of a percent) × base / 10000, in integers.
static double cuotaEntera(int centesimas, qint64 base)
{
    const Entero producto = Entero(base) * centesimas;
    return static_cast<double>(
        static_cast<qint64>((producto + (producto < 0 ? -5000 : 5000)) / 10000));
}

class TstCore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leeImportes()
    {
        // what is typed = cents
        const QString casos
            = u"=0|-0=0|1234,56=123456|1.234,56=123456|1234.56=123456|12.5=1250|12.34=1234|"
              "1.234=123400|1.234.567,8=123456780|1234=123400|,5=50|5,=500|0,01=1|007=700|"
              "-1.234,56=-123456|-0,01=-1| 12,00 =1200|9999999999999,99=999999999999999|"
              "-9.999.999.999.999,99=-999999999999999|0009999999999999=999999999999900"_s;
        for (const QString &caso : casos.split(u'|')) {
            const double centimos = caso.section(u'=', 1).toDouble();
            const ImporteLeido leido = leerImporte(caso.section(u'=', 0, 0));
            // QCOMPARE would let a cent pass in large ones
            QVERIFY2(leido.valido() && leido.centimos == centimos, qPrintable(caso));
            QVERIFY2(!std::signbit(leido.centimos) || centimos < 0, qPrintable(caso));
        }
    }

    void rechazaImportes()
    {
        for (const auto &[fallo, textos] :
             {std::pair{ImporteLeido::Ilegible,
                        u"abc|12a|1,2,3|1.23.456|12.34.56|1..000|--5|-|+5|,|.|1e5|1 234|"
                        "1,5-|1.2345.678|1234.567,00"_s},
              {ImporteLeido::DemasiadasCifras,
               u"10000000000000|10.000.000.000.000,00|-99999999999999,00"_s},
              {ImporteLeido::DemasiadosDecimales, u"1,234|0.123|1234.567|0,000"_s}})
            for (const QString &texto : textos.split(u'|')) {
                const ImporteLeido leido = leerImporte(texto);
                QVERIFY2(leido.fallo == fallo && leido.centimos == 0.0, qPrintable(texto));
                QVERIFY2(!leido.motivo(texto).isEmpty(), qPrintable(texto));
            }
    }

    void escribeImportes()
    {
        QCOMPARE(QStringList({textoCasilla(0), textoImporte(0), textoImporte(1), textoImporte(-5),
                              textoCasilla(12300), textoCasilla(-123456780),
                              textoImporte(999999999999999), textoTipo(7.15F)})
                     .join(u'|'),
                 u"|0,00|0,01|-0,05|123,00|-1.234.567,80|9.999.999.999.999,99|7,15"_s);
    }

    void redondeo()
    {
        // value, decimals, rounded
        for (const QString &caso :
             u"7407.36 0 7407|7407.5 0 7408|-7407.5 0 -7408|-740.4 0 -740|1.125 2 1.13|"
             "1.0000005 6 1.000001|1.23456789 7 1.23456789|999999999999999 0 999999999999999|"
             "-0.3 0 0"_s.split(u'|')) {
            const QStringList n = caso.split(u' ');
            const double valor = redondear(n[0].toDouble(), n[1].toInt());
            QVERIFY2(valor == n[2].toDouble(), qPrintable(caso));
            QCOMPARE(std::signbit(valor), n[2].startsWith(u'-'));
        }
        // 6.005 widens to a little above the half, 1.005 to a little below
        QCOMPARE(redondearTipo(6.005F), 6.01F);
        QCOMPARE(redondearTipo(1.005F), 1.00F);
    }

    void cuotaDeTodosLosTipos()
    {
        QList<qint64> bases{0, 1, 5, 49, 50, 51, 12345, 1'000'000'000};
        bases += {500'000'000'000'000, 999'999'999'999'998, 999'999'999'999'999};
        QRandomGenerator azar(20'260'101);
        for (int i = 0; i < 60; ++i)
            bases += static_cast<qint64>(azar.generate64() % 999'999'999'999'999ULL) >> (i % 45);
        int fallos = 0;
        for (int centesimas = 0; centesimas <= 9999; ++centesimas) {
            const float tipo = static_cast<float>(centesimas) / 100;
            for (const qint64 base : std::as_const(bases))
                for (const qint64 n : {base, -base})
                    fallos += calcularCuota(tipo, static_cast<double>(n))
                        != cuotaEntera(centesimas, n);
        }
        QCOMPARE(fallos, 0);
        QVERIFY(cabeEnCasilla(999'999'999'999'999.0) && cabeEnCasilla(-999'999'999'999'999.0));
        QVERIFY(!cabeEnCasilla(1e15) && !cabeEnCasilla(-1e15));
    }

    void fechas()
    {
        const auto comprobar = [](const QString &idioma, const QString &escritas, qint32 numero) {
            cFecha fecha;
            fecha.fecidioma(idioma);
            for (const QString &texto : escritas.split(u'|')) {
                QVERIFY2(fecha.StringToLong(texto) == numero, qPrintable(texto));
                QVERIFY2(fecha.EsFecha(texto) == (numero != 0), qPrintable(texto));
                QVERIFY2(numero == 0 || fecha.LongToString(numero) == texto, qPrintable(texto));
            }
        };
        comprobar(u"C"_s, u"31/12/2026"_s, 20261231);
        comprobar(u"C"_s, u"29/02/2024"_s, 20240229);
        comprobar(u"C"_s, u"29/02/2000"_s, 20000229);
        comprobar(u"E"_s, u"2024/02/29"_s, 20240229);
        comprobar({}, u"2026/01/05"_s, 20260105);
        comprobar(u"C"_s,
                  u"|//|__/__/____|01//2026|/01/2026|01/01/26|29/02/2023|29/02/1900|31/04/2026|"
                  "00/01/2026|01/13/2026|01/01/2026x|01/01/2026\n|2026/12/31"_s,
                  0);
        comprobar(u"E"_s, u"//|____/__/__|2026//|2026/01/|2026/01/32|2023/02/29|31/12/2026"_s, 0);
    }

    void fechasVacias()
    {
        cFecha fecha;
        QCOMPARE(fecha.FecVacia() + fecha.LongToString(9010203), u"__/__/____03/02/0901"_s);
        fecha.fecidioma(u"E"_s);
        QCOMPARE(fecha.FecVacia() + fecha.LongToString(9010203), u"____/__/__0901/02/03"_s);
        QCOMPARE(fecha.miYear(), QDate::currentDate().year());
    }

    /// The tables stand beside a folder whose path has "cliente", and inside any other.
    void carpetas()
    {
        const QString raiz = QDir::rootPath();
        for (const QString &caso :
             u"datos/ostrel=datos/ostrel/|datos/ostrel/=datos/ostrel/|datos/CLIENTE/x=datos/|"
             "datos/clientes viejos=datos/|datos/micliente=datos/m/|cliente="_s.split(u'|')) {
            const QString programa = raiz + caso.section(u'=', 0, 0);
            const QString tablas = raiz + caso.section(u'=', 1) + u"Tablas/"_s;
            const Rutas rutas = Rutas::desde(programa);
            QCOMPARE(QStringList({rutas.programa, rutas.tablas, rutas.datos, rutas.lectura}),
                     QStringList({QDir::cleanPath(programa), tablas, tablas + u"OstrMod.mdb"_s,
                                  tablas + u"OstrLec.mdb"_s}));
        }
    }

    /// One of our own files by any name, or what is no regular file, is refused; the rest is not.
    void rutasPropias()
    {
        namespace fs = std::filesystem;
        const QTemporaryDir raiz;
        const auto anterior = rutas();
        const auto restaurar = qScopeGuard([&] { fijarRutas(anterior); });
        fijarRutas(Rutas::desde(raiz.filePath(u"p"_s)));
        const QDir casa(raiz.path());
        QVERIFY(casa.mkpath(u"p/Tablas"_s) && casa.mkpath(u"p/backups"_s)
                && casa.mkpath(u"otra"_s));
        for (const QString &nombre :
             u"p/Tablas/OstrMod.mdb p/Tablas/OstrMod.mdb.v1 p/Tablas/Errores.txt "
             "p/backups/OstrMod_bak.2.mdb otra/OstrMod.mdb"_s.split(u' '))
            QVERIFY(QFile(casa.filePath(nombre)).open(QIODevice::WriteOnly));
        const auto disco = [&](const QString &nombre) {
            return fs::path(casa.filePath(nombre).toStdU16String());
        };
        fs::create_symlink(disco(u"p/Tablas/OstrMod.mdb"_s), disco(u"otra/enlace.pdf"_s));
        fs::create_hard_link(disco(u"p/Tablas/OstrMod.mdb"_s), disco(u"otra/duro.pdf"_s));
        fs::create_symlink(disco(u"p/Tablas/OstrMod.mdb-journal"_s), disco(u"otra/futuro.pdf"_s));
        fs::create_directory_symlink(disco(u"p/Tablas"_s), disco(u"otra/tablas"_s));
        fs::create_symlink(disco(u"otra/vuelta"_s), disco(u"otra/vuelta"_s));

        const auto motivo = [&](const QString &ruta) {
            return motivoRutaRechazada(casa.filePath(ruta)).section(u'»', 1);
        };
        const QString propia = u" es un fichero del propio programa. Elija otro."_s;
        const QString otraCosa = u" es una carpeta o un dispositivo, no un fichero."_s;
        for (const QString &ruta :
             u"p/Tablas/OstrMod.mdb p/Tablas/OstrMod.mdb-journal p/Tablas/ostrmod.MDB "
             "p/Tablas/OstrMod.mdb.v1 p/Tablas/OstrLec.mdb p/backups/OstrMod_bak.2.mdb "
             "p/backups/OstrMod_bak.mdb otra/../p/./Tablas//OstrMod.mdb otra/enlace.pdf "
             "otra/duro.pdf otra/futuro.pdf otra/tablas/OstrMod.mdb otra/tablas/OstrLec.mdb"_s
                 .split(u' '))
            QVERIFY2(motivo(ruta) == propia, qPrintable(ruta));
        QCOMPARE(motivoRutaRechazada(QCoreApplication::applicationFilePath()).section(u'»', 1),
                 propia);
        QCOMPARE(motivo(u"otra"_s), otraCosa);
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(disco(u"otra/tubo"_s).c_str(), 0600), 0);
        QCOMPARE(motivo(u"otra/tubo"_s), otraCosa);
#endif
        for (const QString &ruta :
             u"otra/OstrMod.mdb|p/Tablas/Errores.txt|p/Tablas/430.pdf|otra/nuevo.pdf|otra/vuelta|"
             "no hay/nuevo.pdf"_s.split(u'|'))
            QVERIFY2(motivo(ruta).isEmpty(), qPrintable(ruta));
        const QDir antes = QDir::current();
        QVERIFY(QDir::setCurrent(casa.filePath(u"p/Tablas"_s)));
        const QString relativa = motivoRutaRechazada(u"OstrMod.mdb"_s);
        QVERIFY(QDir::setCurrent(antes.path()) && !relativa.isEmpty());
    }

    void teclas()
    {
        QCOMPARE(filtrarTexto(u'ñ'), QChar(u'Ñ'));
        QCOMPARE(filtrarTexto(u'ç'), QChar(u'Ç'));
        QCOMPARE(filtrarTexto(TeclaRetroceso), TeclaRetroceso);
        QCOMPARE(filtrarCifra(u'7'), QChar(u'7'));
        QCOMPARE(filtrarCifra(u'٣'), QChar());
        const QString todos
            = u"0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ"_s;
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
};

QTEST_GUILESS_MAIN(TstCore)
#include "tst_core.moc"
