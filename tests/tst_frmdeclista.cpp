#include "declarants/FrmDecLista.h"
#include "declarants/cDecLista.h"
#include "support/ListaAbierta.h"
#include "support/Retrato.h"
#include "widgets/Ficheros.h"

#include <QClipboard>
#include <QFileDialog>
#include <QHelpEvent>
#include <QToolTip>

/// The list over three declarants, whose order by DNI is not that by name.
struct Lista : ListaAbierta<FrmDecLista>
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

    QString nombres() const
    {
        QStringList lista;
        for (int i = 0; i < filas(); ++i)
            lista += celda(i, FilaDeclarante::NOMBRE);
        return lista.join(u' ');
    }
    QString elegido() const
    {
        const auto elegidas = grid()->selectionModel()->selectedRows(FilaDeclarante::NOMBRE);
        return elegidas.isEmpty() ? QString() : elegidas.first().data().toString();
    }
    void teclear(const QString &texto) const { QTest::keyClicks(grid(), texto); }
    void cabecera(int columna) const
    {
        auto *h = grid()->horizontalHeader();
        const QPoint marca(h->sectionViewportPosition(columna) + 8, h->height() / 2);
        QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, marca);
    }

    qint32 zeta = 0, media = 0;
};

class TstFrmDecLista : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Nothing in it, and then whole rows and headers, every value of a row being another.
    void columnas()
    {
        Lista l(u"C"_s, false);
        QCOMPARE(l.manos->texto("lblNumDecla"), u"0 declarantes seleccionados"_s);
        QVERIFY(l.manos->control("lblVacio")->isVisible());
        QVERIFY(!l.manos->control("cmdAceptar")->isEnabled());
        l.tecla(Qt::Key_Return);
        QVERIFY(!l.siguiente);
        auto &d = unico::la<cDecDatos>();
        const qint32 csco = Entorno::altaDeclarante(u"A08000143"_s, u"ÑANDÚ"_s);
        d.CSCO(csco);
        d.CargarDeclarante(csco);
        d.CambiarProvincia(u"48"_s, {});
        d.CODPOS(u"48001"_s);
        d.NOMMUN(u"BILBAO"_s);
        QCOMPARE(d.GuardarDeclarante(d.RegistroCompleto()), qint16(0));
        for (quint8 mes = 1; mes <= 3; ++mes)
            Entorno::altaDeclaracion(csco, 2026, mes);
        Entorno::altaDeclaracion(csco, 2025, 12, u"480"_s);
        l.abrir();
        QCOMPARE(l.manos->texto("lblNumDecla"), u"1 declarantes seleccionados"_s);
        QVERIFY(!l.manos->control("lblEliminar")->isVisible());
        QCOMPARE(l.fila(0), u"%1|A08000143|ÑANDÚ|BILBAO|VIZCAYA|3|1"_s.arg(csco));
        Entorno::pasarAEuskera(*l.pantalla);
        QCOMPARE(l.fila(0), u"%1|A08000143|ÑANDÚ|BILBAO|BIZKAIA|3|1"_s.arg(csco));
        // what its column cuts off is the cell's tip
        for (const auto &[ancho, pista] : {std::pair{200, QString()}, {12, u"ÑANDÚ"_s}}) {
            l.grid()->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Interactive);
            l.grid()->setColumnWidth(2, ancho);
            const QPoint lugar = l.grid()->visualRect(l.grid()->model()->index(0, 2)).center();
            QHelpEvent pregunta(QEvent::ToolTip, lugar, l.grid()->viewport()->mapToGlobal(lugar));
            QApplication::sendEvent(l.grid()->viewport(), &pregunta);
            QCOMPARE(QToolTip::text(), pista);
        }
    }

    /// By name at first; the first row is selected after each load.
    void ordenar()
    {
        Lista l;
        const auto comprobar = [&](const QString &nombres, int marca) {
            const auto *cabecera = l.grid()->horizontalHeader();
            QCOMPARE(l.nombres(), nombres);
            QCOMPARE(l.elegido(), nombres.section(u' ', 0, 0));
            QCOMPARE(cabecera->isSortIndicatorShown() ? cabecera->sortIndicatorSection() : -1,
                     marca);
        };
        comprobar(u"ALFA MEDIA ZETA"_s, 2);
        l.tecla(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(unico::la<cDecLista>().CSCO(), l.zeta);
        l.cabecera(FilaDeclarante::DNI);
        comprobar(u"ZETA MEDIA ALFA"_s, 1);
        l.cabecera(FilaDeclarante::NOMMUN);
        comprobar(u"ZETA MEDIA ALFA"_s, 1);
        l.tecla(Qt::Key_2, Qt::ControlModifier);
        comprobar(u"ALFA MEDIA ZETA"_s, 2);
        l.tecla(Qt::Key_1, Qt::ControlModifier);
        l.abrir();
        comprobar(u"ALFA MEDIA ZETA"_s, 2);
    }

    void abrir()
    {
        for (const char *manera : {"Enter", "double click", "menu", "cmdAceptar", "PicAce"}) {
            Lista l;
            l.abrirFila(1, manera, "cmdAceptar");
            QCOMPARE(l.siguiente, Pantalla::Resumen);
            const auto &r = unico::la<cDecResumen>();
            QCOMPARE(unidos({r.ENTRADA(), r.CSCO(), r.DNI(), r.NOMBRE()}),
                     u"A|%1|00000002W|MEDIA"_s.arg(l.media));
        }
    }

    /// What is typed leaves the rows that have it in the name or the DNI.
    void filtrar()
    {
        Lista l;
        Entorno::altaDeclarante(u"00000003A"_s, u"CÍA. ÁNGEL MUÑOZ"_s);
        l.pantalla->Actualizar();
        auto *caja = l.manos->control<QLineEdit>("txtBusqueda");
        l.cabecera(FilaDeclarante::DNI);
        for (const auto &[texto, nombres] : {std::pair{u"angel"_s, u"CÍA. ÁNGEL MUÑOZ"_s},
                                             {u"munoz"_s, {}},
                                             {u"a. A"_s, u"CÍA. ÁNGEL MUÑOZ"_s},
                                             {u"0002w"_s, u"MEDIA"_s},
                                             {u"a"_s, u"ZETA MEDIA CÍA. ÁNGEL MUÑOZ ALFA"_s},
                                             {u"ta"_s, u"ZETA"_s},
                                             {u"e"_s, u"ZETA MEDIA CÍA. ÁNGEL MUÑOZ"_s}}) {
            if (caja->isVisible())
                l.tecla(Qt::Key_Escape);
            l.teclear(texto);
            QVERIFY(caja->isVisible());
            QCOMPARE(caja->text(), texto);
            QCOMPARE(l.nombres(), nombres);
        }
        QCOMPARE(l.manos->texto("lblNumDecla"), u"3/4 declarantes seleccionados"_s);
        l.tecla(Qt::Key_Down);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
        l.cabecera(FilaDeclarante::NOMBRE);
        QCOMPARE(l.nombres(), u"CÍA. ÁNGEL MUÑOZ MEDIA ZETA"_s);
        l.teclear(u"d"_s);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
        l.teclear(u"x"_s);
        QCOMPARE(l.manos->texto("lblVacio"), u"Ningún declarante contiene «edx»."_s);
        QVERIFY(l.manos->control("lblVacio")->isVisible());
        QVERIFY(!l.manos->control("cmdAceptar")->isEnabled());
        for (int i = 0; i < 3; ++i)
            l.tecla(Qt::Key_Backspace);
        QVERIFY(!caja->isVisible() && l.pantalla->isVisible());
        QCOMPARE(l.filas(), 4);
    }

    /// The row of a declarant changed elsewhere, and no other; the choice stays.
    void cambioDeOtraPantalla()
    {
        Lista l;
        l.tecla(Qt::Key_Down);
        auto &d = unico::la<cDecDatos>();
        d.CSCO(l.zeta);
        d.CargarDeclarante(l.zeta);
        d.NOMBRE(u"BETA"_s);
        d.GuardarDeclarante(d.RegistroCompleto());
        const qint32 nueva = Entorno::altaDeclarante(u"00000003A"_s, u"NUEVA"_s);
        l.pantalla->ActualizarDeclarante(l.zeta);
        QCOMPARE(l.nombres(), u"ALFA BETA MEDIA"_s);
        l.pantalla->ActualizarDeclarante(nueva);
        QCOMPARE(l.nombres(), u"ALFA BETA MEDIA NUEVA"_s);
        QCOMPARE(l.manos->texto("lblNumDecla"), u"4 declarantes seleccionados"_s);
        d.BorrarDeclarante();
        l.pantalla->ActualizarDeclarante(l.zeta);
        QCOMPARE(l.nombres(), u"ALFA MEDIA NUEVA"_s);
        QCOMPARE(l.elegido(), u"MEDIA"_s);
    }

    void borrar()
    {
        Lista l(u"E"_s);
        QCOMPARE(l.pantalla->windowTitle(), u"Eliminar Declarante"_s);
        compararRetrato(
            *l.pantalla,
            u"Eliminación de declarantes: el que elija se borrará.\n"
            "Haga click en la cabecera de la lista sobre el campo RAZÓN SOCIAL o DNI para ordenar\n"
            "Escriba para ver solo los declarantes que tienen ese texto en el DNI o en la razón "
            "social. Ctrl+1 ordena por DNI; Ctrl+2, por razón social.\n"
            "3 declarantes seleccionados <Eliminar> <Cancelar>"_s);
        QSignalSpy cambios(l.pantalla.get(), &PantallaBase::datosCambiados);
        QSignalSpy dichos(l.pantalla.get(), &PantallaBase::dicho);
        l.tecla(Qt::Key_Down);
        l.responderYPulsar(QMessageBox::No, "cmdAceptar");
        QCOMPARE(l.mensajes.ficha(),
                 u"Question|Borrado del declarante|¿Está seguro que desea eliminar el declarante: "
                 "00000002W - MEDIA?|No"_s);
        QCOMPARE(l.nombres(), u"ALFA MEDIA ZETA"_s);
        l.grid()->setFocus();
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Delete}) {
            QApplication::setActiveWindow(l.pantalla.get());
            l.mensajes.responder(QMessageBox::Yes);
            l.tecla(tecla);
        }
        QCOMPARE(l.nombres(), u"ZETA"_s);
        QCOMPARE(l.elegido(), u"ZETA"_s);
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1);
        QCOMPARE(cambios.count(), 2);
        QCOMPARE(cambios.front().front().toInt(), l.media);
        QCOMPARE(dichos.front().front().toString(), u"Declarante eliminado: 00000002W - MEDIA"_s);
    }

    /// Another copy of the program has filed a return, or deleted the declarant, since the list was
    /// loaded.
    void cambiadoEnOtraCopia()
    {
        Lista l(u"E"_s);
        Entorno::altaDeclaracion(l.media, 2026, 12, u"480"_s);
        l.tecla(Qt::Key_Down);
        l.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        QCOMPARE(l.mensajes.texto(), msj(Msj::AvisoTieneDeclaraciones));
        QCOMPARE(l.nombres(), u"ALFA MEDIA ZETA"_s);

        l.tecla(Qt::Key_End, Qt::ControlModifier);
        unico::la<cDecDatos>().CSCO(l.zeta);
        unico::la<cDecDatos>().BorrarDeclarante();
        l.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        QCOMPARE(l.mensajes.texto(),
                 u"«00000001R - ZETA» ya no existe: se ha eliminado en otra copia del programa."_s);
        QCOMPARE(l.nombres(), u"ALFA MEDIA"_s);
        Entorno::pasarAEuskera(*l.pantalla);
        QCOMPARE(l.pantalla->windowTitle(), u"Deuseztatu aitortzailea"_s);
        QCOMPARE(l.manos->textos("lblNumDecla cmdAceptar").remove(u'&'),
                 u"2 aitortzaile hautatu d(ir)a|Deuseztatu"_s);
    }

    /// The rows selected as a spreadsheet takes them, the whole list as a file, and on paper.
    void laListaSale()
    {
        Lista l;
        Entorno::altaDeclarante(u"A58818501"_s, u"=1+1;\"A\""_s);
        l.pantalla->Actualizar();
        l.elegir(0);
        l.tecla(Qt::Key_Down, Qt::ShiftModifier);
        QVERIFY(!l.manos->control("cmdAceptar")->isEnabled()); // one at a time
        l.tecla(Qt::Key_C, Qt::ControlModifier);
        const QString titulos = u"DNI\tRazón social\tNombre del municipio\tNombre de provincia\n"_s;
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 titulos
                     + u"A58818501\t'=1+1;\"A\"\tABRENZUOLA\tVARLENDA\n"
                       "12345678Z\tALFA\tABRENZUOLA\tVARLENDA\n"_s);
        const QString ruta = l.entorno.ruta(u"lista.csv"_s);
        ficheros::observar([&](QFileDialog &dialogo) {
            QTimer::singleShot(0, &dialogo, [&] {
                dialogo.selectFile(ruta);
                QTest::keyClick(&dialogo, Qt::Key_Return);
            });
        });
        l.manos->elegirEnMenu(*l.grid(), l.lugar(0), "mnuGuardarLista");
        ficheros::observar({});
        QFile csv(ruta);
        QVERIFY(csv.open(QIODevice::ReadOnly));
        const QByteArrayList lineas = csv.readAll().split('\n');
        QCOMPARE(lineas.size(), 6);
        QCOMPARE(lineas[0],
                 QByteArray("\xef\xbb\xbf") + titulos.trimmed().replace(u'\t', u';').toUtf8()
                     + '\r');
        QCOMPARE(lineas[1], QByteArray("A58818501;\"'=1+1;\"\"A\"\"\";ABRENZUOLA;VARLENDA\r"));
        QTimer::singleShot(0, qApp, [] {
            auto *vista = ventanaVisible(u"vistaPrevia"_s);
            QVERIFY(vista);
            QTest::keyClick(vista, Qt::Key_Escape);
        });
        l.manos->pulsar("cmdListado");
    }

    void cancelar()
    {
        Lista l;
        for (const char *manera : {"cmdCancelar", "Piccan", "Escape"}) {
            l.abrir();
            l.salir(manera);
            QVERIFY(!l.pantalla->isVisible() && !l.siguiente);
        }
    }
};

QTEST_MAIN(TstFrmDecLista)
#include "tst_frmdeclista.moc"
