#include "core/Periodos.h"
#include "core/Textos.h"
#include "resources/Mensajes.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

class TestTextos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fijarDesplazamientoIdioma(0); }
    void cleanupTestCase() { fijarDesplazamientoIdioma(0); }
    void numeros();
    void completos();
    void huecosIguales();
    void conocidos_data();
    void conocidos();
    void idiomas();
    void meses();
};

void TestTextos::numeros()
{
    QSet<int> deLaTabla;
    QSet<QString> nombres;
    for (const Mensaje &mensaje : mensajes()) {
        if (mensaje.numero <= 325)
            deLaTabla.insert(mensaje.numero);
        QVERIFY2(mensaje.numero <= 325 || mensaje.numero > 1000, qPrintable(mensaje.nombre));
        nombres.insert(mensaje.nombre);
    }
    QCOMPARE(deLaTabla.size(), 223);
    QCOMPARE(*std::ranges::min_element(deLaTabla), 101);
    QCOMPARE(*std::ranges::max_element(deLaTabla), 325);
    QCOMPARE(nombres.size(), mensajes().size());
    const auto repetido
        = std::ranges::adjacent_find(mensajes(), std::ranges::equal_to(), &Mensaje::numero);
    QVERIFY2(repetido == mensajes().end(), qPrintable(repetido->nombre));
}

void TestTextos::completos()
{
    for (const Mensaje &mensaje : mensajes()) {
        QVERIFY2(!mensaje.castellano.trimmed().isEmpty(), qPrintable(mensaje.nombre));
        QVERIFY2(!mensaje.euskera.trimmed().isEmpty(), qPrintable(mensaje.nombre));
        QCOMPARE(mensajeNumero(mensaje.numero), mensaje.castellano);
        QCOMPARE(mensajeNumero(mensaje.numero + 10000), mensaje.euskera);
    }
    QCOMPARE(mensajeNumero(240), QString());
    QCOMPARE(mensajeNumero(10240), QString());
}

static QSet<QString> huecos(const QString &texto)
{
    static const QRegularExpression hueco(u"%[0-9]"_qs);
    QSet<QString> hallados;
    for (auto i = hueco.globalMatch(texto); i.hasNext();)
        hallados.insert(i.next().captured());
    return hallados;
}

void TestTextos::huecosIguales()
{
    for (const Mensaje &mensaje : mensajes())
        QVERIFY2(huecos(mensaje.castellano) == huecos(mensaje.euskera), qPrintable(mensaje.nombre));
    // a value that looks like a placeholder stays as it is
    QCOMPARE(msj(Msj::CliDeclaranteAlta, u"%2"_qs, u"X"_qs), u"Declarante dado de alta: %2 - X"_qs);
}

