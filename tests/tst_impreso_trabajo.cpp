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

using namespace Qt::StringLiterals;
using namespace impreso;

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
             {std::pair{u"C"_s, u"31/01/2026"_s}, {u"E"_s, u"2026/01/31"_s}}) {
            const Entorno entorno(idioma);
            pedirImpresion(u"430"_s);
            // a header that says otherwise is of no account
            unico::la<cDecResumen>().PERIODICIDAD(2);
            TrabajoImpresion trabajo(unico::la<cImOf>());
            const QStringList impreso = textos(trabajo, u"AD"_s);
            // totals: 1234.56 + 1000.00, 8 %, 98.76 + 80.00
            for (const QString &esperado :
                 {u"2.234,56"_s, u"8,00"_s, u"URTARRILA / ENERO"_s, u"A58818501"_s,
                  u"SEGUROS UNO"_s, u"VARLENDA"_s, u"2026"_s, fecha, u"943000000"_s, u"CL MAYOR"_s})
                QVERIFY2(impreso.contains(esperado), qPrintable(esperado));
            QCOMPARE(impreso.count(u"178,76"_s), 2); // line 3 and the slip
            QCOMPARE(trabajo.nombreFichero(trabajo.copias()), u"430_2026-01_A58818501_AD-IT.pdf"_s);
        }
    }

    /// The records of a screen that shows the return stay as they are.
    void modelo480()
    {
        const Entorno entorno;
        const qint32 csde = pedirImpresion(u"480"_s);
        auto &figuras = unico::la<cDatos480>();
        figuras.CSDE(csde);
        figuras.CargarDeclaracion(csde);
        const Registro antes = figuras.RegistroGuardar();
        const Registro cabeceraAntes = unico::la<cDecResumen>().Cabecera();
        TrabajoImpresion trabajo(unico::la<cImOf>());
        const QStringList impreso = textos(trabajo, u"IT"_s);
        QCOMPARE(impreso.count(u"10.000,00"_s), 3); // boxes 01, 70, 73
        QCOMPARE(impreso.count(u"2.345,67"_s), 2); // 02, 71
        QCOMPARE(impreso.count(u"12.345,67"_s), 2); // 03, 72
        QCOMPARE(impreso.count(u"800,00"_s), 2); // 75, 81
        QVERIFY(impreso.contains(u"URTEKOA / ANUAL"_s));
        QCOMPARE(trabajo.nombreFichero({u"IT"_s}), u"480_2026_A58818501_IT.pdf"_s);
        QCOMPARE(figuras.RegistroGuardar(), antes);
        QCOMPARE(unico::la<cDecResumen>().Cabecera(), cabeceraAntes);
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
        auto valores = tomarValores430({});
        QCOMPARE(valores.texto(Valor::Municipio), u"MUNICIPIO TECLEADO"_s);
        QCOMPARE(valores.texto(Valor::Provincia), u"LA DEL REGISTRO"_s);
        QCOMPARE(valores.texto(Valor::Numero), QString());
        QCOMPARE(valores.texto(Valor::Piso), QString());

        d.CODPROV(u"20"_s);
        valores = tomarValores430({});
        QCOMPARE(valores.texto(Valor::Provincia), u"VARLENDA"_s);
        QVERIFY(valores.texto(Valor::Municipio) != u"MUNICIPIO TECLEADO");
        d.CODMUN(u"998"_s); // unknown to the service
        QCOMPARE(tomarValores430({}).texto(Valor::Municipio), u"MUNICIPIO TECLEADO"_s);
    }

    void titularDeHacienda()
    {
        const Entorno entorno(u"E"_s);
        pedirImpresion(u"430"_s);
        TrabajoImpresion trabajo(unico::la<cImOf>());
        const QStringList impreso = textos(trabajo, u"AD"_s);
        QVERIFY(impreso.contains(u"Ogasun eta Finantza Saila"_s));
        QVERIFY(impreso.contains(u"Departamento de Hacienda y Finanzas"_s));
    }

    void documentos()
    {
        const Entorno entorno;
        pedirImpresion(u"430"_s);
        TrabajoImpresion trabajo(unico::la<cImOf>());
        QCOMPARE(trabajo.copias(), (QStringList{u"AD"_s, u"IT"_s}));
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
        QCOMPARE(TrabajoImpresion(unico::la<cImOf>()).copias(), QStringList{u"BO"_s});
    }

    void noExiste()
    {
        const Entorno entorno;
        pedirImpresion(u"430"_s);
        unico::la<cImOf>().CSDE(9999);
        QVERIFY_EXCEPTION_THROWN(TrabajoImpresion(unico::la<cImOf>()), std::exception);
    }
};

QTEST_MAIN(tst_impreso_trabajo)
#include "tst_impreso_trabajo.moc"
