#include "core/CEntrada.h"
#include "core/Importe.h"
#include "core/Periodos.h"
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

class TestRegistros : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_entorno.emplace(); }
    void cleanup() { m_entorno.reset(); }

    void sesionNueva();
    void idiomaGuardaAntesDeCambiar();
    void declaranteNuevo();
    void declaranteIdaYVuelta();
    void provincia();
    void validacionDeclarante_data();
    void validacionDeclarante();
    void dniRepetido();
    void propuesta_data();
    void propuesta();
    void cabecera_data();
    void cabecera();
    void cambiarModelo();
    void clases480();
    void calculos430_data();
    void calculos430();
    void calculos480();
    void noCabe();
    void validacion430();
    void validacion480();
    void declaracionesIdaYVuelta();
    void borrarDeclaracion();
    void guardarFallido();

private:
    std::optional<Entorno> m_entorno;
};

void TestRegistros::sesionNueva()
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

void TestRegistros::idiomaGuardaAntesDeCambiar()
{
    auto &entrada = unico::la<CEntrada>();
    {
        const GeneralAveriado averia;
        QVERIFY_EXCEPTION_THROWN(entrada.IDI(u"E"_qs), ErrorDatos);
        QCOMPARE(entrada.IDI(), u"C"_qs);
        QCOMPARE(desplazamientoIdioma(), qint16(0));
        QCOMPARE(unico::la<cFecha>().fecidioma(), u"C"_qs);
    }
    entrada.IDI(u"E"_qs);
    QCOMPARE(desplazamientoIdioma(), qint16(10000));
    QCOMPARE(unico::la<cFecha>().fecidioma(), u"E"_qs);
    CEntrada otra;
    otra.LeerIdioma();
    QCOMPARE(otra.IDI(), u"E"_qs);
    // dates are Castilian for "C" only, texts Basque for "E" only
    entrada.IDI(u"X"_qs);
    QCOMPARE(desplazamientoIdioma(), qint16(0));
    QCOMPARE(unico::la<cFecha>().FecVacia(), u"____/__/__"_qs);
}

void TestRegistros::declaranteNuevo()
{
    auto &d = unico::la<cDecDatos>();
    for (int vez = 0; vez < 2; ++vez) {
        d.MODO(u"A"_qs);
        const Registro esperado{0,      u""_qs, u""_qs, u"CL"_qs, u""_qs,   0,
                                u""_qs, u""_qs, u""_qs, u""_qs,   u"20"_qs, u""_qs,
                                u""_qs, u""_qs, u""_qs, 0.0,      0.0};
        QCOMPARE(d.RegistroCompleto().size(), int(RegDeclarante::Total));
        for (int campo = 0; campo < RegDeclarante::Total; ++campo)
            QCOMPARE(d.RegistroCompleto()[campo].toString(), esperado[campo].toString());
        QCOMPARE(d.NOMPROV(), u"VARLENDA"_qs);
        d.DNI(u"12345678Z"_qs);
        d.CSCO(7);
    }
    d.MODO(u"C"_qs);
    QCOMPARE(d.DNI(), u"12345678Z"_qs);
    QCOMPARE(d.CSCO(), 7);
    QCOMPARE(d.MODO(), u"C"_qs);
}

void TestRegistros::declaranteIdaYVuelta()
{
    cDecDatos d;
    d.MODO(u"A"_qs);
    d.DNI(u"A08000143"_qs);
    d.NOMBRE(u"ÑANDÚ, S.A."_qs);
    d.VIA(u"AV"_qs);
    d.DOMICILIO(u"UNA CALLE DE MAS DE VEINTE LE."_qs);
    d.NUMERO(99999);
    d.LETRA(u"B"_qs);
    d.ESCALERA(u"1"_qs);
    d.PISO(u"2"_qs);
    d.MANO(u"DCH"_qs);
    d.CambiarProvincia(u"1"_qs, u"ÁLAVA"_qs);
    d.CODPOS(u"01001"_qs);
    d.NOMMUN(u"OTRO"_qs);
    d.TELEFONO(u"945000000"_qs);
    QCOMPARE(d.GuardarDeclarante(d.RegistroCompleto()), qint16(0));

    cDecDatos leido;
    leido.MODO(u"C"_qs);
    leido.CSCO(-5);
    const qint32 csco = leido.ObtenerCodigoDeclarante(u"A08000143"_qs);
    QVERIFY(csco > 0);
    leido.CargarDeclarante(csco);
    QCOMPARE(leido.CSCO(), -5);
    QCOMPARE(leido.MODO(), u"C"_qs);
    QCOMPARE(leido.CODPROV(), u"01"_qs);
    QCOMPARE(leido.NOMPROV(), u"ÁLAVA"_qs);
    leido.CSCO(0);
    for (int campo = 0; campo < RegDeclarante::Total; ++campo)
        QCOMPARE(leido.RegistroCompleto()[campo].toString(),
                 d.RegistroCompleto()[campo].toString());

    unico::la<CEntrada>().IDI(u"E"_qs);
    leido.LeerNombreProvincia();
    QCOMPARE(leido.NOMPROV(), u"ARABA"_qs);

    leido.CSCO(csco);
    leido.BorrarDeclarante();
    QCOMPARE(leido.ObtenerCodigoDeclarante(u"A08000143"_qs), 0);
}

