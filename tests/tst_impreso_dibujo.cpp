#include "printing/Copias.h"
#include "printing/Geometria.h"
#include "support/GrabadorDibujo.h"
#include "support/ValoresPrueba.h"

#include <QPainter>
#include <QPicture>
#include <QTest>

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
        QTest::newRow("430") << u"430"_qs;
        QTest::newRow("480") << u"480"_qs;
    }

private Q_SLOTS:
    void secciones_data();
    void secciones();
    void rotulos_data();
    void rotulos();
    void textosDentro_data() { modelos(); }
    void textosDentro();
    void losValoresNoMueven_data() { modelos(); }
    void losValoresNoMueven();
    void sinSolapes_data() { modelos(); }
    void sinSolapes();
    void marcas_data();
    void marcas();
    void pintorRestaurado_data() { modelos(); }
    void pintorRestaurado();
};

void tst_impreso_dibujo::secciones_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<double>("arriba");
    for (const double y : {32.0, 38.22, 100.0, 150.0, 180.0, 225.0})
        QTest::addRow("430 %.2f", y) << u"430"_qs << y;
    for (const double y : {28.0, 29.0, 55.2, 72.9, 221.0})
        QTest::addRow("480 %.2f", y) << u"480"_qs << y;
}

void tst_impreso_dibujo::secciones()
{
    QFETCH(QString, modelo);
    QFETCH(double, arriba);
    GrabadorDibujo g;
    grabar(g, modelo, valoresPrueba::lleno());
    const bool hay = std::ranges::any_of(g.recuadros, [&](const auto &r) {
        return std::abs(r.caja.top() - arriba) < 0.01 && r.caja.width() > 45;
    });
    const bool rayado = std::ranges::any_of(g.lineas, [&](const QLineF &l) {
        return std::abs(l.y1() - arriba) < 0.01 && l.length() > 189;
    });
    QVERIFY(hay || rayado);
}

void tst_impreso_dibujo::rotulos_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QPointF>("lugar"); // left end and middle of the capitals, millimetres
    QTest::newRow("430 title") << u"430"_qs << u"Aitorpen - likidazioa /"_qs << QPointF(12, 34.7);
    QTest::newRow("430 NIF") << u"430"_qs << u"NA / IFZ"_qs << QPointF(11, 40.4);
    QTest::newRow("430 NIF value") << u"430"_qs << u"W5881850W"_qs << QPointF(12, 48.8);
    QTest::newRow("430 postal") << u"430"_qs << u"Posta helbidea"_qs << QPointF(11, 118.5);
    QTest::newRow("430 rate") << u"430"_qs << u"EZARPEN TASA"_qs << QPointF(13, 164.5);
    QTest::newRow("430 slip") << u"430"_qs << u"Ordainketa-gutuna/"_qs << QPointF(12, 227.7);
    QTest::newRow("480 NIF") << u"480"_qs << u"IFZ/"_qs << QPointF(60.5, 30.9);
    QTest::newRow("480 address") << u"480"_qs << u"Posta helbidea /"_qs << QPointF(60.5, 65.4);
    QTest::newRow("480 class 1") << u"480"_qs << u"Bizi aseguruak /"_qs << QPointF(12, 87.8);
    QTest::newRow("480 totals") << u"480"_qs << u"BATURA /"_qs << QPointF(12, 216.9);
    QTest::newRow("480 result") << u"480"_qs << u"Urteko likidazioaren emaitza (75+78+80)/"_qs
                                << QPointF(12, 249.3);
    QTest::newRow("480 date value") << u"480"_qs << u"31/12/2026"_qs << QPointF(12, 262.2);
}

void tst_impreso_dibujo::rotulos()
{
    QFETCH(QString, modelo);
    QFETCH(QString, texto);
    QFETCH(QPointF, lugar);
    GrabadorDibujo g;
    grabar(g, modelo, valoresPrueba::lleno());
    const auto hallado = std::ranges::find(g.textos, texto, &GrabadorDibujo::Texto::texto);
    QVERIFY(hallado != g.textos.end());
    const QPointF real(hallado->caja.left(), hallado->caja.center().y());
    QVERIFY2((real - lugar).manhattanLength() < Tolerancia,
             qPrintable(QStringLiteral("%1 %2").arg(real.x()).arg(real.y())));
}

void tst_impreso_dibujo::textosDentro()
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

void tst_impreso_dibujo::losValoresNoMueven()
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

void tst_impreso_dibujo::sinSolapes()
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
                     qPrintable(g.textos[i].texto + u" | "_qs + g.textos[k].texto));
        }
}

void tst_impreso_dibujo::marcas_data()
{
    QTest::addColumn<QString>("copia");
    QTest::addColumn<QStringList>("leyenda");
    QTest::newRow("AD") << u"AD"_qs
                        << QStringList{u"ADMINISTRAZIOARENTZAKO ALEA"_qs,
                                       u"EJEMPLAR PARA LA ADMINISTRACIÓN"_qs};
    QTest::newRow("IT") << u"IT"_qs
                        << QStringList{u"INTERESDUNARENTZAKO ALEA"_qs,
                                       u"EJEMPLAR PARA EL INTERESADO"_qs};
    QTest::newRow("BO") << u"BO"_qs << QStringList{u"ZIRRIBORROA"_qs, u"BORRADOR"_qs};
}

void tst_impreso_dibujo::marcas()
{
    QFETCH(QString, copia);
    QFETCH(QStringList, leyenda);
    for (const QString &modelo : {u"430"_qs, u"480"_qs}) {
        GrabadorDibujo g;
        grabar(g, modelo, valoresPrueba::lleno(), copia);
        QStringList leido;
        for (const auto &t : std::as_const(g.textos))
            if (esMarca(t))
                leido << t.texto;
        QCOMPARE(leido, leyenda);
        // painted last, half a line's thickness inside its place
        QCOMPARE(g.textos.constLast().texto, leyenda.constLast());
        const QRectF sello = g.recuadros[g.recuadros.size() - 2].caja;
        QVERIFY(std::abs(sello.left() - 108.5) < 0.01);
        QVERIFY(std::abs(sello.top() - 193) < 0.01);
    }
}

void tst_impreso_dibujo::pintorRestaurado()
{
    QFETCH(QString, modelo);
    QPicture imagen;
    QPainter pintor(&imagen);
    pintor.scale(2, 3);
    pintor.setPen(Qt::green);
    const QTransform antes = pintor.transform();
    valoresPrueba::dibujar(pintor, modelo, valoresPrueba::vacio(), CopiaBorrador.toString());
    QCOMPARE(pintor.transform(), antes);
    QCOMPARE(pintor.pen().color(), QColor(Qt::green));
}

QTEST_MAIN(tst_impreso_dibujo)
#include "tst_impreso_dibujo.moc"
