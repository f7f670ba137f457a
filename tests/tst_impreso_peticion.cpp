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

    /// Reading is the date's; here, the earliest day and what is said of a refused one.
    void fechas_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<qint32>("fecha"); // 0 refused
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("C") << u"29/02/2024"_qs << 20240229 << QString();
        QTest::newRow("C first") << u"01/01/2002"_qs << 20020101 << QString();
        QTest::newRow("C early") << u"31/12/2001"_qs << 0
                                 << u"La Fecha de presentación no puede ser anterior al "
                                    "01/01/2002"_qs;
        QTest::newRow("C wrong") << u"29/02/2023"_qs << 0
                                 << u"La Fecha de presentación introducida no es correcta"_qs;
        QTest::newRow("E first") << u"2002/01/01"_qs << 20020101 << QString();
        QTest::newRow("E early") << u"2001/12/31"_qs << 0
                                 << u"Aurkezpen data ezin da 2002/01/01 baino lehenagokoa izan"_qs;
        QTest::newRow("E wrong") << u"31/01/2016"_qs << 0 << u"Aurkezpen data okerra da"_qs;
    }
    void fechas()
    {
        QFETCH(QString, texto);
        QFETCH(qint32, fecha);
        QFETCH(QString, mensaje);
        cFecha formato;
        formato.fecidioma(QString::fromLatin1(QTest::currentDataTag()).first(1));
        fijarDesplazamientoIdioma(formato.fecidioma() == u"E" ? 10000 : 0);
        const auto leida = comprobarFechaPresentacion(texto, formato);
        QCOMPARE(leida.fecha, fecha);
        QCOMPARE(leida.mensaje, mensaje);
        if (fecha == 0)
            QCOMPARE(leida.titulo, msj(Msj::TituloErrorDatosFecha));
    }

    void copias()
    {
        const auto pedidas = [](const QString &modelo, const QString &tipo, const QString &adm,
                                const QString &inter) {
            cImOf p;
            p.MODELO(modelo);
            p.TIPOIMP(tipo);
            p.COPIAADM(adm);
            p.COPIAINT(inter);
            return copiasPedidas(p).join(u' ');
        };
        const QString x = u"X"_qs;
        QCOMPARE(pedidas(u"430"_qs, u"O"_qs, x, x), u"AD IT"_qs);
        QCOMPARE(pedidas(u"480"_qs, u"O"_qs, x, {}), u"AD"_qs);
        QCOMPARE(pedidas(u"480"_qs, u"O"_qs, {}, x), u"IT"_qs);
        QCOMPARE(pedidas(u"430"_qs, u"O"_qs, {}, {}), QString());
        QCOMPARE(pedidas(u"430"_qs, u"B"_qs, {}, {}), u"BO"_qs);
        QCOMPARE(pedidas(u"999"_qs, u"O"_qs, x, x), QString());
    }

    void nombres()
    {
        const QString nif = u"A58818501"_qs;
        const QStringList ambas{u"AD"_qs, u"IT"_qs};
        QCOMPARE(nombrePdf(u"430"_qs, 2026, 1, nif, {u"AD"_qs}),
                 u"430_2026-01_A58818501_AD.pdf"_qs);
        QCOMPARE(nombrePdf(u"480"_qs, 2026, 12, nif, ambas), u"480_2026_A58818501_AD-IT.pdf"_qs);
        QCOMPARE(nombrePdf(u"480"_qs, 2026, 12, u"../A"_qs, {u"BO"_qs}),
                 u"480_2026_.._A_BO.pdf"_qs);

        const QString elegida = u"/x/430_2026-01_A_AD-IT.pdf"_qs;
        QCOMPARE(rutasPdf(elegida, ambas, true), QStringList{elegida});
        QCOMPARE(rutasPdf(elegida, ambas, false),
                 (QStringList{u"/x/430_2026-01_A_AD.pdf"_qs, u"/x/430_2026-01_A_IT.pdf"_qs}));
        QCOMPARE(rutasPdf(u"/x/otro"_qs, ambas, false),
                 (QStringList{u"/x/otro_AD.pdf"_qs, u"/x/otro_IT.pdf"_qs}));
    }
};

QTEST_GUILESS_MAIN(tst_impreso_peticion)
#include "tst_impreso_peticion.moc"