void TestRegistros::provincia()
{
    cDecDatos d;
    d.MODO(u"A"_qs);
    QVERIFY(d.enProvinciaPropia());
    d.CODMUN(u"001"_qs);
    d.NOMMUN(u"ABRENZUOLA"_qs);
    d.CambiarProvincia(u"20"_qs, u"VARLENDA"_qs);
    QCOMPARE(d.CODMUN(), u"001"_qs);
    QCOMPARE(d.NOMMUN(), QString());
    d.CambiarProvincia(u"1"_qs, u"ÁLAVA"_qs);
    QVERIFY(!d.enProvinciaPropia());
    QCOMPARE(d.CODPROV(), u"01"_qs);
    QCOMPARE(d.CODMUN(), QString());

    const ListaCodigos provincias = cargarProvincias();
    QCOMPARE(provincias.size(), 52);
    QVERIFY(buscarCodigo(provincias, u"01"_qs) == buscarCodigo(provincias, u"1"_qs));
    QCOMPARE(buscarCodigo(provincias, u"20"_qs)->nombre, u"VARLENDA"_qs);
    QVERIFY(!buscarCodigo(provincias, u"53"_qs) && !buscarCodigo(provincias, u"CL"_qs));
    QCOMPARE(buscarCodigo(cargarVias(), u"CL"_qs)->nombre, u"CALLE"_qs);
    QCOMPARE(buscarCodigo(cargarMunicipios(), u"001"_qs)->nombre, u"ABRENZUOLA"_qs);
    unico::la<CEntrada>().IDI(u"E"_qs);
    QCOMPARE(buscarCodigo(cargarVias(), u"CL"_qs)->nombre, u"KALEA"_qs);
}

void TestRegistros::validacionDeclarante_data()
{
    using enum RegValidacion::Campo;
    QTest::addColumn<int>("campo");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("codigo");
    const auto fila = [](const char *nombre, int campo, const char *valor, int codigo) {
        QTest::newRow(nombre) << campo << QString::fromUtf8(valor) << codigo;
    };
    fila("valid", DNI, "12345678Z", 0);
    fila("foreigner", DNI, "X1234567L", 0);
    fila("wrong letter", DNI, "12345678A", 1);
    fila("no DNI", DNI, "", 1);
    fila("no name", NOMBRE, "", 2);
    fila("no street", DOMICILIO, "", 3);
    fila("no province", CODPROV, "", 4);
    fila("postal code of another province", CODPOS, "48001", 5);
    fila("four figures", CODPOS, "2000", 6);
    fila("not figures", CODPOS, "2000A", 6);
    fila("last three zero", CODPOS, "20000", 7);
    fila("postal code zero", CODPOS, "00000", 8);
    fila("no municipality", CODMUN, "", 9);
    fila("municipality 000", CODMUN, "000", 9);
    fila("no municipality name", NOMMUN, "", 10);
    fila("eight figures", TELEFONO, "94300000", 11);
    fila("no telephone", TELEFONO, "", 12);
}

void TestRegistros::validacionDeclarante()
{
    QFETCH(int, campo);
    QFETCH(QString, valor);
    QFETCH(int, codigo);
    Registro datos{u"12345678Z"_qs, u"SEGUROS"_qs, u"MAYOR"_qs,      u"20"_qs,
                   u"20001"_qs,     u"001"_qs,     u"ABRENZUOLA"_qs, u"943000000"_qs};
    datos[campo] = valor;
    const qint16 obtenido = cDecDatos().ValidarDatosDeclarante(datos);
    QCOMPARE(int(obtenido), codigo);
    if (codigo == 0)
        return;
    QCOMPARE(int(campoValidacionDeclarante(obtenido)), campo);
    QCOMPARE(textoValidacionDeclarante(obtenido), mensajeNumero(240 + codigo));
}

