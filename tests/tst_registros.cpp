#include "core/CEntrada.h"
#include "core/Importe.h"
#include "core/Redondeo.h"
#include "core/Textos.h"
#include "core/cFecha.h"
#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrOstr.h"
#include "declarants/Listas.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "declarations/Cambio.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "resources/Mensajes.h"
#include "support/Entorno.h"
#include "support/GeneralAveriado.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

static void comprobarPropuesta(const cDecResumen &resumen, int propuesta)
{
    const bool anual = propuesta % 100 == 13;
    const int clase = propuesta == 0 ? 0 : anual ? 2 : 1;
    QCOMPARE(int(resumen.EJERCICIO()), propuesta / 100);
    QCOMPARE(int(resumen.PERIODO()), anual ? 12 : propuesta % 100);
    QCOMPARE(int(resumen.PERIODICIDAD()), clase);
    QCOMPARE(int(resumen.TIPOLOGIA()), clase);
    QCOMPARE(resumen.MODELO(), QStringList({{}, u"430"_s, u"480"_s})[clase]);
}

/// Half away from zero of a whole rate in percent × base / 100, in integers.
static qint64 cuotaEntera(qint64 tipo, qint64 base)
{
    const qint64 producto = tipo * base;
    return (producto + (producto < 0 ? -50 : 50)) / 100;
}

