#include "core/Textos.h"
#include "core/cFecha.h"
#include "printing/DocumentoPdf.h"
#include "printing/cImOf.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TstImpresoPeticion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { fijarIdioma(Idioma::Castellano); }

    /// Reading is the date's; here, the earliest day and what is said of a refused one.
    void fechas()
    {
        const auto comprobar = [](const QString &idioma, const QString &texto, qint32 fecha,
                                  const QString &mensaje) {
            cFecha formato;
            formato.fecidioma(idioma);
            fijarIdioma(idioma == u"E" ? Idioma::Euskera : Idioma::Castellano);
            const auto leida = comprobarFechaPresentacion(texto, formato);
            QCOMPARE(leida.fecha, fecha);
            QCOMPARE(leida.mensaje, mensaje);
            QCOMPARE(leida.titulo, fecha ? QString() : msj(Msj::TituloErrorDatosFecha));
        };
        comprobar(u"C"_s, u"01/01/2002"_s, 20020101, {});
        comprobar(u"C"_s, u"31/12/2001"_s, 0,
                  u"La Fecha de presentación no puede ser anterior al 01/01/2002"_s);
        comprobar(u"C"_s, u"29/02/2023"_s, 0,
                  u"La Fecha de presentación introducida no es correcta"_s);
        comprobar(u"E"_s, u"2002/01/01"_s, 20020101, {});
        comprobar(u"E"_s, u"2001/12/31"_s, 0,
                  u"Aurkezpen data ezin da 2002/01/01 baino lehenagokoa izan"_s);
        comprobar(u"E"_s, u"31/01/2016"_s, 0, u"Aurkezpen data okerra da"_s);
    }

    void copias()
    {
        // model, kind, copy for the administration, for the payer: what is printed
        for (const QString &caso : u"430|O|X|X|AD IT,480|O|X||AD,480|O||X|IT,430|O|||,430|B|||BO,"
                                   "999|O|X|X|"_s.split(u',')) {
            const QStringList partes = caso.split(u'|');
            cImOf p;
            p.MODELO(partes[0]);
            p.TIPOIMP(partes[1]);
            p.COPIAADM(partes[2]);
            p.COPIAINT(partes[3]);
            QCOMPARE(copiasPedidas(p).join(u' '), partes[4]);
        }
    }

    void nombres()
    {
        const QStringList ambas{u"AD"_s, u"IT"_s};
        QCOMPARE(nombrePdf(u"480"_s, 2026, 12, u"../A"_s, {u"BO"_s}), u"480_2026_.._A_BO.pdf"_s);

        const QString elegida = u"/x/430_2026-01_A_AD-IT.pdf"_s;
        QCOMPARE(rutasPdf(elegida, ambas, false),
                 (QStringList{u"/x/430_2026-01_A_AD.pdf"_s, u"/x/430_2026-01_A_IT.pdf"_s}));
        QCOMPARE(rutasPdf(u"/x/otro"_s, ambas, false),
                 (QStringList{u"/x/otro_AD.pdf"_s, u"/x/otro_IT.pdf"_s}));
    }
};

QTEST_GUILESS_MAIN(TstImpresoPeticion)
#include "tst_impreso_peticion.moc"