void TestRegistros::dniRepetido()
{
    Entorno::altaDeclarante();
    const qint32 otro = Entorno::altaDeclarante(u"87654321X"_qs, u"SEGUROS DOS"_qs);
    cDecDatos d;
    d.CargarDeclarante(otro);
    d.DNI(u"12345678Z"_qs);
    for (const auto &[csco, codigo] : {std::pair(0, 1), std::pair(otro, 2)}) {
        d.CSCO(csco);
        const qint16 obtenido = d.GuardarDeclarante(d.RegistroCompleto());
        QCOMPARE(int(obtenido), codigo);
        QCOMPARE(textoGuardarDeclarante(obtenido), mensajeNumero(252 + codigo));
        QCOMPARE(d.CSCO(), csco);
    }
    QVERIFY(textoGuardarDeclarante(0).isEmpty() && textoGuardarDeclarante(3).isEmpty());
    cDecLista lista;
    QCOMPARE(lista.CargarDeclarantes().size(), 2);
    QCOMPARE(lista.NUMDECLASEL(), 2);
}

void TestRegistros::propuesta_data()
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
    QTest::newRow("480 after the year's months") << QList{202613, 202606} << 202701;
    QTest::newRow("last of the bounds") << QList{203011} << 203012;
    QTest::newRow("480 of the last year") << QList{203012} << 203013;
    QTest::newRow("beyond the bounds") << QList{203013} << 0;
    QTest::newRow("first of the bounds") << QList{200201} << 200202;
}

static void comprobarPropuesta(const cDecResumen &resumen, int propuesta)
{
    const bool anual = propuesta % 100 == 13;
    QCOMPARE(int(resumen.EJERCICIO()), propuesta / 100);
    QCOMPARE(int(resumen.PERIODO()), anual ? 12 : propuesta % 100);
    QCOMPARE(int(resumen.PERIODICIDAD()), propuesta == 0 ? 0 : anual ? 2 : 1);
    QCOMPARE(int(resumen.TIPOLOGIA()), propuesta == 0 ? 0 : anual ? 2 : 1);
    QCOMPARE(resumen.MODELO(), propuesta == 0 ? QString() : anual ? u"480"_qs : u"430"_qs);
}

void TestRegistros::propuesta()
{
    QFETCH(QList<int>, guardadas);
    QFETCH(int, propuesta);
    const qint32 csco = Entorno::altaDeclarante();
    for (const int cual : guardadas) {
        const bool anual = cual % 100 == 13;
        Entorno::altaDeclaracion(csco, qint16(cual / 100), quint8(anual ? 12 : cual % 100),
                                 anual ? u"480"_qs : u"430"_qs);
    }
    auto &resumen = unico::la<cDecResumen>();
    resumen.TomarDeclarante(csco, u"12345678Z"_qs, u"SEGUROS UNO"_qs);
    resumen.MODO(u"N"_qs);
    comprobarPropuesta(resumen, propuesta);
    resumen.MODO(u"L"_qs);
    QCOMPARE(resumen.MODO(), u"L"_qs);
    comprobarPropuesta(resumen, 0);
    QCOMPARE(resumen.CSCO(), csco);
    QCOMPARE(resumen.CargarDeclaraciones().size(), guardadas.size());
    QCOMPARE(resumen.NUMDECLASEL(), int(guardadas.size()));
}

void TestRegistros::cabecera_data()
{
    QTest::addColumn<int>("ejercicio");
    QTest::addColumn<int>("periodo");
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<int>("codigo");
    QTest::newRow("valid") << 2026 << 2 << u"430"_qs << 0;
    QTest::newRow("annual beside December") << 2026 << 12 << u"480"_qs << 0;
    QTest::newRow("no exercise") << 0 << 1 << u"430"_qs << 1;
    QTest::newRow("no period") << 2026 << 0 << u"430"_qs << 2;
    QTest::newRow("no model") << 2026 << 1 << QString() << 3;
    QTest::newRow("before the bounds") << 2001 << 12 << u"430"_qs << 4;
    QTest::newRow("after the bounds") << 2031 << 1 << u"430"_qs << 4;
    QTest::newRow("lowest") << 2002 << 1 << u"430"_qs << 0;
    QTest::newRow("highest") << 2030 << 12 << u"430"_qs << 0;
    QTest::newRow("stored") << 2026 << 1 << u"430"_qs << 5;
}

