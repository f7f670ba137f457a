#include "printing/Lienzo.h"
#include "printing/Listado.h"
#include "printing/cImOf.h"
#include "support/LineasPrueba.h"
#include "support/ValoresPrueba.h"

#include <QPainter>

/// Where things are drawn, read from the drawing itself.
class TstImpresoDibujo : public QObject
{
    Q_OBJECT

private:
    static void grabar(GrabadorDibujo &grabador, const QString &modelo, const QString &copia)
    {
        QPainter pintor(&grabador);
        valoresPrueba::dibujar(pintor, modelo, valoresPrueba::lleno(), copia);
    }
    static bool esMarca(const GrabadorDibujo::Texto &t) { return t.color.alpha() < 255; }
    static void probarPagina(const QString &modelo, int hayValores)
    {
        GrabadorDibujo g;
        grabar(g, modelo, CopiaAdministracion.toString());
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/%1.txt").arg(modelo);
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            valoresPrueba::guardarTextos(ruta, g.textos);
        const auto esperados = valoresPrueba::leerTextos(ruta);
        const QRectF util(MargenIzquierdo, 10, AnchoUtil, 277);
        int valores = 0;
        for (qsizetype i = 0; i < std::min(esperados.size(), g.textos.size()); ++i) {
            const auto &hecho = g.textos[i];
            QCOMPARE(hecho.texto, esperados[i].texto);
            const QRectF lugar = esperados[i].caja;
            const double fuera = std::max({std::abs(hecho.caja.left() - lugar.left()),
                                           std::abs(hecho.caja.right() - lugar.right()),
                                           std::abs(hecho.caja.center().y() - lugar.center().y())});
            QVERIFY2(fuera < 0.5 && util.contains(hecho.caja), qPrintable(hecho.texto));
            if (esMarca(hecho))
                continue;
            for (qsizetype k = 0; k < i; ++k) // advances may touch, ink may not
                QVERIFY2(
                    esMarca(g.textos[k])
                        || !hecho.caja.adjusted(0.05, 0, -0.05, 0).intersects(g.textos[k].caja),
                    qPrintable(hecho.texto + u" | "_s + g.textos[k].texto));
            if (hecho.color != Qt::black)
                continue;
            ++valores;
            const bool enCaja = std::ranges::any_of(g.recuadros, [&](const auto &r) {
                return r.relleno == u"#ffffff" && r.caja.contains(hecho.caja)
                    && r.caja.height() < 10;
            });
            QVERIFY2(enCaja, qPrintable(hecho.texto));
        }
        QCOMPARE(g.textos.size(), esperados.size());
        QCOMPARE(valores, hayValores);
    }

    static qint64 decimas(double mm) { return std::lround(mm * 10); }

    /// Every box and shade, in tenths of a millimetre.
    static void probarTrazos(const QString &modelo)
    {
        GrabadorDibujo g;
        grabar(g, modelo, CopiaAdministracion.toString());
        QByteArray trazos;
        for (const auto &[caja, relleno] : std::as_const(g.recuadros))
            trazos += u"%1 %2 %3 %4 %5\n"_s.arg(decimas(caja.left()))
                          .arg(decimas(caja.top()))
                          .arg(decimas(caja.width()))
                          .arg(decimas(caja.height()))
                          .arg(relleno)
                          .toUtf8();
        const QString ruta = QStringLiteral(OSTREL_REFERENCIAS "/%1-trazos.txt").arg(modelo);
        if (qEnvironmentVariableIsSet("OSTREL_NUEVAS_REFERENCIAS"))
            lineas::escribir(ruta, trazos);
        QCOMPARE(trazos.split('\n'), lineas::leer(ruta).split('\n'));
    }

private Q_SLOTS:
    /// Every text of the page at its place, against a list kept with the tests; values within their
    /// boxes, and none over another.
    void paginaEntera()
    {
        probarPagina(u"430"_s, 11 + 4 + 1 + 5);
        probarPagina(u"480"_s, 9 + 2 + 1 + 72 + 9 + 2);
        probarTrazos(u"430"_s);
        probarTrazos(u"480"_s);
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
                grabar(g, modelo, copia);
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

    /// The last page of a list: heading, titles, the rows that are left under their columns, its
    /// number.
    void listado()
    {
        impreso::Listado lista{
            u"Título"_s, u"20/11/2026"_s, {{u"Uno"_s, 100}, {u"Dos"_s, 90, true}}, {}};
        QCOMPARE(lista.paginas(), 1);
        for (int i = 0; i < 92; ++i)
            lista.filas.append({u"a%1"_s.arg(i), u"b%1"_s.arg(i)});
        QCOMPARE(lista.paginas(), 3);
        GrabadorDibujo g;
        {
            QPainter pintor(&g);
            lista.dibujarPagina(pintor, 2);
        }
        QStringList textos;
        for (const auto &t : std::as_const(g.textos))
            textos += t.texto;
        QCOMPARE(textos.join(u' '), u"Título 20/11/2026 Uno Dos a90 b90 a91 b91 Página 3 de 3"_s);
        QVERIFY(g.textos[4].caja.left() < 15 && g.textos[4].caja.top() > g.textos[2].caja.bottom());
        QVERIFY(std::abs(g.textos[5].caja.right() - g.textos[3].caja.right()) < 0.5);
    }
};

QTEST_MAIN(TstImpresoDibujo)
#include "tst_impreso_dibujo.moc"
