#include "core/Importe.h"
#include "core/cFecha.h"
#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrOstr.h"
#include "declarants/cDecLista.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "support/Entorno.h"

#include <QTest>

#include <SQLiteCpp/Database.h>

/// The header as "exercise|period|periodicity|type|model".
static QString cabeceraDe(const cDecResumen &r)
{
    return unidos({r.EJERCICIO(), r.PERIODO(), r.PERIODICIDAD(), r.TIPOLOGIA(), r.MODELO()});
}

class TstRegistros : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_entorno.emplace(); }
    void cleanup() { m_entorno.reset(); }

    void sesionNueva()
    {
        m_entorno.emplace(QString());
        QVERIFY(m_entorno->inicio().fallos.isEmpty() && m_entorno->inicio().primeraVez());
        const auto &entrada = unico::la<CEntrada>();
        QCOMPARE(unidos({entrada.EJERMIN(), entrada.PERMIN(), entrada.EJERMAX(), entrada.PERMAX(),
                         entrada.NUMDECLA(), desplazamientoIdioma()}),
                 u"2002|1|2030|12|0|0"_s);

        Entorno::altaDeclarante();
        unico::la<CEntrada>().InicializarContadores();
        QCOMPARE(entrada.NUMDECLA(), 1);
    }

    void idiomaGuardaAntesDeCambiar()
    {
        auto &entrada = unico::la<CEntrada>();
        const auto estado = [&entrada] {
            return unidos({entrada.IDI(), desplazamientoIdioma(), unico::la<cFecha>().fecidioma()});
        };
        {
            const ModeloPerdido perdido;
            QVERIFY_EXCEPTION_THROWN(entrada.IDI(u"E"_s), ErrorDatos);
            QCOMPARE(estado(), u"C|0|C"_s);
        }
        entrada.IDI(u"E"_s);
        QCOMPARE(estado(), u"E|10000|E"_s);
        CEntrada otra;
        otra.LeerIdioma();
        QCOMPARE(otra.IDI(), u"E"_s);
    }

    void declaranteNuevo()
    {
        auto &d = unico::la<cDecDatos>();
        for (int vez = 0; vez < 2; ++vez) {
            d.MODO(u"A"_s);
            QCOMPARE(unidos(d.RegistroCompleto() + Registro{d.NOMPROV()}),
                     u"0|||CL||0|||||20|||||0|0|VARLENDA"_s);
            d.DNI(u"12345678Z"_s);
            d.CSCO(7);
        }
    }

    /// What cannot be read leaves the record as it was.
    void cargaQueFalla()
    {
        const qint32 csco = Entorno::altaDeclarante();
        cDecDatos d;
        d.MODO(u"A"_s);
        d.NOMBRE(u"ANTES"_s);
        Rutas sinLectura = rutas();
        sinLectura.lectura = sinLectura.tablas + u"ninguna/OstrLec.mdb"_s;
        const Rutas buenas = rutas();
        fijarRutas(sinLectura);
        QVERIFY_EXCEPTION_THROWN(d.CargarDeclarante(csco), ErrorDatos);
        fijarRutas(buenas);
        QCOMPARE(d.NOMBRE() + d.DNI(), u"ANTES"_s);
    }

    /// Exercise × 100 + month, month 13 for the 480: what is stored, and then what is proposed.
    void propuesta()
    {
        QStringList casos{u""_s};
        for (int mes = 1; mes < 13; ++mes)
            casos += u"%1 %2"_s.arg(202600 + mes).arg(202601 + mes);
        // the last return decides, whatever the order of entry; 2030 is the last year
        casos += u"202612 202613 202701;202613 202701;202605 202512 202603 202606;"
                 "203011 203012;203012 203013;203013 0"_s.split(u';');
        const auto modelo = [](int cual) { return cual % 100 == 13 ? u"480"_s : u"430"_s; };
        const auto mes = [](int cual) { return quint8(std::min(cual % 100, 12)); };
        for (const QString &caso : casos) {
            m_entorno.emplace();
            const qint32 csco = Entorno::altaDeclarante();
            QStringList guardadas = caso.split(u' ', Qt::SkipEmptyParts);
            const int propone = guardadas.isEmpty() ? 0 : guardadas.takeLast().toInt();
            for (const QString &guardada : guardadas) {
                const int cual = guardada.toInt();
                Entorno::altaDeclaracion(csco, qint16(cual / 100), mes(cual), modelo(cual));
            }
            auto &resumen = unico::la<cDecResumen>();
            resumen.TomarDeclarante(csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
            resumen.MODO(u"N"_s);
            const int clase = propone % 100 == 13 ? 2 : 1;
            const QString nada = u"0|0|0|0|"_s;
            QCOMPARE(cabeceraDe(resumen),
                     propone == 0
                         ? nada
                         : unidos({propone / 100, mes(propone), clase, clase, modelo(propone)}));
            resumen.MODO(u"L"_s);
            QCOMPARE(cabeceraDe(resumen), nada);
            QCOMPARE(resumen.CargarDeclaraciones().size(), guardadas.size());
            QCOMPARE(resumen.NUMDECLASEL(), int(guardadas.size()));
        }
    }

    /// Every computed box refuses the change by which it would no longer fit, either sign.
    void noCabe()
    {
        using Mensual = cDatos430;
        for (const auto &[llenar, pasar] :
             {std::pair<void (*)(Mensual &), void (*)(Mensual &, double)>{
                  [](Mensual &d) { d.BASELIQ(ImporteMaximo); },
                  [](Mensual &d, double c) { d.BASEREC(c); }},
              {[](Mensual &d) { d.CUOTAREC(ImporteMaximo); },
               [](Mensual &d, double c) { d.BASELIQ(c * 20); }}}) {
            cDatos430 d;
            d.TIPOLIQ(5);
            llenar(d);
            const Registro antes = d.RegistroGuardar();
            QVERIFY(!cambiarSiCabe(d, [&](Mensual &r) { pasar(r, 1); }));
            QCOMPARE(d.RegistroGuardar(), antes);
            QVERIFY(cambiarSiCabe(d, [&](Mensual &r) { pasar(r, -1); }));
            QVERIFY(d.RegistroGuardar() != antes);
        }
        using enum Casilla480;
        for (const auto &[llena, otra] : {std::pair{C01_VIDA, C67_DEC}, {C02_VIDA, C68_DEC}})
            for (const int signo : {1, -1}) {
                cDatos480 d;
                d.casilla(llena, signo * ImporteMaximo);
                QVERIFY(!cambiarSiCabe(d, [&](cDatos480 &r) { r.casilla(otra, signo); }));
                QCOMPARE(d.casilla(otra), 0.0);
                QVERIFY(cambiarSiCabe(d, [&](cDatos480 &r) { r.casilla(otra, -signo); }));
                QVERIFY(d.casilla(llena == C01_VIDA ? C70_TOT : C71_TOT) // exactly
                        == signo * (ImporteMaximo - 1));
            }
        // the result, by the quota of either band
        cDatos480 d;
        d.C74_TI1(100);
        d.C77_TI2(100);
        d.casilla(C80_CU3, ImporteMaximo);
        for (const Casilla480 base : {C73_BA1, C76_BA2})
            QVERIFY(!cambiarSiCabe(d, [&](cDatos480 &r) { r.casilla(base, 1); }));
    }

    /// The month decides a 430's rate, the year both of a 480's.
    void tipos()
    {
        SQLite::Database(rutas().lectura.toStdString(), SQLite::OPEN_READWRITE)
            .exec("INSERT INTO T09_TIPOS VALUES (202607, 915)");
        auto &resumen = unico::la<cDecResumen>();
        resumen.EJERCICIO(2026);
        resumen.CambiarModelo(u"430"_s);
        for (const auto &[mes, tipo] : {std::pair{1, 8.0F}, {7, 9.15F}}) {
            resumen.PERIODO(quint8(mes));
            cDatos430 mensual;
            mensual.BASELIQ(5);
            mensual.CSDE(5);
            mensual.MODO(u"A"_s);
            QCOMPARE(mensual.RegistroGuardar().mid(RegGuardar::Figuras),
                     (Registro{QString(), 0.0, tipo, 0.0, 0.0, 0.0, 0.0, tipo, 0.0}));
            QCOMPARE(mensual.CSDE(), 0);
        }
        cDatos480 anual;
        anual.casilla(Casilla480::C01_VIDA, 5);
        anual.CSDE(5);
        anual.MODO(u"A"_s);
        Registro esperado(Reg480::Total, 0.0);
        esperado[50] = 8.0F;
        esperado[51] = 9.15F;
        QCOMPARE(anual.RegistroGuardar().mid(RegGuardar::Figuras), esperado);
        QVERIFY(anual.MODIFICADO() && anual.CSDE() == 0);
    }

private:
    std::optional<Entorno> m_entorno;
};

QTEST_GUILESS_MAIN(TstRegistros)
#include "tst_registros.moc"
