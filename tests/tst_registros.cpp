#include "core/CEntrada.h"
#include "core/Importe.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/cFecha.h"
#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrOstr.h"
#include "declarants/CamposDeclarante.h"
#include "declarants/Listas.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "resources/TablaMensajes.h"
#include "support/Entorno.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The header as "exercise|period|periodicity|type|model".
static QString cabeceraDe(const cDecResumen &r)
{
    return unidos({r.EJERCICIO(), r.PERIODO(), r.PERIODICIDAD(), r.TIPOLOGIA(), r.MODELO()});
}

/// Lookups in which the rates differ by the month: 20 + month; 26.126 and 7.014 in 2026.
class TiposCambiantes : public SvrOstr::cDatosGeneral
{
public:
    void ObtenerTipoAnual(Registro &tipos, qint16 ejercicio) override
    {
        tipos = {float(ejercicio - 2000) + 0.126F, 7.014F};
    }
    float ObtenerTipoImpositivo(qint16, quint8 periodo) override { return 20.0F + periodo; }

    void mdbname(const QString &) override {}
    qint32 NumeroDeclarantes() override { return 0; }
    void CambiarIdioma(const QString &) override {}
    QString ObtenerIdioma() override { return {}; }
    void GuardarActOnline(qint16) override {}
    qint16 ObtenerActOnline() override { return 0; }
    void DameEjerPerMinMax(Registro &) override {}
    void ObtenerNombreProvincia(const QString &, QString &, qint16) override {}
    void ObtenerNombreMunicipio(const QString &, QString &) override {}
    void CargarProvincias(const QString &, Filas &) override {}
    void CargarMunicipios(const QString &, Filas &) override {}
    void CargarVias(const QString &, Filas &) override {}
    QString URLAct() override { return {}; }
};