void TestRegistros::cabecera()
{
    QFETCH(int, ejercicio);
    QFETCH(int, periodo);
    QFETCH(QString, modelo);
    QFETCH(int, codigo);
    Entorno::altaDeclaracion(Entorno::altaDeclarante(), 2026, 1);
    auto &resumen = unico::la<cDecResumen>();
    resumen.EJERCICIO(qint16(ejercicio));
    resumen.CambiarModelo(modelo);
    resumen.PERIODO(quint8(periodo));
    const qint16 obtenido = resumen.ValidarDatosComunes(resumen.Cabecera());
    QCOMPARE(int(obtenido), codigo);
    const QString texto = textoCabecera(obtenido);
    if (codigo == 4)
        QCOMPARE(texto, msj(Msj::ErrorEjercicioPeriodoFuera, u"2002-01"_qs, u"2030-12"_qs));
    else
        QCOMPARE(texto, codigo == 0 ? QString() : mensajeNumero(254 + codigo));
}

void TestRegistros::cambiarModelo()
{
    cDecResumen resumen;
    resumen.PERIODO(3);
    resumen.CambiarModelo(u"430"_qs);
    QCOMPARE(int(resumen.PERIODO()), 3);
    resumen.CambiarModelo(u"480"_qs);
    QCOMPARE(int(resumen.PERIODO()), 12);
    QCOMPARE(int(resumen.PERIODICIDAD()), 2);
    QCOMPARE(int(resumen.TIPOLOGIA()), 2);
    resumen.CambiarModelo(u"430"_qs);
    QCOMPARE(int(resumen.PERIODO()), 0);
    QCOMPARE(int(resumen.PERIODICIDAD()), 1);
    QCOMPARE(int(resumen.TIPOLOGIA()), 1);
}

void TestRegistros::clases480()
{
    QSet<int> posiciones;
    QSet<int> entradas;
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (int columna = 0; columna < 2; ++columna) {
            posiciones.insert(Reg480::posicion(clase, columna));
            entradas.insert(Reg480::casilla(clase, columna));
        }
    QCOMPARE(posiciones.size(), 46);
    QCOMPARE(propiedadClase(0, 0), u"C01_VIDA"_qs);
    QCOMPARE(propiedadClase(16, 1), u"C50_OTR"_qs);
    QCOMPARE(propiedadClase(22, 1), u"C68_DEC"_qs);
    QCOMPARE(controlClase(0, 0), u"txt01vida"_qs);
    QCOMPARE(paginaClase(10), 1);
    QCOMPARE(paginaClase(11), 2);
    QCOMPARE(Reg480::posicion(10, 0), 10);
    QCOMPARE(Reg480::posicion(0, 1), 11);
    QCOMPARE(Reg480::posicion(11, 0), 22);
    QCOMPARE(Reg480::posicion(22, 1), 45);
    entradas += {73, 76, 79, 80};
    for (int numero = -1; numero <= 100; ++numero) {
        const auto uso = numero < 1 || numero > 81 ? UsoCasilla::Desconocida
            : entradas.contains(numero)            ? UsoCasilla::Entrada
                                                   : UsoCasilla::Calculada;
        QVERIFY2(usoCasilla(numero) == uso, qPrintable(QString::number(numero)));
    }
}

void TestRegistros::calculos430_data()
{
    QTest::addColumn<float>("tipo");
    QTest::addColumn<double>("base");
    QTest::addColumn<double>("cuota");
    QTest::newRow("rounded down") << 6.0F << 123456.0 << 7407.0;
    QTest::newRow("base rounded first") << 5.0F << 9.5 << 1.0;
    QTest::newRow("exact half") << 5.0F << 10.0 << 1.0;
    QTest::newRow("half of a negative") << 5.0F << -10.0 << -1.0;
    QTest::newRow("no base") << 8.0F << 0.0 << 0.0;
    QTest::newRow("single-precision rate") << 7.15F << 1'000'000'000.0 << 71'500'000.0;
    QTest::newRow("741") << 6.0F << 12345.0 << 741.0;
}

void TestRegistros::calculos430()
{
    QFETCH(float, tipo);
    QFETCH(double, base);
    QFETCH(double, cuota);
    cDatos430 d;
    d.TIPOLIQ(tipo);
    d.BASELIQ(base);
    d.BASEREC(1000);
    d.CUOTAREC(-300);
    d.CalcularValores();
    QCOMPARE(d.CUOTALIQ(), cuota);
    QCOMPARE(d.BASETOT(), std::round(base) + 1000);
    QCOMPARE(d.CUOTATOT(), cuota - 300);
}

