#include "core/Importe.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/TrabajoImpresion.h"
#include "printing/ValoresImpreso.h"
#include "support/DeclaracionesPrueba.h"
#include "support/GrabadorDibujo.h"

#include <QPainter>
#include <QTest>

using namespace impreso;

namespace {

/// What is filled in on a copy, or printed on it in other colours, in reading order of the blocks.
QString textos(TrabajoImpresion &trabajo, const QString &copia, bool valores)
{
    GrabadorDibujo g;
    QPainter pintor(&g);
    trabajo.dibujar(pintor, copia);
    QStringList lista;
    for (const auto &t : std::as_const(g.textos))
        if ((t.color == Qt::black) == valores && t.texto != u"%")
            lista << t.texto;
    return lista.join(u'|');
}

/// "1.001,01|2.002,02" for {1, 2}.
QString multiplos(std::initializer_list<int> veces)
{
    QStringList lista;
    for (const int n : veces)
        lista << textoImporte(n * 100101.0);
    return lista.join(u'|');
}

} // namespace

/// From stored returns to documents.
class TstImpresoTrabajo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelo430()
    {
        for (const auto &[idioma, fecha] :
             {std::pair{u"C"_s, u"31/01/2026"_s}, {u"E"_s, u"2026/01/31"_s}}) {
            const Entorno entorno(idioma);
            pedirImpresion(u"430"_s);
            // a header that says otherwise is of no account
            unico::la<cDecResumen>().PERIODICIDAD(2);
            TrabajoImpresion trabajo(unico::la<cImOf>());
            // the totals of the return, and the slip's amount
            QCOMPARE(
                textos(trabajo, u"AD"_s, true),
                u"A58818501|ASEGURADORA UNO, S.A.|AV DEL PUERTO|123 B|ESC. E 4 DCH|ABRENZUOLA|"
                "20001|VARLENDA|943111222|2026|URTARRILA / ENERO|5.555,55|6,00|6.666,66|%1|"
                "A58818501|ASEGURADORA UNO, S.A.|2026|URTARRILA / ENERO|6.666,66"_s.arg(fecha));
            QCOMPARE(trabajo.nombreFichero(trabajo.copias()), u"430_2026-01_A58818501_AD-IT.pdf"_s);
            const QString impreso = textos(trabajo, u"AD"_s, false);
            QVERIFY(impreso.contains(u"Ogasun eta Finantza Saila|"_s)
                    && impreso.contains(u"Departamento de Hacienda y Finanzas|"_s));
            QCOMPARE(nombreMes(1), idioma == u"E" ? u"URTARRILA"_s : u"ENERO"_s);
        }
    }

    /// The records of a screen that shows the return stay as they are.
    void modelo480()
    {
        const Entorno entorno(u"E"_s);
        const qint32 csde = pedirImpresion(u"480"_s);
        auto &figuras = unico::la<cDatos480>();
        figuras.CSDE(csde);
        figuras.CargarDeclaracion(csde);
        const Registro antes = figuras.RegistroGuardar();
        const Registro cabeceraAntes = unico::la<cDecResumen>().Cabecera();
        TrabajoImpresion trabajo(unico::la<cImOf>());
        QStringList clases;
        for (int fila = 0; fila < 23; ++fila) {
            const int primera = fila < 11 ? fila + 1 : fila + 12;
            const int segunda = primera + (fila < 11 ? 11 : 12);
            clases << multiplos({primera, segunda, primera + segunda});
        }
        clases << multiplos({47, 673, 720, 48}) << u"7,15"_s << multiplos({53, 49}) << u"6,00"_s
               << multiplos({54, 50, 55, 56}) << u"2026/01/31"_s;
        QCOMPARE(textos(trabajo, u"IT"_s, true),
                 u"2026|URTEKOA / ANUAL|A58818501|ASEGURADORA UNO, S.A.|AV DEL PUERTO|123 B|"
                 "ESC. E 4 DCH|943111222|ABRENZUOLA|20001|VARLENDA|"_s
                     + clases.join(u'|'));
        QCOMPARE(trabajo.nombreFichero({u"IT"_s}), u"480_2026_A58818501_IT.pdf"_s);
        QCOMPARE(figuras.RegistroGuardar(), antes);
        QCOMPARE(unico::la<cDecResumen>().Cabecera(), cabeceraAntes);
        QCOMPARE(nombreMes(1), u"URTARRILA"_s);
    }

    void otraProvincia()
    {
        const Entorno entorno;
        auto &d = unico::la<cDecDatos>();
        d.MODO(u"A"_s);
        d.CODPROV(u"48"_s);
        d.NOMPROV(u"LA DEL REGISTRO"_s);
        d.CODMUN(u"001"_s);
        d.NOMMUN(u"MUNICIPIO TECLEADO"_s);
        const auto domicilio = [] {
            const auto valores = tomarValores430({});
            QStringList partes;
            for (const auto parte :
                 {Valor::Municipio, Valor::Provincia, Valor::Numero, Valor::Piso})
                partes += valores.texto(parte);
            return partes.join(u'|');
        };
        QCOMPARE(domicilio(), u"MUNICIPIO TECLEADO|LA DEL REGISTRO||"_s);
        d.CODPROV(u"20"_s);
        QCOMPARE(domicilio(), u"ABRENZUOLA|VARLENDA||"_s);
        d.CODMUN(u"998"_s); // unknown to the service
        QCOMPARE(domicilio(), u"MUNICIPIO TECLEADO|VARLENDA||"_s);
    }
};

QTEST_MAIN(TstImpresoTrabajo)
#include "tst_impreso_trabajo.moc"