class TstRegistros : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_entorno.emplace(); }
    void cleanup() { m_entorno.reset(); }

    void sesionNueva()
    {
        m_entorno.emplace(QString());
        QVERIFY(m_entorno->inicio().fallos.isEmpty());
        QVERIFY(m_entorno->inicio().primeraVez());
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
        d.MODO(u"C"_s);
        QCOMPARE(unidos({d.CSCO(), d.DNI()}), u"7|12345678Z"_s);
    }

    /// Seventeen different values, written and read through the table of the fields, twice: as a
    /// new declarant and as a change of it.
    void declaranteIdaYVuelta()
    {
        const auto rellenar = [](cDecDatos &d, const QString &valores) {
            const QStringList lista = valores.split(u'|');
            for (qsizetype i = 0; i < lista.size(); ++i)
                QVERIFY(campos::tomar(campos::tabla[size_t(i)].campo, d, lista[i]));
        };
        const auto valores = [](const cDecDatos &d) {
            QStringList lista;
            for (const auto &campo : campos::tabla)
                lista += campos::leer(campo.campo, d);
            return lista.join(u'|') + u'|' + d.NOMPROV();
        };
        const QString alta = u"A08000143|ÑANDÚ, S.A.|AV|UNA CALLE DE MAS DE VEINTE LE.|99999|B|1|2|"
                             "DCH|01|01001|003|OTRO|945000000"_s;
        const QString cambio
            = u"B66000004|ÇEDA|CL|MENOR|7|X|E|P|IZQ|48|48002|004|OTRO MAS|944111222"_s;
        cDecDatos d;
        d.MODO(u"A"_s);
        rellenar(d, alta);
        QCOMPARE(d.GuardarDeclarante(d.RegistroCompleto()), qint16(0));
        cDecDatos leido;
        leido.CSCO(-5);
        const qint32 csco = leido.ObtenerCodigoDeclarante(u"A08000143"_s);
        QVERIFY(csco > 0);
        leido.CargarDeclarante(csco);
        QCOMPARE(leido.CSCO(), -5);
        QCOMPARE(valores(leido), alta + u"|0|0|ÁLAVA"_s);
        for (const quint8 mes : QList<quint8>{1, 2})
            Entorno::altaDeclaracion(csco, 2026, mes);
        Entorno::altaDeclaracion(csco, 2025, 12, u"480"_s);
        leido.CSCO(csco);
        rellenar(leido, cambio);
        QCOMPARE(leido.GuardarDeclarante(leido.RegistroCompleto()), qint16(0));
        d.CargarDeclarante(csco);
        QCOMPARE(valores(d), cambio + u"|2|1|VIZCAYA"_s);
        unico::la<CEntrada>().IDI(u"E"_s);
        d.LeerNombreProvincia();
        QCOMPARE(d.NOMPROV(), u"BIZKAIA"_s);
        QCOMPARE(unidos(d.RegistroValidacion()),
                 u"B66000004|ÇEDA|MENOR|48|48002|004|OTRO MAS|944111222"_s);
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

    void provincia()
    {
        cDecDatos d;
        d.MODO(u"A"_s);
        d.CODMUN(u"001"_s);
        d.NOMMUN(u"ABRENZUOLA"_s);
        d.CambiarProvincia(u"20"_s, u"VARLENDA"_s);
        QVERIFY(d.enProvinciaPropia());
        QCOMPARE(unidos({d.CODPROV(), d.CODMUN(), d.NOMMUN()}), u"20|001|"_s);
        d.CambiarProvincia(u"1"_s, u"ÁLAVA"_s);
        QVERIFY(!d.enProvinciaPropia());
        QCOMPARE(d.CODPROV() + d.CODMUN(), u"01"_s);

        const ListaCodigos provincias = cargarProvincias();
        QCOMPARE(provincias.size(), 52);
        QVERIFY(buscarCodigo(provincias, u"01"_s) == buscarCodigo(provincias, u"1"_s));
        QVERIFY(!buscarCodigo(provincias, u"53"_s) && !buscarCodigo(provincias, u"CL"_s));
        QCOMPARE(buscarCodigo(cargarVias(), u"CL"_s)->nombre, u"CALLE"_s);
        QCOMPARE(buscarCodigo(cargarMunicipios(), u"001"_s)->nombre, u"ABRENZUOLA"_s);
        unico::la<CEntrada>().IDI(u"E"_s);
        QCOMPARE(buscarCodigo(cargarVias(), u"CL"_s)->nombre, u"KALEA"_s);
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

    void cabecera()
    {
        Entorno::altaDeclaracion(Entorno::altaDeclarante(), 2026, 1);
        auto &resumen = unico::la<cDecResumen>();
        QCOMPARE(resumen.ValidarDatosComunes(resumen.Cabecera()), qint16(5));
        resumen.PERIODO(2);
        QCOMPARE(resumen.ValidarDatosComunes(resumen.Cabecera()), qint16(0));
        resumen.CambiarModelo(u"480"_s);
        QCOMPARE(cabeceraDe(resumen), u"2026|12|2|2|480"_s);
        resumen.CambiarModelo(u"430"_s);
        QCOMPARE(cabeceraDe(resumen), u"2026|0|1|1|430"_s);
        QCOMPARE(textoCabecera(0), QString());
        for (const qint16 codigo : QList<qint16>{1, 2, 3, 5})
            QCOMPARE(textoCabecera(codigo), textoMensaje(254 + codigo, Idioma::Castellano));
        QCOMPARE(textoCabecera(4),
                 msj(Msj::ErrorEjercicioPeriodoFuera, u"2002-01"_s, u"2030-12"_s));
    }

    void clases480()
    {
        QSet<int> entradas{73, 76, 79, 80};
        QSet<int> posiciones;
        for (int clase = 0; clase < Reg480::Clases; ++clase)
            for (int columna = 0; columna < 2; ++columna) {
                posiciones.insert(Reg480::posicion(clase, columna));
                entradas.insert(1 + 3 * clase + columna);
            }
        QCOMPARE(posiciones.size(), 46);
        for (int numero = -1; numero <= 100; ++numero)
            QCOMPARE(int(casillaEntrada(numero).value_or(Casilla480{200})),
                     entradas.contains(numero) ? numero : 200);
        QCOMPARE(numeroCasilla(Casilla480::C01_VIDA) + controlCasilla(Casilla480::C50_OTR)
                     + controlCasilla(Casilla480::C73_BA1),
                 u"01txt50otrtxt73ba1"_s);
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
        // the quotas of a rate above 100, and the result
        cDatos480 d;
        d.C74_TI1(200);
        d.C77_TI2(200);
        for (const Casilla480 base : {C73_BA1, C76_BA2})
            QVERIFY(!cambiarSiCabe(d, [&](cDatos480 &r) { r.casilla(base, ImporteMaximo); }));
        d.casilla(C80_CU3, ImporteMaximo);
        QVERIFY(!cambiarSiCabe(d, [&](cDatos480 &r) { r.casilla(C73_BA1, 1); }));
    }

    /// The month decides a 430's rate, the year both of a 480's.
    void tipos()
    {
        servicio::registrar(TiposCambiantes::ID,
                            [] { return std::make_unique<TiposCambiantes>(); });
        auto &resumen = unico::la<cDecResumen>();
        resumen.EJERCICIO(2026);
        resumen.CambiarModelo(u"430"_s);
        for (const quint8 mes : QList<quint8>{1, 7}) {
            resumen.PERIODO(mes);
            cDatos430 mensual;
            mensual.BASELIQ(5);
            mensual.CSDE(5);
            mensual.MODO(u"C"_s);
            QCOMPARE(mensual.CSDE(), 5);
            mensual.MODO(u"A"_s);
            QCOMPARE(mensual.RegistroGuardar().mid(RegGuardar::Figuras),
                     (Registro{QString(), 0.0, float(20 + mes), 0.0, 0.0, 0.0, 0.0, float(20 + mes),
                               0.0}));
            QCOMPARE(mensual.CSDE(), 0);
        }
        cDatos480 anual;
        anual.casilla(Casilla480::C01_VIDA, 5);
        anual.CSDE(5);
        anual.MODO(u"A"_s);
        Registro esperado(Reg480::Total, 0.0);
        esperado[50] = 26.13F;
        esperado[51] = 7.01F;
        QCOMPARE(anual.RegistroGuardar().mid(RegGuardar::Figuras), esperado);
        QVERIFY(anual.MODIFICADO() && anual.CSDE() == 0);
    }

    /// Nine and 56 different figures through the record, the service and another record.
    void declaracionesIdaYVuelta()
    {
        const qint32 csco = Entorno::altaDeclarante();
        Entorno::altaDeclaracion(csco, 2026, 1);
        auto &resumen = unico::la<cDecResumen>();
        resumen.PERIODO(2);
        cDatos430 mensual;
        mensual.RECTIFICA(u"X"_s);
        mensual.BASELIQ(11.4);
        mensual.TIPOLIQ(6.014F);
        mensual.CUOTALIQ(-22.5);
        mensual.BASEREC(33.49);
        mensual.CUOTAREC(44.5);
        mensual.BASETOT(-55.6);
        mensual.TIPOTOT(7.156F);
        mensual.CUOTATOT(66.7);
        const Registro figuras430{u"X"_s, 11.0, 6.01F, -23.0, 33.0, 45.0, -56.0, 7.16F, 67.0};
        QCOMPARE(mensual.RegistroGuardar(),
                 (Registro{0, csco, qint16(2026), quint8(1), quint8(2), u"430"_s, quint8(1)}
                  + figuras430));
        const qint32 clave = mensual.GuardarDeclaracion(mensual.RegistroGuardar());
        Registro guardado;
        qint32 csde = clave;
        servicioDeclaracion()->Cargar430(csde, guardado);
        QCOMPARE(guardado, figuras430);
        cDatos430 leida;
        leida.CargarDeclaracion(clave);
        QCOMPARE(leida.RegistroGuardar(), mensual.RegistroGuardar());
        QCOMPARE(leida.CSDE(), 0);

        Filas mensuales;
        cDatos480 anual;
        QVERIFY(anual.NumDecl430(mensuales));
        QCOMPARE(mensuales.size(), 2);
        resumen.EJERCICIO(2025);
        QVERIFY(!anual.NumDecl430(mensuales));
        resumen.CambiarModelo(u"480"_s);
        // the service's order, by the numbers of the form
        const QString orden
            = u"1 4 7 10 13 16 19 22 25 28 31 2 5 8 11 14 17 20 23 26 29 32 34 37 40 "
              "43 46 49 52 55 58 61 64 67 35 38 41 44 47 50 53 56 59 62 65 68 70 73 76 79 74 77 75 "
              "78 80 81"_s;
        Registro figuras480;
        double columna2 = 0;
        for (const QString &cual : orden.split(u' ')) {
            const int numero = cual.toInt();
            if (numero == 74 || numero == 77) {
                figuras480 += float(numero) / 10;
                continue;
            }
            figuras480 += numero * 101.0;
            anual.casilla(static_cast<Casilla480>(numero), numero * 101 + 0.4);
            columna2 += numero < 70 && numero % 3 == 2 ? numero * 101 : 0;
        }
        anual.C74_TI1(7.4F);
        anual.C77_TI2(7.7F);
        QCOMPARE(anual.RegistroGuardar().mid(RegGuardar::Figuras), figuras480);
        csde = anual.GuardarDeclaracion(anual.RegistroGuardar());
        servicioDeclaracion()->Cargar480(csde, guardado);
        QCOMPARE(guardado, figuras480);
        cDatos480 releida;
        releida.CargarDeclaracion(csde);
        QCOMPARE(releida.RegistroGuardar(), anual.RegistroGuardar());
        QCOMPARE(releida.casilla(Casilla480::C71_TOT), columna2);
    }

private:
    std::optional<Entorno> m_entorno;
};

QTEST_GUILESS_MAIN(TstRegistros)
#include "tst_registros.moc"
