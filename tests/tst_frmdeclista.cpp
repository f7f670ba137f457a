#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/FrmDecLista.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "support/PantallaAbierta.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>

using namespace Qt::StringLiterals;

/// The list over three declarants, whose order by DNI is not that by name.
struct Lista : PantallaAbierta<FrmDecLista>
{
    explicit Lista(const QString &modo = u"C"_s, bool conDatos = true)
    {
        if (conDatos) {
            zeta = Entorno::altaDeclarante(u"00000001R"_s, u"ZETA"_s);
            Entorno::altaDeclarante(u"12345678Z"_s, u"ALFA"_s);
            media = Entorno::altaDeclarante(u"00000002W"_s, u"MEDIA"_s);
        }
        unico::la<cDecLista>().MODO(modo);
        abrir();
    }

    QTableView *grid() const { return manos->control<QTableView>("flxDeclarantes"); }
    QStringList nombres() const
    {
        QStringList lista;
        for (int i = 0; i < grid()->model()->rowCount(); ++i)
            lista += grid()->model()->index(i, FilaDeclarante::NOMBRE).data().toString();
        return lista;
    }
    QString elegido() const
    {
        const auto filas = grid()->selectionModel()->selectedRows(FilaDeclarante::NOMBRE);
        return filas.isEmpty() ? QString() : filas.first().data().toString();
    }
    void cabecera(int columna) const
    {
        auto *h = grid()->horizontalHeader();
        const QPoint lugar(h->sectionViewportPosition(columna) + 8, h->height() / 2);
        QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, lugar);
    }

    qint32 zeta = 0, media = 0;
};

