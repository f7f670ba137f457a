#include "core/Textos.h"
#include "core/cFecha.h"
#include "printing/Copias.h"
#include "printing/DocumentoPdf.h"
#include "printing/FechaPresentacion.h"
#include "printing/cImOf.h"

#include <QTest>

class tst_impreso_peticion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { fijarDesplazamientoIdioma(0); }
    void fechas_data();
    void fechas();
    void mensajesFecha();
    void copias_data();
    void copias();
    void nombres();
};

void tst_impreso_peticion::fechas_data()
{
    QTest::addColumn<QString>("idioma");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<qint32>("fecha"); // 0 refused
    const auto caso = [](const QString &idioma, const QString &texto, qint32 fecha) {
        QTest::addRow("%s %s", qPrintable(idioma), qPrintable(texto)) << idioma << texto << fecha;
    };
    caso(u"C"_qs, u"31/01/2016"_qs, 20160131);
    caso(u"C"_qs, u"01/01/2002"_qs, 20020101);
    caso(u"C"_qs, u"31/12/2001"_qs, 0);
    caso(u"C"_qs, u"29/02/2024"_qs, 20240229);
    caso(u"C"_qs, u"29/02/2023"_qs, 0);
    caso(u"C"_qs, u"29/02/2100"_qs, 0);
    caso(u"C"_qs, u"31/12/2099"_qs, 20991231);
    caso(u"C"_qs, u"2016/01/31"_qs, 0);
    caso(u"C"_qs, u"//"_qs, 0);
    caso(u"C"_qs, QString(), 0);
    caso(u"E"_qs, u"2016/01/31"_qs, 20160131);
    caso(u"E"_qs, u"2002/01/01"_qs, 20020101);
    caso(u"E"_qs, u"2001/12/31"_qs, 0);
    caso(u"E"_qs, u"2024/02/29"_qs, 20240229);
    caso(u"E"_qs, u"2023/02/29"_qs, 0);
    caso(u"E"_qs, u"31/01/2016"_qs, 0);
}

void tst_impreso_peticion::fechas()
{
    QFETCH(QString, idioma);
    QFETCH(QString, texto);
    QFETCH(qint32, fecha);
    cFecha formato;
    formato.fecidioma(idioma);
    const auto leida = comprobarFechaPresentacion(texto, formato);
    QCOMPARE(leida.fecha, fecha);
    QCOMPARE(leida.mensaje.isEmpty(), fecha != 0);
}

void tst_impreso_peticion::mensajesFecha()
{
    cFecha formato;
    formato.fecidioma(u"C"_qs);
    auto leida = comprobarFechaPresentacion(u"31/12/2001"_qs, formato);
    QCOMPARE(leida.titulo, u"Error en la Introducción de Datos"_qs);
    QCOMPARE(leida.mensaje, u"La Fecha de presentación no puede ser anterior al 01/01/2002"_qs);
    QCOMPARE(comprobarFechaPresentacion(u"31/02/2016"_qs, formato).mensaje,
             u"La Fecha de presentación introducida no es correcta"_qs);

    fijarDesplazamientoIdioma(10000);
    formato.fecidioma(u"E"_qs);
    leida = comprobarFechaPresentacion(u"2001/12/31"_qs, formato);
    QCOMPARE(leida.titulo, u"Akatsa egon da datuak sartzen"_qs);
    QCOMPARE(leida.mensaje, u"Aurkezpen data ezin da 2002/01/01 baino lehenagokoa izan"_qs);
    QCOMPARE(comprobarFechaPresentacion(u"x"_qs, formato).mensaje, u"Aurkezpen data okerra da"_qs);
}

void tst_impreso_peticion::copias_data()
{
    QTest::addColumn<QStringList>("peticion"); // MODELO, TIPOIMP, COPIAADM, COPIAINT
    QTest::addColumn<QStringList>("copias");
    const QString x = u"X"_qs;
    QTest::newRow("both") << QStringList{u"430"_qs, u"O"_qs, x, x}
                          << QStringList{u"AD"_qs, u"IT"_qs};
    QTest::newRow("adm") << QStringList{u"480"_qs, u"O"_qs, x, {}} << QStringList{u"AD"_qs};
    QTest::newRow("int") << QStringList{u"480"_qs, u"O"_qs, {}, x} << QStringList{u"IT"_qs};
    QTest::newRow("none") << QStringList{u"430"_qs, u"O"_qs, {}, {}} << QStringList();
    QTest::newRow("draft") << QStringList{u"430"_qs, u"B"_qs, {}, {}} << QStringList{u"BO"_qs};
    QTest::newRow("other model") << QStringList{u"999"_qs, u"O"_qs, x, x} << QStringList();
}

void tst_impreso_peticion::copias()
{
    QFETCH(QStringList, peticion);
    QFETCH(QStringList, copias);
    cImOf p;
    p.MODELO(peticion[0]);
    p.TIPOIMP(peticion[1]);
    p.COPIAADM(peticion[2]);
    p.COPIAINT(peticion[3]);
    QCOMPARE(copiasPedidas(p), copias);
    if (peticion[0] != u"999")
        QCOMPARE(p.HayCopias(), !copias.isEmpty());
}

void tst_impreso_peticion::nombres()
{
    const QString nif = u"A58818501"_qs;
    const QStringList ambas{u"AD"_qs, u"IT"_qs};
    QCOMPARE(nombrePdf(u"430"_qs, 2026, 1, nif, {u"AD"_qs}), u"430_2026-01_A58818501_AD.pdf"_qs);
    QCOMPARE(nombrePdf(u"480"_qs, 2026, 12, nif, ambas), u"480_2026_A58818501_AD-IT.pdf"_qs);
    QCOMPARE(nombrePdf(u"480"_qs, 2026, 12, u"../A"_qs, {u"BO"_qs}), u"480_2026_.._A_BO.pdf"_qs);

    const QString elegida = u"/x/430_2026-01_A_AD-IT.pdf"_qs;
    QCOMPARE(rutasPdf(elegida, ambas, true), QStringList{elegida});
    QCOMPARE(rutasPdf(elegida, ambas, false),
             (QStringList{u"/x/430_2026-01_A_AD.pdf"_qs, u"/x/430_2026-01_A_IT.pdf"_qs}));
    QCOMPARE(rutasPdf(u"/x/otro"_qs, ambas, false),
             (QStringList{u"/x/otro_AD.pdf"_qs, u"/x/otro_IT.pdf"_qs}));
}

QTEST_GUILESS_MAIN(tst_impreso_peticion)
#include "tst_impreso_peticion.moc"
