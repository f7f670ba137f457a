#include "exchange/Exportacion.h"
#include "exchange/Importacion.h"
#include "exchange/cExportar.h"
#include "support/Entorno.h"
#include "support/LineasPrueba.h"

#include <QDir>
#include <QTest>

using Cuenta = Importacion::Cuenta;

/// The counters in the order of Cuenta.
static QList<qint64> cuentas(const Cuenta &c)
{
    return {c.lineas, c.importados, c.sustituidos, c.ignorados, c.incorrectos};
}

class TstIntercambioImportar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_entorno.emplace(); }

    /// What a file of which line 2 is `mala` leaves in the error file; lines 1 and 3 are stored.
    void lineaMala()
    {
        const auto caso = [this](const char *nombre, const QByteArray &mala,
                                 const QString &errores) {
            init();
            const auto cuenta = importar(lineas::linea(1) + "\r\n" + mala + "\n" + lineas::linea(3)
                                         + "past the end");
            QVERIFY2(cuentas(cuenta) == QList<qint64>({3, 2, 0, 0, 1}), nombre);
            QCOMPARE(lineas::leer(FicheroErrores::ruta()), errores.toLatin1() + lineas::formato());
            QCOMPARE(exportado(), lineas::fichero(1, 1) + lineas::fichero(3, 3));
            QCOMPARE(mensajeFinal(cuenta), u"Hay 1 declarante erroneo"_s);
        };
        const auto con = [](qsizetype columna, const QByteArray &texto) {
            return lineas::linea(2).replace(columna - 1, texto.size(), texto);
        };
        const auto corta = u"Linea 2: No se han importado todos los datos\r\n"_s;
        const auto codigo
            = u"Linea 2: El código %1 de la columna %2 no es un carácter válido.\r\n"_s;
        const auto letra = u"Linea 2: No se admite el carácter «%1» de la columna %2.\r\n"_s;
        caso("152 characters", lineas::linea(2).chopped(1), corta);
        caso("empty line", "", corta);
        caso("control character", con(60, "\t"), codigo.arg(u"09"_s).arg(60));
        caso("undefined byte", con(1, "\x81"), codigo.arg(u"81"_s).arg(1));
        caso("UTF-8", con(10, "Ñ"), letra.arg(u"Ã"_s).arg(10));
        caso("byte-order mark", "\uFEFF" + lineas::linea(2), letra.arg(u"»"_s).arg(2));
        caso("two findings", con(1, "99999999A").replace(95, 2, "99"),
             u"Linea 2: El campo DNI-CIF es erróneo o carece de dígito de control.\r\n"
             "Linea 2: La casilla Código de Provincia debe tener algún valor.\r\n"_s);
        caso("number", con(82, "1 2 3"),
             u"Linea 2: El número de la calle debe ser un número.\r\n"_s);
    }

    void mensajes()
    {
        const QByteArray mala = "1. lerroa: ez dira inportatu datu guztiak";
        const auto caso = [&](const QByteArray &contenido, const QString &textos) {
            unico::la<CEntrada>().IDI(u"C"_s);
            const QString castellano = mensajeFinal(importar(contenido));
            unico::la<CEntrada>().IDI(u"E"_s);
            QCOMPARE(castellano + u'|' + mensajeFinal(importar(contenido)), textos);
            const QByteArray primera = lineas::leer(FicheroErrores::ruta()).split('\r').first();
            QCOMPARE(primera, contenido.startsWith('a') ? mala : QByteArray());
        };
        caso(lineas::fichero(1, 2),
             u"Sus datos han sido importados correctamente|Zure datuak behar "
             "bezala inportatu dira"_s);
        caso("a\r\n",
             u"Todos los declarantes que desea importar son erróneos|Inportatu nahi "
             "dituzun zergadun guztiak okerrak dira"_s);
        caso("a\r\n" + lineas::linea(1), u"Hay 1 declarante erroneo|Aitortzaile bat okerra da"_s);
        caso("a\r\nb\r\n" + lineas::linea(1),
             u"Hay 2 declarantes erroneos|2 aitortzaile okerrak dira"_s);
    }

    /// Lines 1 to 4, of which 2 and 4 are stored already and 1 stands again at the end.
    void existentes()
    {
        using enum Existentes;
        // answers: s, n, S (yes to all), N; the names of 1 to 4 afterwards: old, new, last
        probarExistentes(Sustituir, "", {5, 2, 3, 0, 0}, "lnnn");
        probarExistentes(Conservar, "", {5, 2, 0, 3, 0}, "nono");
        probarExistentes(Detenerse, "snn", {5, 2, 1, 2, 0}, "nnno");
        probarExistentes(Detenerse, "nss", {5, 2, 2, 1, 0}, "lonn");
        probarExistentes(Detenerse, "nS", {5, 2, 2, 1, 0}, "lonn");
        probarExistentes(Detenerse, "sN", {5, 2, 1, 2, 0}, "nnno");
        probarExistentes(Examinar, "", {5, 2, 0, 3, 0}, " o o");
    }

    /// Stopped, all that was counted is stored; after a failure, what was counted before it.
    void interrumpida()
    {
        for (const bool falla : {false, true}) {
            const int guardadas = falla ? 5000 : 5500;
            m_entorno.emplace();
            lineas::escribir(ruta(), lineas::fichero(1, 6000));
            Importacion importacion(ruta(), Existentes::Conservar);
            std::optional<ModeloPerdido> perdido;
            int avisos = 0; // one every 500 lines
            importacion.seguir = [&](qint64 linea) {
                avisos += linea == 500 * (avisos + 1) ? 1 : 10'000;
                if (falla && linea == 5500)
                    perdido.emplace();
                return falla || linea < 5500;
            };
            if (falla)
                QVERIFY_EXCEPTION_THROWN(importacion.ejecutar(), std::exception);
            else
                importacion.ejecutar();
            perdido.reset();
            QCOMPARE(importacion.detenida(), !falla);
            QCOMPARE(avisos, falla ? 12 : 11);
            QCOMPARE(cuentas(importacion.cuenta()), (QList<qint64>{guardadas, guardadas, 0, 0, 0}));
            QCOMPARE(exportado(), lineas::fichero(1, guardadas));
        }
    }

    /// The error file never writes through to another file.
    void enlaceEnErrores()
    {
        const QByteArray antes = lineas::leer(rutas().lectura);
        QVERIFY(QFile::link(rutas().lectura, FicheroErrores::ruta()));
        importar("a\r\n");
        QCOMPARE(lineas::leer(rutas().lectura), antes);
        QVERIFY(!QFileInfo(FicheroErrores::ruta()).isSymLink());
        QFile::remove(FicheroErrores::ruta());
        QVERIFY(QDir().mkdir(FicheroErrores::ruta()));
        QVERIFY_EXCEPTION_THROWN(importar(lineas::linea(1)), std::exception);
        QCOMPARE(exportado(), QByteArray());
    }

    void exportarFallos()
    {
        importar(lineas::linea(1) + '\n' + lineas::linea(2));
        cExportar e;
        e.CargarDeclarantes();
        e.MoverElementos(cExportar::Contri, {1, 2});
        // by positions, as a person counts them; each goes back to its place
        e.COPIARELEMENTOENTRETABLAS(cExportar::ContriExp, 2);
        e.TablaContriExpBORRAR(2);
        e.TablaContriExpBORRAR(9);
        e.COPIARELEMENTOENTRETABLAS(cExportar::ContriExp, 1);
        QCOMPARE(e.TablaContriELEMENTO(1).dni + e.TablaContriELEMENTO(2).dni,
                 lineas::dni(1) + lineas::dni(2));
        e.COPIARELEMENTOENTRETABLAS(cExportar::Contri, 2);
        QCOMPARE(e.TablaContriExpELEMENTO(2).dni, lineas::dni(2));
        QVERIFY(e.TablaContriExpPERTENECE(e.TablaContriELEMENTO(2).csco));
        e.TablaContriCLEAR();
        QCOMPARE(e.TablaContriCOUNT() + e.TablaContriExpCOUNT(), 2);
        auto raro = e.TablaContriExpELEMENTO(2);
        raro.csco = 99;
        raro.registro[RegDeclarante::NOMBRE] = u"Ω"_s;
        e.TablaContriExpINSERTAR(2, raro);
        e.FICHEROAEXPORTAR(ruta());
        const auto hecho = e.EscribirFichero([](qint64) { return true; });
        QCOMPARE(hecho.motivo,
                 u"Línea 2: el carácter «Ω» no se puede escribir en el fichero "
                 "(Windows-1252)."_s);
        QCOMPARE(hecho.lineas, 1);
        QCOMPARE(lineas::leer(ruta()), lineas::fichero(1, 1));
        e.FICHEROAEXPORTAR(m_entorno->ruta(u"no/hay"_s));
        QCOMPARE(e.EscribirFichero([](qint64) { return true; }).motivo,
                 msj(Msj::FalloNoExiste, QDir::toNativeSeparators(m_entorno->ruta(u"no"_s))));
    }

