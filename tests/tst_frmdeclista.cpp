#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/FrmDecLista.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>

/// The list over three declarants, whose order by DNI is not that by name.
struct Lista
{
    explicit Lista(const QString &modo = u"C"_qs, bool conDatos = true)
    {
        if (conDatos) {
            zeta = Entorno::altaDeclarante(u"00000001R"_qs, u"ZETA"_qs);
            alfa = Entorno::altaDeclarante(u"12345678Z"_qs, u"ALFA"_qs);
            media = Entorno::altaDeclarante(u"00000002W"_qs, u"MEDIA"_qs);
        }
        unico::la<cDecLista>().MODO(modo);
        abrir();
    }
    void abrir()
    {
        pantalla = std::make_unique<FrmDecLista>();
        manos = std::make_unique<Manos>(*pantalla);
        QObject::connect(pantalla.get(), &PantallaBase::mostrar, pantalla.get(),
                         [this](Pantalla p) { siguiente = p; });
        pantalla->resize(pantalla->sizeHint());
        pantalla->show();
        QApplication::setActiveWindow(pantalla.get());
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

    Entorno entorno;
    ConductorMensajes mensajes;
    qint32 zeta = 0, alfa = 0, media = 0;
    std::unique_ptr<FrmDecLista> pantalla;
    std::unique_ptr<Manos> manos;
    std::optional<Pantalla> siguiente;
};

class tst_FrmDecLista : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnas();
    void ordenar_data();
    void ordenar();
    void abrir_data();
    void abrir();
    void buscar();
    void vacia();
    void borrar();
    void borrarElUnico();
    void conDeclaraciones_data();
    void conDeclaraciones();
    void falloAlBorrar();
    void idioma();
    void cancelar_data();
    void cancelar();
};

void tst_FrmDecLista::columnas()
{
    Lista l;
    QCOMPARE(l.pantalla->windowTitle(), u"Abrir Declarante"_qs);
    QCOMPARE(l.manos->texto("lblNumDecla"), u"3 declarantes seleccionados"_qs);
    const auto *modelo = l.grid()->model();
    QCOMPARE(modelo->columnCount(), 7);
    for (const int oculta : {0, 5, 6})
        QVERIFY(l.grid()->isColumnHidden(oculta));
    QCOMPARE(modelo->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"DNI"_qs);
    QCOMPARE(modelo->index(0, 4).data().toString(), u"VARLENDA"_qs);
    QCOMPARE(l.elegido(), u"ZETA"_qs);
    QCOMPARE(unico::la<cDecLista>().CSCO(), l.zeta);
}

void tst_FrmDecLista::ordenar_data()
{
    QTest::addColumn<bool>("teclado");
    QTest::newRow("header") << false;
    QTest::newRow("keyboard") << true;
}

void tst_FrmDecLista::ordenar()
{
    QFETCH(bool, teclado);
    Lista l;
    const auto pedir = [&](int columna) {
        if (teclado)
            QTest::keyClick(l.grid(), static_cast<Qt::Key>(Qt::Key_0 + columna),
                            Qt::ControlModifier);
        else
            l.cabecera(columna);
    };
    pedir(FilaDeclarante::NOMBRE);
    QCOMPARE(l.nombres(), QStringList({u"ALFA"_qs, u"MEDIA"_qs, u"ZETA"_qs}));
    QCOMPARE(l.elegido(), u"ZETA"_qs);
    auto *cabecera = l.grid()->horizontalHeader();
    QCOMPARE(cabecera->sortIndicatorSection(), 2);
    l.cabecera(FilaDeclarante::NOMMUN);
    QCOMPARE(unico::la<cDecLista>().ORDEN(), cDecLista::PorNombre);
    QCOMPARE(cabecera->sortIndicatorSection(), 2);
    pedir(FilaDeclarante::DNI);
    QCOMPARE(l.nombres(), QStringList({u"ZETA"_qs, u"MEDIA"_qs, u"ALFA"_qs}));
    QCOMPARE(cabecera->sortIndicatorSection(), 1);
    QVERIFY(cabecera->isSortIndicatorShown());
}