class TestRegistros : public QObject
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
        QCOMPARE(entrada.EJERMIN(), 2002);
        QCOMPARE(entrada.PERMIN(), 1);
        QCOMPARE(entrada.EJERMAX(), 2030);
        QCOMPARE(entrada.PERMAX(), 12);
        QCOMPARE(entrada.NUMDECLA(), 0);
        QCOMPARE(desplazamientoIdioma(), qint16(0));

        Entorno::altaDeclarante();
        unico::la<CEntrada>().InicializarContadores();
        QCOMPARE(entrada.NUMDECLA(), 1);
    }

    void idiomaGuardaAntesDeCambiar()
    {
        auto &entrada = unico::la<CEntrada>();
        {
            const GeneralAveriado averia;
            QVERIFY_EXCEPTION_THROWN(entrada.IDI(u"E"_s), ErrorDatos);
            QCOMPARE(entrada.IDI(), u"C"_s);
            QCOMPARE(desplazamientoIdioma(), qint16(0));
            QCOMPARE(unico::la<cFecha>().fecidioma(), u"C"_s);
        }
        entrada.IDI(u"E"_s);
        QCOMPARE(desplazamientoIdioma(), qint16(10000));
        QCOMPARE(unico::la<cFecha>().fecidioma(), u"E"_s);
        CEntrada otra;
        otra.LeerIdioma();
        QCOMPARE(otra.IDI(), u"E"_s);
    }

    void declaranteNuevo()
    {
        auto &d = unico::la<cDecDatos>();
        for (int vez = 0; vez < 2; ++vez) {
            d.MODO(u"A"_s);
            QStringList valores;
            for (const QVariant &valor : d.RegistroCompleto())
                valores += valor.toString();
            QCOMPARE(valores.join(u'|'), u"0|||CL||0|||||20|||||0|0"_s);
            QCOMPARE(d.NOMPROV(), u"VARLENDA"_s);
            d.DNI(u"12345678Z"_s);
            d.CSCO(7);
        }
        d.MODO(u"C"_s);
        QCOMPARE(d.DNI(), u"12345678Z"_s);
        QCOMPARE(d.CSCO(), 7);
    }

    void declaranteIdaYVuelta()
    {
        cDecDatos d;
        d.MODO(u"A"_s);
        d.DNI(u"A08000143"_s);
        d.NOMBRE(u"ÑANDÚ, S.A."_s);
        d.VIA(u"AV"_s);
        d.DOMICILIO(u"UNA CALLE DE MAS DE VEINTE LE."_s);
        d.NUMERO(99999);
        d.LETRA(u"B"_s);
        d.ESCALERA(u"1"_s);
        d.PISO(u"2"_s);
        d.MANO(u"DCH"_s);
        d.CambiarProvincia(u"1"_s, u"ÁLAVA"_s);
        d.CODPOS(u"01001"_s);
        d.NOMMUN(u"OTRO"_s);
        d.TELEFONO(u"945000000"_s);
        QCOMPARE(d.GuardarDeclarante(d.RegistroCompleto()), qint16(0));

        cDecDatos leido;
        leido.CSCO(-5);
        const qint32 csco = leido.ObtenerCodigoDeclarante(u"A08000143"_s);
        QVERIFY(csco > 0);
        leido.CargarDeclarante(csco);
        QCOMPARE(leido.CSCO(), -5);
        QCOMPARE(leido.NOMPROV(), u"ÁLAVA"_s);
        leido.CSCO(0);
        for (int campo = 0; campo < RegDeclarante::Total; ++campo)
            QCOMPARE(leido.RegistroCompleto()[campo].toString(),
                     d.RegistroCompleto()[campo].toString());

        unico::la<CEntrada>().IDI(u"E"_s);
        leido.LeerNombreProvincia();
        QCOMPARE(leido.NOMPROV(), u"ARABA"_s);

        leido.CSCO(csco);
        leido.BorrarDeclarante();
        QCOMPARE(leido.ObtenerCodigoDeclarante(u"A08000143"_s), 0);
    }

    void provincia()
    {
        cDecDatos d;
        d.MODO(u"A"_s);
        d.CODMUN(u"001"_s);
        d.NOMMUN(u"ABRENZUOLA"_s);
        d.CambiarProvincia(u"20"_s, u"VARLENDA"_s);
        QVERIFY(d.enProvinciaPropia());
        QCOMPARE(d.CODMUN(), u"001"_s);
        QCOMPARE(d.NOMMUN(), QString());
        d.CambiarProvincia(u"1"_s, u"ÁLAVA"_s);
        QVERIFY(!d.enProvinciaPropia());
        QCOMPARE(d.CODPROV(), u"01"_s);
        QCOMPARE(d.CODMUN(), QString());

        const ListaCodigos provincias = cargarProvincias();
        QCOMPARE(provincias.size(), 52);
        QVERIFY(buscarCodigo(provincias, u"01"_s) == buscarCodigo(provincias, u"1"_s));
        QVERIFY(!buscarCodigo(provincias, u"53"_s) && !buscarCodigo(provincias, u"CL"_s));
        QCOMPARE(buscarCodigo(cargarVias(), u"CL"_s)->nombre, u"CALLE"_s);
        QCOMPARE(buscarCodigo(cargarMunicipios(), u"001"_s)->nombre, u"ABRENZUOLA"_s);
        unico::la<CEntrada>().IDI(u"E"_s);
        QCOMPARE(buscarCodigo(cargarVias(), u"CL"_s)->nombre, u"KALEA"_s);
    }

    /// The rules are the server's; here, where each code puts the focus and which text it shows.
    void validacionDeclarante()
    {
        using enum RegValidacion::Campo;
        Registro datos{u"12345678A"_s, u"SEGUROS"_s, u"MAYOR"_s,      u"20"_s,
                       u"20001"_s,     u"001"_s,     u"ABRENZUOLA"_s, u"943000000"_s};
        QCOMPARE(cDecDatos().ValidarDatosDeclarante(datos), qint16(1));
        datos[DNI] = u"12345678Z"_s;
        QCOMPARE(cDecDatos().ValidarDatosDeclarante(datos), qint16(0));
        const QList<int> campos{DNI,    NOMBRE, DOMICILIO, CODPROV, CODPOS,   CODPOS,
                                CODPOS, CODPOS, CODMUN,    NOMMUN,  TELEFONO, TELEFONO};
        for (qint16 codigo = 1; codigo <= 12; ++codigo) {
            QCOMPARE(int(campoValidacionDeclarante(codigo)), campos[codigo - 1]);
            QCOMPARE(textoValidacionDeclarante(codigo),
                     textoMensaje(240 + codigo, Idioma::Castellano));
        }
    }

    void dniRepetido()
    {
        Entorno::altaDeclarante();
        const qint32 otro = Entorno::altaDeclarante(u"87654321X"_s, u"SEGUROS DOS"_s);
        cDecDatos d;
        d.CargarDeclarante(otro);
        d.DNI(u"12345678Z"_s);
        for (const auto &[csco, codigo] : {std::pair(0, 1), std::pair(otro, 2)}) {
            d.CSCO(csco);
            const qint16 obtenido = d.GuardarDeclarante(d.RegistroCompleto());
            QCOMPARE(int(obtenido), codigo);
            QCOMPARE(textoGuardarDeclarante(obtenido),
                     textoMensaje(252 + codigo, Idioma::Castellano));
            QCOMPARE(d.CSCO(), csco);
        }
        cDecLista lista;
        QCOMPARE(lista.CargarDeclarantes().size(), 2);
        QCOMPARE(lista.NUMDECLASEL(), 2);
    }

    void propuesta_data()
    {
        QTest::addColumn<QList<int>>("guardadas"); // exercise × 100 + month, month 13 for the 480
        QTest::addColumn<int>("propuesta"); // the same; 0 for none
        QTest::newRow("no return") << QList<int>{} << 0;
        for (int mes = 1; mes < 12; ++mes)
            QTest::addRow("after month %d", mes) << QList{202600 + mes} << 202601 + mes;
        QTest::newRow("480 after December") << QList{202612} << 202613;
        QTest::newRow("January after the 480") << QList{202612, 202613} << 202701;
        QTest::newRow("480 alone") << QList{202613} << 202701;
        QTest::newRow("order of entry does not count") << QList{202605, 202512, 202603} << 202606;
        QTest::newRow("last of the bounds") << QList{203011} << 203012;
        QTest::newRow("480 of the last year") << QList{203012} << 203013;
        QTest::newRow("beyond the bounds") << QList{203013} << 0;
    }

    void propuesta()
    {
        QFETCH(QList<int>, guardadas);
        QFETCH(int, propuesta);
        const qint32 csco = Entorno::altaDeclarante();
        for (const int cual : guardadas) {
            const bool anual = cual % 100 == 13;
            Entorno::altaDeclaracion(csco, qint16(cual / 100), quint8(anual ? 12 : cual % 100),
                                     anual ? u"480"_s : u"430"_s);
        }
        auto &resumen = unico::la<cDecResumen>();
        resumen.TomarDeclarante(csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
        resumen.MODO(u"N"_s);
        comprobarPropuesta(resumen, propuesta);
        resumen.MODO(u"L"_s);
        comprobarPropuesta(resumen, 0);
        QCOMPARE(resumen.CargarDeclaraciones().size(), guardadas.size());
        QCOMPARE(resumen.NUMDECLASEL(), int(guardadas.size()));
    }

    void cabecera()
    {
        Entorno::altaDeclaracion(Entorno::altaDeclarante(), 2026, 1);
        auto &resumen = unico::la<cDecResumen>();
        QCOMPARE(resumen.ValidarDatosComunes(resumen.Cabecera()), qint16(5));
        resumen.PERIODO(2);
        QCOMPARE(resumen.ValidarDatosComunes(resumen.Cabecera()), qint16(0));
        resumen.CambiarModelo(u"480"_s);
        QCOMPARE(int(resumen.PERIODO()), 12);
        QCOMPARE(int(resumen.PERIODICIDAD() + resumen.TIPOLOGIA()), 4);
        resumen.CambiarModelo(u"430"_s);
        QCOMPARE(int(resumen.PERIODO()), 0);
        QCOMPARE(int(resumen.PERIODICIDAD() + resumen.TIPOLOGIA()), 2);
        QCOMPARE(textoCabecera(0), QString());
        for (const qint16 codigo : QList<qint16>{1, 2, 3, 5})
            QCOMPARE(textoCabecera(codigo), textoMensaje(254 + codigo, Idioma::Castellano));
        QCOMPARE(textoCabecera(4),
                 msj(Msj::ErrorEjercicioPeriodoFuera, u"2002-01"_s, u"2030-12"_s));
    }

    void clases480()
    {
        QSet<int> posiciones;
        QSet<int> entradas{73, 76, 79, 80};
        for (int clase = 0; clase < Reg480::Clases; ++clase)
            for (int columna = 0; columna < 2; ++columna) {
                posiciones.insert(Reg480::posicion(clase, columna));
                entradas.insert(Reg480::casilla(clase, columna));
            }
        QCOMPARE(posiciones.size(), 46);
        QCOMPARE(propiedadClase(16, 1), u"C50_OTR"_s);
        QCOMPARE(controlClase(0, 0), u"txt01vida"_s);
        QCOMPARE(paginaClase(10), 1);
        QCOMPARE(paginaClase(11), 2);
        QCOMPARE(Reg480::posicion(0, 1), 11);
        QCOMPARE(Reg480::posicion(11, 0), 22);
        QCOMPARE(Reg480::posicion(22, 1), 45);
        for (int numero = -1; numero <= 100; ++numero) {
            const auto uso = numero < 1 || numero > 81 ? UsoCasilla::Desconocida
                : entradas.contains(numero)            ? UsoCasilla::Entrada
                                                       : UsoCasilla::Calculada;
            QVERIFY2(usoCasilla(numero) == uso, qPrintable(QString::number(numero)));
        }
    }

    /// Thousands of random returns of both models against integer arithmetic.
    void calculos480()
    {
        QRandomGenerator azar(480);
        const auto importe = [&] {
            const auto n = static_cast<qint64>(azar.generate64() % 20'000'000'000'000ULL);
            return (n - 10'000'000'000'000) >> azar.bounded(40);
        };
        for (int vez = 0; vez < 3000; ++vez) {
            cDatos480 d;
            const int tipo1 = azar.bounded(1, 20);
            const int tipo2 = azar.bounded(0, 20);
            d.C74_TI1(static_cast<float>(tipo1));
            d.C77_TI2(static_cast<float>(tipo2));
            qint64 sumas[2] = {0, 0};
            for (int clase = 0; clase < Reg480::Clases; ++clase)
                for (int columna = 0; columna < 2; ++columna) {
                    const qint64 n = importe();
                    sumas[columna] += n;
                    d.casilla(Reg480::casilla(clase, columna), static_cast<double>(n));
                }
            const qint64 banda1 = importe();
            const qint64 banda2 = sumas[0] - banda1;
            const qint64 cuota3 = importe();
            d.casilla(73, static_cast<double>(banda1));
            d.casilla(76, static_cast<double>(banda2));
            d.casilla(80, static_cast<double>(cuota3));
            d.CalcularValores();
            const qint64 cuota1 = cuotaEntera(tipo1, banda1);
            const qint64 cuota2 = cuotaEntera(tipo2, banda2);
            QCOMPARE(qint64(d.casilla(70)), sumas[0]);
            QCOMPARE(qint64(d.casilla(71)), sumas[1]);
            QCOMPARE(qint64(d.casilla(75)), cuota1);
            QCOMPARE(qint64(d.casilla(78)), cuota2);
            QCOMPARE(qint64(d.casilla(81)), cuota1 + cuota2 + cuota3);
            QCOMPARE(d.DiferenciaBases(), 0.0);

            cDatos430 mensual;
            mensual.TIPOLIQ(static_cast<float>(tipo1));
            mensual.BASELIQ(static_cast<double>(banda1));
            mensual.BASEREC(static_cast<double>(banda2));
            mensual.CUOTAREC(static_cast<double>(cuota3));
            mensual.CalcularValores();
            QCOMPARE(qint64(mensual.CUOTALIQ()), cuota1);
            QCOMPARE(qint64(mensual.BASETOT()), banda1 + banda2);
            QCOMPARE(qint64(mensual.CUOTATOT()), cuota1 + cuota3);
        }
    }

    void noCabe()
    {
        cDatos430 mensual;
        mensual.BASELIQ(ImporteMaximo);
        QVERIFY(!cambiarSiCabe(mensual, [](cDatos430 &d) { d.BASEREC(1); }));
        QCOMPARE(mensual.BASEREC(), 0.0);
        QVERIFY(cambiarSiCabe(mensual, [](cDatos430 &d) { d.BASEREC(-1); }));
        QVERIFY(mensual.BASETOT() == ImporteMaximo - 1); // exactly, which QCOMPARE is not

        cDatos480 anual;
        anual.casilla(2, -ImporteMaximo);
        QVERIFY(!cambiarSiCabe(anual, [](cDatos480 &d) { d.casilla(68, -1); }));
        QCOMPARE(anual.casilla(68), 0.0);
        QVERIFY(cambiarSiCabe(anual, [](cDatos480 &d) { d.casilla(68, 1); }));
        QVERIFY(anual.casilla(71) == -ImporteMaximo + 1);
    }

    void validacionFiguras()
    {
        cDatos430 d;
        const auto codigo = [&] { return int(d.ValidarDatos430(d.RegistroValidar())); };
        QCOMPARE(codigo(), 0);
        d.MarcarRectificacion(true);
        QCOMPARE(codigo(), 1);
        d.BASEREC(100);
        QCOMPARE(codigo(), 2);
        d.CUOTAREC(-6);
        QCOMPARE(codigo(), 0);
        d.MarcarRectificacion(false);
        QCOMPARE(d.RECTIFICA(), QString());
        QCOMPARE(d.BASEREC() + d.CUOTAREC(), 0.0);

        cDatos480 anual;
        anual.casilla(67, 1000);
        anual.CalcularValores();
        QCOMPARE(anual.ValidarDatos480(anual.RegistroValidar()), qint16(2));
        anual.casilla(73, 1500);
        anual.casilla(76, -500);
        QCOMPARE(anual.ValidarDatos480(anual.RegistroValidar()), qint16(0));
    }

    void declaracionesIdaYVuelta()
    {
        const qint32 csco = Entorno::altaDeclarante();
        Entorno::altaDeclaracion(csco, 2026, 1);
        auto &resumen = unico::la<cDecResumen>();
        resumen.PERIODO(2);
        cDatos430 mensual;
        mensual.MODO(u"A"_s);
        QCOMPARE(mensual.TIPOLIQ(), 8.0F);
        QCOMPARE(mensual.TIPOTOT(), 8.0F);
        mensual.MarcarRectificacion(true);
        mensual.BASELIQ(123456);
        mensual.BASEREC(-100);
        mensual.CUOTAREC(7);
        mensual.CalcularValores();
        const qint32 clave = mensual.GuardarDeclaracion(mensual.RegistroGuardar());
        QVERIFY(clave > 0);
        cDatos430 leida;
        leida.CargarDeclaracion(clave);
        QCOMPARE(leida.RegistroGuardar(), mensual.RegistroGuardar());
        leida.CSDE(clave);
        leida.MODO(u"A"_s);
        QCOMPARE(leida.CSDE(), 0);
        QCOMPARE(leida.BASELIQ() + leida.CUOTATOT() + leida.BASETOT(), 0.0);

        Filas mensuales;
        cDatos480 anual;
        QVERIFY(anual.NumDecl430(mensuales));
        QCOMPARE(mensuales.size(), 2);
        resumen.CambiarModelo(u"480"_s);
        anual.MODO(u"A"_s);
        QCOMPARE(anual.C74_TI1(), 8.0F);
        QCOMPARE(anual.C77_TI2(), 0.0F);
        for (int numero = 1; numero <= 81; ++numero)
            if (usoCasilla(numero) == UsoCasilla::Entrada)
                anual.casilla(numero, numero * 101);
        anual.CalcularValores();
        const qint32 claveAnual = anual.GuardarDeclaracion(anual.RegistroGuardar());
        QVERIFY(claveAnual > 0);
        cDatos480 releida;
        releida.CargarDeclaracion(claveAnual);
        QCOMPARE(releida.RegistroGuardar(), anual.RegistroGuardar());
        resumen.EJERCICIO(2025);
        QVERIFY(!anual.NumDecl430(mensuales));
    }

private:
    std::optional<Entorno> m_entorno;
};

QTEST_GUILESS_MAIN(TestRegistros)
#include "tst_registros.moc"
