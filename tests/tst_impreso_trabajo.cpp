#include "declarants/cDecResumen.h"
#include "printing/Copias.h"
#include "printing/TomarValores.h"
#include "printing/TrabajoImpresion.h"
#include "support/DeclaracionesPrueba.h"
#include "support/GrabadorDibujo.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

namespace {

QStringList textos(TrabajoImpresion &trabajo, const QString &copia)
{
    GrabadorDibujo g;
    QPainter pintor(&g);
    trabajo.dibujar(pintor, copia);
    QStringList lista;
    for (const auto &t : std::as_const(g.textos))
        lista << t.texto;
    return lista;
}

} // namespace

/// From stored returns to documents.
class tst_impreso_trabajo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelo430()
    {
        for (const auto &[idioma, fecha] :
             {std::pair{u"C"_qs, u"31/01/2026"_qs}, {u"E"_qs, u"2026/01/31"_qs}}) {
            const Entorno entorno(idioma);
            pedirImpresion(u"430"_qs);
            // a header that says otherwise is of no account
            unico::la<cDecResumen>().PERIODICIDAD(2);
            TrabajoImpresion trabajo(unico::la<cImOf>());
            const QStringList impreso = textos(trabajo, u"AD"_qs);
            // totals: 1234.56 + 1000.00, 8 %, 98.76 + 80.00
            for (const QString &esperado : {u"2.234,56"_qs, u"8,00"_qs, u"URTARRILA / ENERO"_qs,
                                            u"A58818501"_qs, u"SEGUROS UNO"_qs, u"VARLENDA"_qs,
                                            u"2026"_qs, fecha, u"943000000"_qs, u"CL MAYOR"_qs})
                QVERIFY2(impreso.contains(esperado), qPrintable(esperado));
            QCOMPARE(impreso.count(u"178,76"_qs), 2); // line 3 and the slip
            QCOMPARE(trabajo.nombreFichero(trabajo.copias()),
                     u"430_2026-01_A58818501_AD-IT.pdf"_qs);
        }
    }

    /// The records of a screen that shows the return stay as they are.
    void modelo480()
    {
        const Entorno entorno;
        const qint32 csde = pedirImpresion(u"480"_qs);
        auto &figuras = unico::la<cDatos480>();
        figuras.CSDE(csde);
        figuras.CargarDeclaracion(csde);
        const Registro antes = figuras.RegistroGuardar();
        const Registro cabeceraAntes = unico::la<cDecResumen>().Cabecera();
        TrabajoImpresion trabajo(unico::la<cImOf>());
        const QStringList impreso = textos(trabajo, u"IT"_qs);
        QCOMPARE(impreso.count(u"10.000,00"_qs), 3); // boxes 01, 70, 73
        QCOMPARE(impreso.count(u"2.345,67"_qs), 2); // 02, 71
        QCOMPARE(impreso.count(u"12.345,67"_qs), 2); // 03, 72
        QCOMPARE(impreso.count(u"800,00"_qs), 2); // 75, 81
        QVERIFY(impreso.contains(u"URTEKOA / ANUAL"_qs));
        QCOMPARE(trabajo.nombreFichero({u"IT"_qs}), u"480_2026_A58818501_IT.pdf"_qs);
        QCOMPARE(figuras.RegistroGuardar(), antes);
        QCOMPARE(unico::la<cDecResumen>().Cabecera(), cabeceraAntes);
    }

    void otraProvincia()
    {
        const Entorno entorno;
        auto &d = unico::la<cDecDatos>();
        d.MODO(u"A"_qs);
        d.CODPROV(u"48"_qs);
        d.NOMPROV(u"LA DEL REGISTRO"_qs);
        d.CODMUN(u"001"_qs);
        d.NOMMUN(u"MUNICIPIO TECLEADO"_qs);
        auto valores = tomarValores430({});
        QCOMPARE(valores.texto(Valor::Municipio), u"MUNICIPIO TECLEADO"_qs);
        QCOMPARE(valores.texto(Valor::Provincia), u"LA DEL REGISTRO"_qs);
        QCOMPARE(valores.texto(Valor::Numero), QString());
        QCOMPARE(valores.texto(Valor::Piso), QString());

        d.CODPROV(u"20"_qs);
        valores = tomarValores430({});
        QCOMPARE(valores.texto(Valor::Provincia), u"VARLENDA"_qs);
        QVERIFY(valores.texto(Valor::Municipio) != u"MUNICIPIO TECLEADO");
        d.CODMUN(u"998"_qs); // unknown to the service
        QCOMPARE(tomarValores430({}).texto(Valor::Municipio), u"MUNICIPIO TECLEADO"_qs);
    }

    void titularDeHacienda()
    {
        const Entorno entorno(u"E"_qs);
        pedirImpresion(u"430"_qs);
        TrabajoImpresion trabajo(unico::la<cImOf>());
        const QStringList impreso = textos(trabajo, u"AD"_qs);
        QVERIFY(impreso.contains(u"Ogasun eta Finantza Saila"_qs));
        QVERIFY(impreso.contains(u"Departamento de Hacienda y Finanzas"_qs));
    }

    void documentos()
    {
        const Entorno entorno;
        pedirImpresion(u"430"_qs);
        TrabajoImpresion trabajo(unico::la<cImOf>());
        QCOMPARE(trabajo.copias(), (QStringList{u"AD"_qs, u"IT"_qs}));
        QBuffer memoria;
        memoria.open(QIODevice::WriteOnly);
        QPdfWriter dispositivo(&memoria);
        prepararPagina(dispositivo);
        QList<qsizetype> comienzos;
        QVERIFY(trabajo.imprimir(dispositivo, [&] { comienzos += memoria.size(); }));
        QCOMPARE(comienzos.size(), 2);
        QCOMPARE(memoria.data().count("%%EOF"), 2);
        QVERIFY(comienzos[1] > 10000);
        // all in one
        const QByteArray junto = trabajo.pdf(trabajo.copias());
        QCOMPARE(junto.count("%%EOF"), 1);
        QVERIFY(junto.contains("/Count 2"));
        unico::la<cImOf>().PedirBorrador();
        QCOMPARE(TrabajoImpresion(unico::la<cImOf>()).copias(), QStringList{u"BO"_qs});
    }

    void noExiste()
    {
        const Entorno entorno;
        pedirImpresion(u"430"_qs);
        unico::la<cImOf>().CSDE(9999);
        QVERIFY_EXCEPTION_THROWN(TrabajoImpresion(unico::la<cImOf>()), std::exception);
    }
};

QTEST_MAIN(tst_impreso_trabajo)
#include "tst_impreso_trabajo.moc"