void tst_FrmDecLista::abrir_data()
{
    QTest::addColumn<QString>("manera");
    for (const char *manera : {"Enter", "double click", "button", "picture"})
        QTest::newRow(manera) << QString::fromLatin1(manera);
}

void tst_FrmDecLista::abrir()
{
    QFETCH(QString, manera);
    Lista l;
    QTest::keyClick(l.grid(), Qt::Key_Down);
    QCOMPARE(unico::la<cDecLista>().CSCO(), l.media);
    const QPoint fila = l.grid()->visualRect(l.grid()->model()->index(1, 1)).center();
    QTest::mouseClick(l.grid()->viewport(), Qt::LeftButton, {}, fila);
    if (manera == u"Enter")
        QTest::keyClick(l.grid(), Qt::Key_Return);
    else if (manera == u"double click")
        QTest::mouseDClick(l.grid()->viewport(), Qt::LeftButton, {}, fila);
    else
        l.manos->pulsar(manera == u"button" ? "cmdAceptar" : "PicAce");
    QCOMPARE(l.siguiente.value_or(Pantalla::Ninguna), Pantalla::Resumen);
    const auto &resumen = unico::la<cDecResumen>();
    QCOMPARE(resumen.ENTRADA(), u"A"_qs);
    QCOMPARE(resumen.CSCO(), l.media);
    QCOMPARE(resumen.DNI(), u"00000002W"_qs);
    QCOMPARE(resumen.NOMBRE(), u"MEDIA"_qs);
}

void tst_FrmDecLista::buscar()
{
    Lista l;
    l.cabecera(FilaDeclarante::NOMBRE);
    QTest::keyClicks(l.grid(), u"me"_qs);
    auto *caja = l.manos->control<QLineEdit>("txtBusqueda");
    QVERIFY(caja->isVisible());
    QCOMPARE(caja->text(), u"me"_qs);
    QCOMPARE(l.elegido(), u"MEDIA"_qs);
    QTest::keyClick(l.grid(), Qt::Key_Escape);
    QVERIFY(!caja->isVisible());
    QVERIFY(l.pantalla->isVisible());
    QTest::keyClicks(l.grid(), u"xx"_qs);
    QCOMPARE(l.elegido(), u"MEDIA"_qs);
    QTest::keyClick(l.grid(), Qt::Key_Backspace);
    QTest::keyClick(l.grid(), Qt::Key_Backspace);
    QVERIFY(!caja->isVisible());
}

void tst_FrmDecLista::vacia()
{
    Lista l(u"C"_qs, false);
    QCOMPARE(l.manos->texto("lblNumDecla"), u"0 declarantes seleccionados"_qs);
    QVERIFY(l.manos->control("lblVacio")->isVisible());
    QVERIFY(!l.manos->control("cmdAceptar")->isEnabled());
    QTest::keyClick(l.grid(), Qt::Key_Return);
    QVERIFY(!l.siguiente);
}

void tst_FrmDecLista::borrar()
{
    Lista l(u"E"_qs);
    QCOMPARE(l.pantalla->windowTitle(), u"Eliminar Declarante"_qs);
    QSignalSpy cambios(l.pantalla.get(), &PantallaBase::datosCambiados);
    QTest::keyClick(l.grid(), Qt::Key_Down);
    l.mensajes.responder(QMessageBox::No);
    l.manos->pulsar("cmdAceptar");
    const auto vistos = l.mensajes.tomar();
    QCOMPARE(vistos.size(), 1);
    QCOMPARE(vistos[0].titulo, u"Borrado del declarante"_qs);
    QCOMPARE(vistos[0].texto,
             u"¿Está seguro que desea eliminar el declarante: 00000002W - MEDIA?"_qs);
    QCOMPARE(vistos[0].porDefecto, QMessageBox::No);
    QCOMPARE(l.nombres().size(), 3);
    QCOMPARE(cambios.count(), 0);

    l.grid()->setFocus();
    l.mensajes.responder(QMessageBox::Yes);
    QTest::keyClick(l.grid(), Qt::Key_Return);
    QCOMPARE(l.nombres(), QStringList({u"ZETA"_qs, u"ALFA"_qs}));
    QCOMPARE(l.elegido(), u"ALFA"_qs);
    QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 2);
    QCOMPARE(cambios.count(), 1);
}

