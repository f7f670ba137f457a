#include "printing/Lienzo.h"
#include "printing/cImOf.h"
#include "support/ValoresPrueba.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

/// Where things are drawn, read from the drawing itself.
class TstImpresoDibujo : public QObject
{
    Q_OBJECT

private:
    static constexpr double Tolerancia = 0.5;

    static void grabar(GrabadorDibujo &grabador, const QString &modelo, const ValoresImpreso &v,
                       const QString &copia = CopiaBorrador.toString())
    {
        QPainter pintor(&grabador);
        valoresPrueba::dibujar(pintor, modelo, v, copia);
    }
    static bool esMarca(const GrabadorDibujo::Texto &t) { return t.color.alpha() < 255; }
    static bool esValor(const GrabadorDibujo::Texto &t) { return t.color == Qt::black; }
    static void modelos()
    {
        QTest::addColumn<QString>("modelo");
        QTest::newRow("430") << u"430"_s;
        QTest::newRow("480") << u"480"_s;
    }

private Q_SLOTS:
    void paginaEntera_data() { modelos(); }

    /// Every text of the page at its place, against a list kept with the tests.
    void paginaEntera()
    {
        QFETCH(QString, modelo);
        GrabadorDibujo g;
        grabar(g, modelo, valoresPrueba::lleno(), CopiaAdministracion.toString());
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/%1.txt").arg(modelo);
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            valoresPrueba::guardarTextos(ruta, g.textos);
        const auto esperados = valoresPrueba::leerTextos(ruta);
        for (qsizetype i = 0; i < std::min(esperados.size(), g.textos.size()); ++i) {
            const auto &hecho = g.textos[i];
            QCOMPARE(hecho.texto, esperados[i].texto);
            const QRectF lugar = esperados[i].caja;
            const bool enSuSitio = std::abs(hecho.caja.left() - lugar.left()) < Tolerancia
                && std::abs(hecho.caja.right() - lugar.right()) < Tolerancia
                && std::abs(hecho.caja.center().y() - lugar.center().y()) < Tolerancia;
            QVERIFY2(enSuSitio, qPrintable(hecho.texto));
        }
        QCOMPARE(g.textos.size(), esperados.size());
    }

    void textosDentro_data() { modelos(); }

    void textosDentro()
    {
        QFETCH(QString, modelo);
        GrabadorDibujo g;
        grabar(g, modelo, valoresPrueba::lleno());
        const QRectF util(MargenIzquierdo, 10, AnchoUtil, 277);
        int valores = 0;
        for (const auto &t : std::as_const(g.textos)) {
            QVERIFY2(util.contains(t.caja), qPrintable(t.texto));
            if (!esValor(t) || esMarca(t))
                continue;
            ++valores;
            const bool enCaja = std::ranges::any_of(g.recuadros, [&](const auto &r) {
                return r.blanco && r.caja.contains(t.caja) && r.caja.height() < 10;
            });
            QVERIFY2(enCaja, qPrintable(t.texto));
        }
        QCOMPARE(valores, modelo == u"430" ? 11 + 4 + 1 + 5 : 9 + 2 + 1 + 72 + 9 + 2);
    }

    void sinSolapes_data() { modelos(); }

    void sinSolapes()
    {
        QFETCH(QString, modelo);
        GrabadorDibujo g;
        grabar(g, modelo, valoresPrueba::lleno());
        for (qsizetype i = 0; i < g.textos.size(); ++i)
            for (qsizetype k = 0; k < i; ++k) {
                if (esMarca(g.textos[i]) || esMarca(g.textos[k]))
                    continue;
                // advances may touch, ink may not
                const QRectF primero = g.textos[i].caja.adjusted(0.05, 0, -0.05, 0);
                QVERIFY2(!primero.intersects(g.textos[k].caja),
                         qPrintable(g.textos[i].texto + u" | "_s + g.textos[k].texto));
            }
    }

    void marcas()
    {
        const QMap<QString, QString> leyendas{
            {u"AD"_s, u"ADMINISTRAZIOARENTZAKO ALEA|EJEMPLAR PARA LA ADMINISTRACIÓN"_s},
            {u"IT"_s, u"INTERESDUNARENTZAKO ALEA|EJEMPLAR PARA EL INTERESADO"_s},
            {u"BO"_s, u"ZIRRIBORROA|BORRADOR"_s}};
        for (const QString &modelo : {u"430"_s, u"480"_s})
            for (const auto &[copia, leyenda] : leyendas.asKeyValueRange()) {
                GrabadorDibujo g;
                grabar(g, modelo, valoresPrueba::lleno(), copia);
                QStringList leido;
                for (const auto &t : std::as_const(g.textos))
                    if (esMarca(t))
                        leido << t.texto;
                QCOMPARE(leido.join(u'|'), leyenda);
                // painted last, half a line's thickness inside its place
                QCOMPARE(g.textos.constLast().texto, leido.constLast());
                const QRectF sello = g.recuadros[g.recuadros.size() - 2].caja;
                QVERIFY((sello.topLeft() - QPointF(108.5, 193)).manhattanLength() < 0.02);
            }
    }
};

QTEST_MAIN(TstImpresoDibujo)
#include "tst_impreso_dibujo.moc"
