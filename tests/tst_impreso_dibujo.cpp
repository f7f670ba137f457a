#include "printing/Copias.h"
#include "printing/Geometria.h"
#include "support/GrabadorDibujo.h"
#include "support/ValoresPrueba.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

/// Where things are drawn, read from the drawing itself.
class tst_impreso_dibujo : public QObject
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
    void secciones()
    {
        for (const auto &[modelo, lugares] :
             {std::pair{u"430"_s, QList{32.0, 38.22, 100.0, 150.0, 180.0, 225.0}},
              {u"480"_s, QList{28.0, 29.0, 55.2, 72.9, 221.0}}}) {
            GrabadorDibujo g;
            grabar(g, modelo, valoresPrueba::lleno());
            for (const double arriba : lugares) {
                const bool hay = std::ranges::any_of(g.recuadros, [&](const auto &r) {
                    return std::abs(r.caja.top() - arriba) < 0.01 && r.caja.width() > 45;
                });
                const bool rayado = std::ranges::any_of(g.lineas, [&](const QLineF &l) {
                    return std::abs(l.y1() - arriba) < 0.01 && l.length() > 189;
                });
                QVERIFY2(hay || rayado, qPrintable(modelo + QString::number(arriba)));
            }
        }
    }

    void rotulos()
    {
        struct Rotulo
        {
            QString texto;
            QPointF lugar; ///< left end and middle of the capitals, millimetres
        };
        const QMap<QString, QList<Rotulo>> rotulos{
            {u"430"_s,
             {{u"Aitorpen - likidazioa /"_s, {12, 34.7}},
              {u"NA / IFZ"_s, {11, 40.4}},
              {u"W5881850W"_s, {12, 48.8}},
              {u"Posta helbidea"_s, {11, 118.5}},
              {u"EZARPEN TASA"_s, {13, 164.5}},
              {u"Ordainketa-gutuna/"_s, {12, 227.7}}}},
            {u"480"_s,
             {{u"IFZ/"_s, {60.5, 30.9}},
              {u"Posta helbidea /"_s, {60.5, 65.4}},
              {u"Bizi aseguruak /"_s, {12, 87.8}},
              {u"BATURA /"_s, {12, 216.9}},
              {u"Urteko likidazioaren emaitza (75+78+80)/"_s, {12, 249.3}},
              {u"31/12/2026"_s, {12, 262.2}}}}};
        for (const auto &[modelo, lista] : rotulos.asKeyValueRange()) {
            GrabadorDibujo g;
            grabar(g, modelo, valoresPrueba::lleno());
            for (const auto &[texto, lugar] : lista) {
                const auto hallado
                    = std::ranges::find(g.textos, texto, &GrabadorDibujo::Texto::texto);
                QVERIFY2(hallado != g.textos.end(), qPrintable(texto));
                const QPointF real(hallado->caja.left(), hallado->caja.center().y());
                QVERIFY2((real - lugar).manhattanLength() < Tolerancia, qPrintable(texto));
            }
        }
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

    void losValoresNoMueven_data() { modelos(); }

    void losValoresNoMueven()
    {
        QFETCH(QString, modelo);
        GrabadorDibujo lleno;
        GrabadorDibujo vacio;
        grabar(lleno, modelo, valoresPrueba::lleno());
        grabar(vacio, modelo, valoresPrueba::vacio());
        QCOMPARE(lleno.recuadros, vacio.recuadros);
        QCOMPARE(lleno.lineas, vacio.lineas);
        const auto rotulos = [](const GrabadorDibujo &g) {
            QList<std::pair<QString, QRectF>> lista;
            for (const auto &t : g.textos)
                if (!esValor(t) && !t.texto.contains(u"epartament"))
                    lista.append({t.texto, t.caja});
            return lista;
        };
        QVERIFY(rotulos(lleno).size() > 40);
        QCOMPARE(rotulos(lleno), rotulos(vacio));
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

QTEST_MAIN(tst_impreso_dibujo)
#include "tst_impreso_dibujo.moc"