void tst_FrmDecLista::borrarElUnico()
{
    Lista l(u"E"_qs, false);
    Entorno::altaDeclarante();
    l.pantalla->Actualizar();
    l.mensajes.responder(QMessageBox::Yes);
    l.manos->pulsar("cmdAceptar");
    QCOMPARE(l.grid()->model()->rowCount(), 0);
    QCOMPARE(l.manos->texto("lblNumDecla"), u"0 declarantes seleccionados"_qs);
    QVERIFY(!l.manos->control("PicAce")->isEnabled());
}

void tst_FrmDecLista::conDeclaraciones_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::newRow("430") << u"430"_qs;
    QTest::newRow("480") << u"480"_qs;
}

void tst_FrmDecLista::conDeclaraciones()
{
    QFETCH(QString, modelo);
    Lista l(u"E"_qs);
    Entorno::altaDeclaracion(l.zeta, 2026, modelo == u"480" ? 12 : 1, modelo);
    l.pantalla->Actualizar();
    l.mensajes.responder(QMessageBox::Ok);
    l.manos->pulsar("cmdAceptar");
    QCOMPARE(l.mensajes.texto(), msj(Msj::AvisoTieneDeclaraciones));
    QCOMPARE(l.nombres().size(), 3);
}

void tst_FrmDecLista::falloAlBorrar()
{
    Lista l(u"E"_qs);
    const Rutas buenas = rutas();
    Rutas malas = buenas;
    malas.modelo = l.entorno.ruta(u"ninguna/OstrMod.mdb"_qs);
    fijarRutas(malas);
    l.mensajes.responder(QMessageBox::Yes);
    l.mensajes.responder(QMessageBox::Ok);
    l.manos->pulsar("cmdAceptar");
    QCOMPARE(l.mensajes.tomar().size(), 2);
    QCOMPARE(l.nombres().size(), 3);
    fijarRutas(buenas);
    l.mensajes.responder(QMessageBox::Yes);
    l.manos->pulsar("cmdAceptar");
    QCOMPARE(l.nombres().size(), 2);
}

void tst_FrmDecLista::idioma()
{
    Lista l(u"E"_qs);
    QTest::keyClick(l.grid(), Qt::Key_Down);
    unico::la<CEntrada>().IDI(u"E"_qs);
    QEvent cambio(QEvent::LanguageChange);
    QApplication::sendEvent(l.pantalla.get(), &cambio);
    QCOMPARE(l.pantalla->windowTitle(), u"Deuseztatu aitortzailea"_qs);
    QCOMPARE(l.manos->texto("lblNumDecla"), u"3 aitortzaile hautatu d(ir)a"_qs);
    QCOMPARE(l.grid()->model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(),
             u"Sozietatearen izena"_qs);
    QCOMPARE(l.manos->texto("cmdAceptar").remove(u'&').trimmed(), u"Deuseztatu"_qs);
    QCOMPARE(l.elegido(), u"MEDIA"_qs);
}

void tst_FrmDecLista::cancelar_data()
{
    QTest::addColumn<QString>("manera");
    QTest::newRow("button") << u"cmdCancelar"_qs;
    QTest::newRow("picture") << u"Piccan"_qs;
    QTest::newRow("Escape") << QString();
}

void tst_FrmDecLista::cancelar()
{
    QFETCH(QString, manera);
    Lista l;
    if (manera.isEmpty())
        QTest::keyClick(l.grid(), Qt::Key_Escape);
    else
        l.manos->pulsar(manera.toLatin1());
    QVERIFY(!l.pantalla->isVisible());
    QVERIFY(!l.siguiente);
}

QTEST_MAIN(tst_FrmDecLista)
#include "tst_frmdeclista.moc"