void TestTextos::conocidos_data()
{
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("castellano");
    QTest::addColumn<QString>("euskera");
    const auto fila = [](int numero, const char *castellano, const char *euskera) {
        QTest::addRow("%d", numero)
            << numero << QString::fromUtf8(castellano) << QString::fromUtf8(euskera);
    };
    fila(113, "Ostrel de seguros", "Aseguruen Ostrel");
    fila(159, "Declaración - Liquidación 430", "Aitorpen - Likidazioa 430");
    fila(182, "Siguiente", "Ondorengoa");
    fila(183, "Ir a la pantalla siguiente", "Joan ondorengo pantailara");
    fila(184, "Declaración Resumen Anual (2 de 3)", "Urteko laburpen-aitorpena (2/3)");
    fila(200, "Declaración Resumen Anual (3 de 3)", "Urteko laburpen-aitorpena (3/3)");
    fila(241, "El campo DNI-CIF es erróneo o carece de dígito de control.",
         "NA-IFK eremua okerra da edo ez du kontrol digiturik");
    fila(242, "La casilla Razón Social debe tener algún valor",
         "Sozietatearen Izena laukian balioren bat jarri behar da");
    fila(243, "La casilla Domicilio debe tener algún valor",
         "Helbidea laukian balioren bat jarri behar da");
    fila(244, "La casilla Código de Provincia debe tener algún valor.",
         "Probintzia kodeari buruzko laukian balioren bat jarri behar da");
    fila(245, "El Código de Provincia y el Código Postal no coinciden",
         "Probintzia kodea eta Posta kodea ez datoz bat");
    fila(246, "El Código Postal debe ser un número de 5 cifras.",
         "Posta kodeak bost zifrako zenbakia izan behar du");
    fila(247, "Los tres últimos dígitos del Código Postal deben ser distintos de cero.",
         "Posta kodearen azken hiru digituak zeroz bestekoak izango dira");
    fila(248, "El Código Postal debe ser distinto de cero.",
         "Posta kodea zeroz bestekoa izango da");
    fila(249, "La casilla Código de Municipio debe tener algún valor.",
         "Udalerri kodeari buruzko laukian balioren bat jarri behar da");
    fila(250, "La casilla Municipio debe tener algún valor.",
         "Udalerria laukian balioren bat jarri behar da");
    fila(251, "El Teléfono debe ser un número de 9 cifras",
         "Telefonoak 9 zifrako zenbakia izan behar du");
    fila(252, "La casilla Teléfono debe tener algún valor.",
         "Telefono laukian balioren bat jarri behar da");
    fila(253,
         "No se puede dar de alta al nuevo declarante. Ya existe un declarante con ese nuevo DNI",
         "Ezin da sartu aitortzaile berria. NA hori duen beste aitortzaile bat dago");
    fila(254, "Ya existe un declarante con ese DNI, no se pueden modificar los datos",
         "Ezin dira aldatu datuak. Na hori duen beste aitortzaile bat dago");
    fila(271, "La casillas Base imponible y Cuota de Rectificación no pueden ser 0",
         "Oinarri ezargarriaren eta zuzenketa kuotaren laukien balioa ezin da zero izan");
    fila(272, "La casilla Total No Exento debe ser igual a la suma de las bases imponibles",
         "Salbuetsi gabeko guztizkoa oinarri ezargarrien batura izan behar da");
    fila(297, "No existen declaraciones mensuales para este ejercicio",
         "Ez dago hileko aitorpenik ekitaldi honetan");
}

void TestTextos::conocidos()
{
    QFETCH(int, numero);
    QFETCH(QString, castellano);
    QFETCH(QString, euskera);
    QCOMPARE(mensajeNumero(numero), castellano);
    QCOMPARE(mensajeNumero(numero + 10000), euskera);
}

void TestTextos::idiomas()
{
    QCOMPARE(elegir(u"sí"_qs, u"bai"_qs), u"sí"_qs);
    QCOMPARE(msjDesde(Msj::ErrorDni, 1), u"La casilla Razón Social debe tener algún valor"_qs);
    fijarDesplazamientoIdioma(10000);
    QCOMPARE(elegir(u"sí"_qs, u"bai"_qs), u"bai"_qs);
    QCOMPARE(msj(Msj::RamoVida), u"Bizi aseguruak"_qs);
    QCOMPARE(palabraPeriodicidad(PeriodicidadAnual), u"URTEKOA"_qs);
    QCOMPARE(textoPeriodo(PeriodicidadMensual, 2), u"OTSAILA"_qs);
}

void TestTextos::meses()
{
    QStringList castellano;
    QStringList euskera;
    for (int mes = 1; mes <= 12; ++mes) {
        fijarDesplazamientoIdioma(0);
        castellano += nombreMes(mes);
        fijarDesplazamientoIdioma(10000);
        euskera += nombreMes(mes);
    }
    QCOMPARE(castellano.join(u' '),
             u"ENERO FEBRERO MARZO ABRIL MAYO JUNIO JULIO AGOSTO SEPTIEMBRE OCTUBRE NOVIEMBRE "
             u"DICIEMBRE"_qs);
    QCOMPARE(euskera.join(u' '),
             u"URTARRILA OTSAILA MARTXOA APIRILA MAIATZA EKAINA UZTAILA ABUZTUA IRAILA URRIA "
             u"AZAROA ABENDUA"_qs);
    QCOMPARE(nombreMes(0) + nombreMes(13) + nombreMes(-1), QString());
    QCOMPARE(palabraPeriodicidad(PeriodicidadMensual), QString());
}

QTEST_APPLESS_MAIN(TestTextos)
#include "tst_textos.moc"