private:
    QString ruta() const { return m_entorno->ruta(u"Contri.txt"_s); }

    void probarExistentes(Existentes existentes, const QByteArray &respuestas,
                          const QList<qint64> &esperadas, const QByteArray &nombres)
    {
        init();
        importar(lineas::linea(2, "o") + '\n' + lineas::linea(4, "o"));
        QByteArray contenido;
        for (int numero = 1; numero <= 4; ++numero)
            contenido += lineas::linea(numero, "n") + '\n';
        lineas::escribir(ruta(), contenido + lineas::linea(1, "l"));
        Importacion importacion(ruta(), existentes);
        QStringList preguntados;
        importacion.preguntar = [&](const QString &dni) {
            preguntados += dni;
            using enum Importacion::Respuesta;
            const char respuesta = respuestas.at(preguntados.size() - 1);
            return QMap<char, Importacion::Respuesta>{
                {'s', Si}, {'n', No}, {'S', SiATodos}, {'N', NoATodos}}[respuesta];
        };
        importacion.ejecutar();
        QCOMPARE(cuentas(importacion.cuenta()), esperadas);
        const QStringList repetidos{lineas::dni(2), lineas::dni(4), lineas::dni(1)};
        QCOMPARE(preguntados, repetidos.first(respuestas.size()));
        QByteArray todas;
        for (int numero = 1; numero <= 4; ++numero)
            if (nombres.at(numero - 1) != ' ')
                todas += lineas::linea(numero, nombres.mid(numero - 1, 1).toUpper()) + "\r\n";
        QCOMPARE(exportado(), todas);
    }

    Cuenta importar(const QByteArray &contenido) const
    {
        lineas::escribir(ruta(), contenido);
        Importacion importacion(ruta(), Existentes::Conservar);
        importacion.ejecutar();
        return importacion.cuenta();
    }

    /// Every stored declarant as its line, by identifier.
    QByteArray exportado() const
    {
        const QString destino = m_entorno->ruta(u"todo.txt"_s);
        exportar(
            destino,
            [](const Visitante &visitar) {
                servicioDeclarante()->RecorrerExportar(cExportar::PorDni, visitar);
            },
            [](qint64) { return true; });
        return lineas::leer(destino);
    }

    std::optional<Entorno> m_entorno;
};

QTEST_GUILESS_MAIN(TstIntercambioImportar)
#include "tst_intercambio_importar.moc"