/// Half away from zero of a whole rate in percent × base / 100, in integers.
static qint64 cuotaEntera(qint64 tipo, qint64 base)
{
    const qint64 producto = tipo * base;
    return (producto + (producto < 0 ? -50 : 50)) / 100;
}

/// Thousands of random returns of both models against integer arithmetic.
void TestRegistros::calculos480()
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

void TestRegistros::noCabe()
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

void TestRegistros::validacion430()
{
    cDatos430 d;
    const auto codigo = [&] { return int(d.ValidarDatos430(d.RegistroValidar())); };
    QCOMPARE(codigo(), 0);
    d.MarcarRectificacion(true);
    QCOMPARE(d.RECTIFICA(), u"X"_qs);
    QCOMPARE(codigo(), 1);
    d.BASEREC(100);
    QCOMPARE(codigo(), 2);
    d.CUOTAREC(-6);
    QCOMPARE(codigo(), 0);
    d.MarcarRectificacion(false);
    QCOMPARE(d.RECTIFICA(), QString());
    QCOMPARE(d.BASEREC(), 0.0);
    QCOMPARE(d.CUOTAREC(), 0.0);
}

void TestRegistros::validacion480()
{
    cDatos480 d;
    const auto codigo = [&] { return int(d.ValidarDatos480(d.RegistroValidar())); };
    QCOMPARE(codigo(), 0);
    d.casilla(67, 1000);
    d.CalcularValores();
    QCOMPARE(codigo(), 2);
    d.casilla(73, 1500);
    d.casilla(76, -500);
    QCOMPARE(codigo(), 0);
    d.casilla(76, -499);
    QCOMPARE(codigo(), 2);
}

void TestRegistros::declaracionesIdaYVuelta()
{
    const qint32 csco = Entorno::altaDeclarante();
    Entorno::altaDeclaracion(csco, 2026, 1);
    auto &resumen = unico::la<cDecResumen>();
    resumen.PERIODO(2);
    cDatos430 mensual;
    mensual.MODO(u"A"_qs);
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
    QCOMPARE(leida.CSDE(), 0);
    leida.MODO(u"C"_qs);
    QCOMPARE(leida.BASELIQ(), 123456.0);
    leida.CSDE(clave);
    leida.MODO(u"A"_qs);
    QCOMPARE(leida.CSDE(), 0);
    QCOMPARE(leida.BASELIQ() + leida.CUOTATOT() + leida.BASETOT(), 0.0);

    Filas mensuales;
    cDatos480 anual;
    QVERIFY(anual.NumDecl430(mensuales));
    QCOMPARE(mensuales.size(), 2);
    resumen.CambiarModelo(u"480"_qs);
    anual.MODO(u"A"_qs);
    QVERIFY(anual.MODIFICADO());
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
    QCOMPARE(releida.RegistroGuardar().size(), 63);
    QCOMPARE(releida.casilla(71), anual.casilla(71));
    resumen.EJERCICIO(2025);
    QVERIFY(!anual.NumDecl430(mensuales));
}

void TestRegistros::borrarDeclaracion()
{
    const qint32 csco = Entorno::altaDeclarante();
    const qint32 primera = Entorno::altaDeclaracion(csco, 2026, 1);
    Entorno::altaDeclaracion(csco, 2026, 12, u"480"_qs);
    auto &resumen = unico::la<cDecResumen>();
    resumen.BorrarDeclaracion(primera, u"430"_qs);
    const Filas quedan = resumen.CargarDeclaraciones();
    QCOMPARE(quedan.size(), 1);
    QCOMPARE(quedan.first().toList().value(FilaDeclaracion::MODELO).toString(), u"480"_qs);
}

void TestRegistros::guardarFallido()
{
    Entorno::altaDeclaracion(Entorno::altaDeclarante(), 2026, 1);
    cDatos430 repetida;
    repetida.BASELIQ(500);
    QVERIFY(repetida.GuardarDeclaracion(repetida.RegistroGuardar()) < 1);
    QCOMPARE(repetida.BASELIQ(), 500.0);
    QCOMPARE(repetida.CSDE(), 0);
    const auto filas = unico::la<cDecResumen>().CargarDeclaraciones();
    QCOMPARE(filas.size(), 1);
    QCOMPARE(filas.first().toList().value(FilaDeclaracion::IMPORTE).toDouble(), 0.0);
}

QTEST_GUILESS_MAIN(TestRegistros)
#include "tst_registros.moc"