class tst_FrmDecLista : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnas()
    {
        Lista l;
        QCOMPARE(l.pantalla->windowTitle(), u"Abrir Declarante"_s);
        QCOMPARE(l.manos->texto("lblNumDecla"), u"3 declarantes seleccionados"_s);
        const auto *modelo = l.grid()->model();
        QCOMPARE(modelo->columnCount(), 7);
        for (const int oculta : {0, 5, 6})
            QVERIFY(l.grid()->isColumnHidden(oculta));
        QCOMPARE(modelo->index(0, 4).data().toString(), u"VARLENDA"_s);
        QCOMPARE(l.elegido(), u"ZETA"_s);
        QCOMPARE(unico::la<cDecLista>().CSCO(), l.zeta);
    }

    void ordenar()
    {
        Lista l;
        l.cabecera(FilaDeclarante::NOMBRE);
        QCOMPARE(l.nombres(), QStringList({u"ALFA"_s, u"MEDIA"_s, u"ZETA"_s}));
        QCOMPARE(l.elegido(), u"ZETA"_s);
        auto *cabecera = l.grid()->horizontalHeader();
        QCOMPARE(cabecera->sortIndicatorSection(), 2);
        l.cabecera(FilaDeclarante::NOMMUN);
        QCOMPARE(unico::la<cDecLista>().ORDEN(), cDecLista::PorNombre);
        QTest::keyClick(l.grid(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(l.nombres(), QStringList({u"ZETA"_s, u"MEDIA"_s, u"ALFA"_s}));
        QCOMPARE(cabecera->sortIndicatorSection(), 1);
        QVERIFY(cabecera->isSortIndicatorShown());
    }

    void abrir()
    {
        for (const char *manera : {"Enter", "double click", "cmdAceptar", "PicAce"}) {
            Lista l;
            QTest::keyClick(l.grid(), Qt::Key_Down);
            QCOMPARE(unico::la<cDecLista>().CSCO(), l.media);
            const QPoint fila = l.grid()->visualRect(l.grid()->model()->index(1, 1)).center();
            QTest::mouseClick(l.grid()->viewport(), Qt::LeftButton, {}, fila);
            if (qstrcmp(manera, "Enter") == 0)
                QTest::keyClick(l.grid(), Qt::Key_Return);
            else if (qstrcmp(manera, "double click") == 0)
                QTest::mouseDClick(l.grid()->viewport(), Qt::LeftButton, {}, fila);
            else
                l.manos->pulsar(manera);
            QCOMPARE(l.siguiente, Pantalla::Resumen);
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"A"_s);
            QCOMPARE(unico::la<cDecResumen>().CSCO(), l.media);
            QCOMPARE(unico::la<cDecResumen>().NOMBRE(), u"MEDIA"_s);
        }
    }

    void buscar()
    {
        Lista l;
        l.cabecera(FilaDeclarante::NOMBRE);
        QTest::keyClicks(l.grid(), u"me"_s);
        auto *caja = l.manos->control<QLineEdit>("txtBusqueda");
        QVERIFY(caja->isVisible());
        QCOMPARE(caja->text(), u"me"_s);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
        QTest::keyClick(l.grid(), Qt::Key_Escape);
        QVERIFY(!caja->isVisible());
        QVERIFY(l.pantalla->isVisible());
        QTest::keyClicks(l.grid(), u"xx"_s);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
        QTest::keyClick(l.grid(), Qt::Key_Backspace);
        QTest::keyClick(l.grid(), Qt::Key_Backspace);
        QVERIFY(!caja->isVisible());
    }

    void vacia()
    {
        Lista l(u"C"_s, false);
        QCOMPARE(l.manos->texto("lblNumDecla"), u"0 declarantes seleccionados"_s);
        QVERIFY(l.manos->control("lblVacio")->isVisible());
        QVERIFY(!l.manos->control("cmdAceptar")->isEnabled());
        QTest::keyClick(l.grid(), Qt::Key_Return);
        QVERIFY(!l.siguiente);
    }

    void borrar()
    {
        Lista l(u"E"_s);
        QCOMPARE(l.pantalla->windowTitle(), u"Eliminar Declarante"_s);
        QSignalSpy cambios(l.pantalla.get(), &PantallaBase::datosCambiados);
        QTest::keyClick(l.grid(), Qt::Key_Down);
        l.responderYPulsar(QMessageBox::No, "cmdAceptar");
        const auto vistos = l.mensajes.tomar();
        QCOMPARE(vistos.size(), 1);
        QCOMPARE(vistos[0].titulo, u"Borrado del declarante"_s);
        QCOMPARE(vistos[0].texto,
                 u"¿Está seguro que desea eliminar el declarante: 00000002W - MEDIA?"_s);
        QCOMPARE(vistos[0].porDefecto, QMessageBox::No);
        QCOMPARE(l.nombres().size(), 3);
        QCOMPARE(cambios.count(), 0);

        l.grid()->setFocus();
        l.mensajes.responder(QMessageBox::Yes);
        QTest::keyClick(l.grid(), Qt::Key_Return);
        QCOMPARE(l.nombres(), QStringList({u"ZETA"_s, u"ALFA"_s}));
        QCOMPARE(l.elegido(), u"ALFA"_s);
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 2);
        QCOMPARE(cambios.count(), 1);
    }

    void conDeclaraciones()
    {
        Lista l(u"E"_s);
        Entorno::altaDeclaracion(l.zeta, 2026, 12, u"480"_s);
        l.pantalla->Actualizar();
        l.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        QCOMPARE(l.mensajes.texto(), msj(Msj::AvisoTieneDeclaraciones));
        QCOMPARE(l.nombres().size(), 3);
    }

    void falloAlBorrar()
    {
        Lista l(u"E"_s);
        {
            const ModeloPerdido perdido;
            l.mensajes.responder(QMessageBox::Yes);
            l.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        }
        QCOMPARE(l.mensajes.tomar().size(), 2);
        QCOMPARE(l.nombres().size(), 3);
        l.responderYPulsar(QMessageBox::Yes, "cmdAceptar");
        QCOMPARE(l.nombres().size(), 2);
    }

    void idioma()
    {
        Lista l(u"E"_s);
        QTest::keyClick(l.grid(), Qt::Key_Down);
        Entorno::pasarAEuskera(*l.pantalla);
        QCOMPARE(l.pantalla->windowTitle(), u"Deuseztatu aitortzailea"_s);
        QCOMPARE(l.manos->texto("lblNumDecla"), u"3 aitortzaile hautatu d(ir)a"_s);
        QCOMPARE(l.grid()->model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(),
                 u"Sozietatearen izena"_s);
        QCOMPARE(l.manos->texto("cmdAceptar").remove(u'&').trimmed(), u"Deuseztatu"_s);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
    }

    void cancelar()
    {
        Lista l;
        for (const char *boton : {"cmdCancelar", "Piccan", ""}) {
            l.abrir();
            if (*boton)
                l.manos->pulsar(boton);
            else
                QTest::keyClick(l.grid(), Qt::Key_Escape);
            QVERIFY(!l.pantalla->isVisible());
            QVERIFY(!l.siguiente);
        }
    }
};

QTEST_MAIN(tst_FrmDecLista)
#include "tst_frmdeclista.moc"
