#include "app/MDIOstrel.h"
#include "core/Importe.h"
#include "support/ConductorMensajes.h"
#include "support/DeclaracionesPrueba.h"
#include "support/LineasPrueba.h"
#include "support/Manos.h"
#include "support/Retrato.h"
#include "widgets/Ficheros.h"
#include "widgets/PantallaBase.h"

#include <QFileDialog>
#include <QMdiArea>
#include <QMdiSubWindow>

/// The month of many declarants on screen, in the program's window.
class TstCampanaPantallas : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;
    std::unique_ptr<MDIOstrel> m_ventana;

    PantallaBase *pantalla(const char *nombre) const
    {
        return m_ventana->findChild<PantallaBase *>(QString::fromLatin1(nombre));
    }
    Manos en(const char *nombre) const { return Manos(*pantalla(nombre)); }
    QTableView *lista(const char *nombre, const char *de) const
    {
        return en(de).control<QTableView>(nombre);
    }
    /// What is seen of a list, "a|b" a row.
    QString filas(const char *nombre, const char *de, const QList<int> &columnas) const
    {
        const auto *modelo = lista(nombre, de)->model();
        QStringList textos;
        for (int i = 0; i < modelo->rowCount(); ++i) {
            QStringList celdas;
            for (const int columna : columnas)
                celdas += modelo->index(i, columna).data().toString();
            textos += celdas.join(u'|');
        }
        return textos.join(u'\n');
    }
    QString pendientes() const { return filas("flxPendientes", "FrmPendientes", {0, 1, 2, 3, 4}); }
    QString hoja() const
    {
        return filas("flxHoja", "FrmImportarDeclaraciones", {1, 2, 5, 6, 7, 8});
    }
    void elegirFichero(const QString &ruta)
    {
        ficheros::observar([ruta](QFileDialog &dialogo) {
            QTimer::singleShot(0, &dialogo, [&dialogo, ruta] {
                dialogo.selectFile(ruta);
                QTest::keyClick(&dialogo, Qt::Key_Return);
            });
        });
    }
    /// October 2026 of everybody.
    void abrirPendientes()
    {
        QTest::keyClick(m_ventana.get(), Qt::Key_D, Qt::ControlModifier);
        QTRY_VERIFY(pantalla("FrmPendientes"));
        en("FrmPendientes").escribir("txtejer", u"2026"_s);
        en("FrmPendientes").tecla(Qt::Key_Tab);
        en("FrmPendientes").escribir("cmbperiodo", u"OCTUBRE"_s);
        en("FrmPendientes").tecla(Qt::Key_Tab);
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
        const auto uno = Entorno::altaDeclarante(u"12345678Z"_s, u"ZETA"_s);
        Entorno::altaDeclarante(u"A58818501"_s, u"ÁLVAREZ"_s);
        Entorno::altaDeclaracion(uno, 2026, 8);
        Entorno::altaDeclaracion(Entorno::altaDeclarante(u"00000001R"_s, u"MEDIA"_s), 2026, 10);
        m_ventana = std::make_unique<MDIOstrel>();
        m_ventana->resize(1300, 800);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
    }
    void cleanup()
    {
        ficheros::observar({});
        m_ventana.reset();
        m_mensajes.reset();
        m_entorno.reset();
    }

    void comoEstaCadaUno()
    {
        abrirPendientes();
        const Manos p = en("FrmPendientes");
        QCOMPARE(pendientes(),
                 u"A58818501|ÁLVAREZ|Pendiente||\n"
                 "00000001R|MEDIA|Guardada|0,00|\n"
                 "12345678Z|ZETA|Falta un mes anterior||2026: SEPTIEMBRE"_s);
        QCOMPARE(p.textos("lblNumDecla lblSuma"),
                 u"3 declarantes: 1 guardadas, 2 pendientes|Suma de las mostradas: 0,00"_s);
        const auto mostrar = [&](const QString &cuales) {
            p.escribir("cmbmostrar", cuales);
            p.tecla(Qt::Key_Tab);
            return filas("flxPendientes", "FrmPendientes", {1});
        };
        QCOMPARE(mostrar(u"PENDIENTES"_s), u"ÁLVAREZ\nZETA"_s);
        QCOMPARE(mostrar(u"GUARDADAS"_s), u"MEDIA"_s);
        QCOMPARE(mostrar(u"TODAS"_s), u"ÁLVAREZ\nMEDIA\nZETA"_s);
        auto *tabla = lista("flxPendientes", "FrmPendientes");
        tabla->setFocus();
        QTest::keyClicks(tabla, u"alv"_s);
        QCOMPARE(filas("flxPendientes", "FrmPendientes", {1}), u"ÁLVAREZ"_s);
        QTest::keyClicks(tabla, u"x"_s);
        QCOMPARE(p.texto("lblVacio"), u"Ningún declarante contiene «alvx»."_s);
        QTest::keyClick(tabla, Qt::Key_Escape);
        p.escribir("cmbperiodo", u"ANUAL"_s);
        p.tecla(Qt::Key_Tab);
        QCOMPARE(mostrar(u"GUARDADAS"_s), QString());
        QCOMPARE(p.texto("lblVacio"), u"Todavía no hay ninguna declaración guardada."_s);
        mostrar(u"TODAS"_s);
        p.escribir("txtejer", u"2031"_s);
        m_mensajes->responder(QMessageBox::Ok);
        p.tecla(Qt::Key_Tab);
        QCOMPARE(m_mensajes->texto(),
                 u"El ejercicio-periodo no puede ser anterior al 2002-01\n ni "
                 "posterior al 2030-12"_s);
        QCOMPARE(p.texto("txtejer"), u"2026"_s);
        Entorno::pasarAEuskera(*pantalla("FrmPendientes"));
        QCOMPARE(filas("flxPendientes", "FrmPendientes", {1, 2}),
                 u"ÁLVAREZ|Aurkezteke\nMEDIA|Aurreko hil bat falta da\n"
                 "ZETA|Aurreko hil bat falta da"_s);
    }

    /// The summary begins with the return looked at; back, the row is still chosen and tells what
    /// was saved.
    void deLaListaAlResumenYVuelta()
    {
        abrirPendientes();
        auto *tabla = lista("flxPendientes", "FrmPendientes");
        tabla->setFocus();
        QTest::keyClick(tabla, Qt::Key_Down);
        {
            const ModeloPerdido perdido; // what cannot be opened leaves no request behind
            m_mensajes->responder(QMessageBox::Ok);
            QTest::keyClick(tabla, Qt::Key_Return);
            QCoreApplication::processEvents();
            QCOMPARE(m_mensajes->tomar().size(), 1);
            QVERIFY(!unico::la<cDecResumen>().TomarPedida());
        }
        QTest::keyClick(tabla, Qt::Key_Return);
        QTRY_VERIFY(pantalla("FrmDecResumen"));
        QVERIFY(!en("FrmDecResumen").control("fraNueva")->isVisible());
        QCOMPARE(unico::la<cDecResumen>().DNI(), u"00000001R"_s);
        QVERIFY(unico::la<cDecResumen>().CSDE() > 0);
        en("FrmDecResumen").pulsar("cmdCerrar");
        QTRY_VERIFY(!pantalla("FrmDecResumen"));
        QTest::keyClick(tabla, Qt::Key_Down);
        QTest::keyClick(tabla, Qt::Key_Return);
        QTRY_VERIFY(pantalla("FrmDecResumen"));
        QCOMPARE(en("FrmDecResumen").textos("txtejer"), u"2026"_s);
        QCOMPARE(unico::la<cDecResumen>().PERIODO(), 10);
        en("FrmDecResumen").pulsar("ImgNueva");
        QTRY_VERIFY(pantalla("FrmDatos430"));
        en("FrmDatos430").escribir("txtbliq", u"1000"_s);
        en("FrmDatos430").pulsar("cmdAceptar");
        QTRY_VERIFY(!pantalla("FrmDatos430") && pantalla("FrmDecResumen"));
        en("FrmDecResumen").pulsar("cmdCerrar");
        QTRY_VERIFY(!pantalla("FrmDecResumen"));
        QCOMPARE(tabla->currentIndex().row(), 2);
        QVERIFY(pendientes().endsWith(u"12345678Z|ZETA|Guardada|80,00|2026: SEPTIEMBRE"_s));
        QCOMPARE(en("FrmPendientes").texto("lblSuma"), u"Suma de las mostradas: 80,00"_s);
        QTRY_COMPARE(m_ventana->findChild<QMdiArea *>()->activeSubWindow()->widget(),
                     pantalla("FrmPendientes"));
        QTRY_COMPARE(en("FrmPendientes").foco(), u"flxPendientes"_s);
    }

    /// The template filled in and read back, a row unticked, the refused ones saved.
    void laHojaDeIdaYVuelta()
    {
        abrirPendientes();
        const QString ruta = m_entorno->ruta(u"octubre.csv"_s);
        elegirFichero(ruta);
        en("FrmPendientes").pulsar("cmdPlantilla");
        QByteArray texto = lineas::leer(ruta);
        QCOMPARE(texto.count('\n'), 3);
        texto.replace("2026;10;;;", "2026;10;100;;");
        lineas::escribir(ruta, texto + "00000001R;;2026;10;50;;\n99;;2026;10;1;;\n");
        en("FrmPendientes").pulsar("cmdImportar");
        QTRY_VERIFY(pantalla("FrmImportarDeclaraciones"));
        const Manos i = en("FrmImportarDeclaraciones");
        i.pulsar("cmdFichero");
        QCOMPARE(hoja(),
                 u"2|A58818501|Nueva|8,00||\n"
                 "3|12345678Z|Nueva|8,00||\n"
                 "4|00000001R|Sustituye|4,00|0,00|\n"
                 "5|99|Rechazada|||DNI: No existe ningún declarante con el DNI-CIF 99."_s);
        QCOMPARE(i.texto("lblResumen"),
                 u"4 filas: 2 nuevas, 1 sustituyen a otra, 1 rechazadas. "
                 "Marcadas para guardar: 3."_s);
        auto *tabla = lista("flxHoja", "FrmImportarDeclaraciones");
        QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {},
                          tabla->visualRect(tabla->model()->index(0, 2)).center());
        QTest::keyClick(tabla, Qt::Key_Space);
        QVERIFY(i.texto("lblResumen").endsWith(u"Marcadas para guardar: 2."));
        m_mensajes->responder(QMessageBox::Yes);
        i.pulsar("cmdGuardar");
        QCOMPARE(m_mensajes->ficha(),
                 u"Question|Importar declaraciones|1 de las declaraciones marcadas sustituyen a "
                 u"otras ya "
                 "guardadas.\n\n¿Desea continuar?|No"_s);
        QCOMPARE(i.texto("lblResumen"),
                 u"Declaraciones guardadas: 2. No guardadas: 1. Rechazadas: 1."_s);
        QVERIFY(pendientes().startsWith(u"A58818501|ÁLVAREZ|Pendiente||\n"
                                        "00000001R|MEDIA|Guardada|4,00|"));
        const QString malas = m_entorno->ruta(u"malas.csv"_s);
        elegirFichero(malas);
        i.pulsar("cmdRechazadas");
        QVERIFY(lineas::leer(malas).endsWith(
            "99;;2026;10;1;;;DNI: No existe ningún declarante con el DNI-CIF 99.\r\n"));
        Entorno::pasarAEuskera(*pantalla("FrmImportarDeclaraciones"));
        QCOMPARE(hoja().section(u'\n', 1, 2),
                 u"3|12345678Z|Gordeta|8,00||\n4|00000001R|Gordeta|4,00|0,00|"_s);
    }

    void hojasQueNoSeLeen()
    {
        QTest::keyClick(m_ventana.get(), Qt::Key_D, Qt::ControlModifier);
        en("FrmPendientes").pulsar("cmdImportar");
        QTRY_VERIFY(pantalla("FrmImportarDeclaraciones"));
        const QString ruta = m_entorno->ruta(u"h.csv"_s);
        for (const auto &[contenido, motivo] :
             {std::pair{"DNI;EJERCICIO;PERIODO\n", u"Falta la columna «BASE»."_s},
              {"", u"El fichero «%1» está vacío."_s.arg(ruta)}}) {
            lineas::escribir(ruta, contenido);
            elegirFichero(ruta);
            m_mensajes->responder(QMessageBox::Ok);
            en("FrmImportarDeclaraciones").pulsar("cmdFichero");
            QCOMPARE(m_mensajes->texto(), motivo);
            QVERIFY(!en("FrmImportarDeclaraciones").control("cmdGuardar")->isEnabled());
        }
    }
};

QTEST_MAIN(TstCampanaPantallas)
#include "tst_campana_pantallas.moc"
