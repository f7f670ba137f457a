#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecResumen.h"
#include "declarations/FrmDatos430.h"
#include "declarations/cDatos430.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QSignalSpy>

#include <optional>

/// The 430 entry screen for a new return of January 2026 (rate 8 %), as the summary opens it.
class PruebaDatos430 : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::unique_ptr<FrmDatos430> m_pantalla;
    qint32 m_csco = 0;

    void abrir(const QString &modo, qint32 csde = 0)
    {
        auto &registro = unico::la<cDatos430>();
        registro.MODO(modo);
        registro.CSDE(csde);
        m_pantalla = std::make_unique<FrmDatos430>();
        m_pantalla->show();
        m_pantalla->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pantalla.get()));
    }
    Manos manos() const { return Manos(*m_pantalla); }
    static Filas declaraciones() { return unico::la<cDecResumen>().CargarDeclaraciones(); }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_csco = Entorno::altaDeclarante();
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(m_csco, u"12345678Z"_qs, u"SEGUROS UNO"_qs);
        cabecera.EJERCICIO(2026);
        cabecera.CambiarModelo(u"430"_qs);
        cabecera.PERIODO(1);
        abrir(u"A"_qs);
    }
    void cleanup()
    {
        m_pantalla.reset();
        m_entorno.reset();
    }

    void muestraCabeceraYCasillasVacias()
    {
        const auto m = manos();
        QCOMPARE(m.texto("lbldni"), u"12345678Z"_qs);
        QCOMPARE(m.texto("txtper"), u"01"_qs);
        QCOMPARE(m.texto("lblperiodo"), u"ENERO"_qs);
        QCOMPARE(m.texto("txttliq"), u"8,00"_qs);
        for (const char *vacia :
             {"txtbliq", "txtcliq", "txtbrect", "txtcrect", "txtbtot", "txtctot"})
            QCOMPARE(m.texto(vacia), QString());
        QCOMPARE(m.foco(), u"txtbliq"_qs);
        QVERIFY(!m.control("txtbrect")->isEnabled());
    }

    void recalculaEnCadaCambio()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"1234,56"_qs);
        m.tecla(Qt::Key_Return);
        QCOMPARE(m.foco(), u"chkrect"_qs);
        QCOMPARE(m.texto("txtbliq"), u"1.234,56"_qs);
        QCOMPARE(m.texto("txtcliq"), u"98,76"_qs); // 98.7648
        m.tecla(Qt::Key_Space);
        m.escribir("txtbrect", u"-100"_qs);
        m.escribir("txtcrect", u"-8,76"_qs);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbtot"), u"1.134,56"_qs);
        QCOMPARE(m.texto("txtctot"), u"90,00"_qs);
        m.pulsar("chkrect");
        QCOMPARE(m.texto("txtbrect"), QString());
        QCOMPARE(m.texto("txtctot"), u"98,76"_qs);
    }

    void formasDeTeclear_data()
    {
        QTest::addColumn<QString>("tecleado");
        QTest::addColumn<QString>("mostrado");
        QTest::newRow("comma") << u"1234,5"_qs << u"1.234,50"_qs;
        QTest::newRow("grouped") << u"1.234,56"_qs << u"1.234,56"_qs;
        QTest::newRow("lone point") << u"1234.56"_qs << u"1.234,56"_qs;
        QTest::newRow("letters are not taken") << u"12a3"_qs << u"123,00"_qs;
        QTest::newRow("third decimal is not taken") << u"1,239"_qs << u"1,23"_qs;
        QTest::newRow("14th digit is not taken")
            << u"12345678901234"_qs << u"1.234.567.890.123,00"_qs;
        QTest::newRow("negative") << u"-7"_qs << u"-7,00"_qs;
        QTest::newRow("emptied") << QString() << QString();
    }
    void formasDeTeclear()
    {
        QFETCH(QString, tecleado);
        QFETCH(QString, mostrado);
        const auto m = manos();
        m.escribir("txtbliq", tecleado);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbliq"), mostrado);
    }

    void puntoDelTecladoNumerico()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"12"_qs);
        QTest::keyEvent(QTest::Click, m.control("txtbliq"), '.', Qt::KeypadModifier);
        QTest::keyClicks(m.control("txtbliq"), u"5"_qs);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbliq"), u"12,50"_qs);
    }

    void corregirDentroDeUnImporteAgrupado()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"1234,56"_qs);
        m.tecla(Qt::Key_Tab);
        m.tecla(Qt::Key_Backtab);
        m.tecla(Qt::Key_Home);
        QTest::keyClicks(m.control("txtbliq"), u"9"_qs);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbliq"), u"91.234,56"_qs);
    }

    void importeQueNoSeEntiendeSeQueda()
    {
        ConductorMensajes conductor;
        conductor.responder(QMessageBox::Ok);
        const auto m = manos();
        m.escribir("txtbliq", u"1.23.4"_qs);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(conductor.texto(), msj(Msj::ImporteIlegible, u"1.23.4"_qs));
        QTRY_COMPARE(m.foco(), u"txtbliq"_qs);
        QCOMPARE(m.texto("txtbliq"), u"1.23.4"_qs);
        QCOMPARE(unico::la<cDatos430>().BASELIQ(), 0.0);
    }

    void totalQueNoCabeSeRechazaEnLaCasilla()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"9999999999999,99"_qs);
        m.pulsar("chkrect");
        ConductorMensajes conductor;
        conductor.responder(QMessageBox::Ok);
        m.escribir("txtbrect", u"1"_qs);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(conductor.texto(), msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
        QCOMPARE(unico::la<cDatos430>().BASETOT(), 999999999999999.0);
        QCOMPARE(unico::la<cDatos430>().BASEREC(), 0.0);
    }

    /// However the accept is given, the box that still has the focus counts.
    void aceptarTomaLaCasillaConElFoco_data()
    {
        QTest::addColumn<QString>("como");
        for (const char *como : {"cmdAceptar", "PicAce", "access key"})
            QTest::newRow(como) << QString::fromLatin1(como);
    }
    void aceptarTomaLaCasillaConElFoco()
    {
        QFETCH(QString, como);
        const auto m = manos();
        QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
        QSignalSpy cambios(m_pantalla.get(), &PantallaBase::datosCambiados);
        m.escribir("txtbliq", u"500"_qs);
        if (como == u"access key")
            m.tecla(Qt::Key_A, Qt::AltModifier);
        else
            m.pulsar(qPrintable(como));
        // a button answers to its access key a moment later
        QTRY_COMPARE(siguiente.count(), 1);
        QCOMPARE(siguiente.front().front().value<Pantalla>(), Pantalla::Resumen);
        QCOMPARE(cambios.count(), 1);
        const auto filas = declaraciones();
        QCOMPARE(filas.size(), 1);
        QCOMPARE(filas.front().toList().value(FilaDeclaracion::IMPORTE).toDouble(), 4000.0);
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_qs);
        QCOMPARE(unico::la<cDecResumen>().CSDE(),
                 filas.front().toList().value(FilaDeclaracion::CSDE));
    }

    void rectificacionSinImportes_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::newRow("C") << u"C"_qs;
        QTest::newRow("E") << u"E"_qs;
    }
    void rectificacionSinImportes()
    {
        QFETCH(QString, idioma);
        unico::la<CEntrada>().IDI(idioma);
        ConductorMensajes conductor;
        conductor.responder(QMessageBox::Ok);
        conductor.responder(QMessageBox::Ok);
        const auto m = manos();
        m.pulsar("chkrect");
        m.pulsar("cmdAceptar");
        m.escribir("txtbrect", u"10"_qs);
        m.pulsar("cmdAceptar");
        const auto cajas = conductor.tomar();
        QCOMPARE(cajas.size(), 2);
        QCOMPARE(cajas[0].texto, msj(Msj::ErrorRectificacion430));
        QCOMPARE(cajas[1].texto, msj(Msj::ErrorRectificacion430));
        QCOMPARE(cajas[0].icono, QMessageBox::Warning);
        QCOMPARE(m.foco(), u"txtbrect"_qs);
        QVERIFY(m_pantalla->isVisible());
        QVERIFY(declaraciones().isEmpty());
    }

    void guardadoQueFallaDejaLaPantalla()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"500"_qs);
        // somebody else holds the file
        const QString apartado = rutas().modelo + u".apartado"_qs;
        QVERIFY(QFile::rename(rutas().modelo, apartado));
        {
            ConductorMensajes conductor;
            conductor.responder(QMessageBox::Ok);
            m.pulsar("cmdAceptar");
            QVERIFY(conductor.texto().contains(u"OstrMod.mdb"_qs));
        }
        QVERIFY(m_pantalla->isVisible());
        QCOMPARE(m.texto("txtbliq"), u"500,00"_qs);
        QVERIFY(QFile::rename(apartado, rutas().modelo));
        m.pulsar("cmdAceptar");
        QCOMPARE(declaraciones().size(), 1);
    }

    void existenteSeCargaYSeCambia()
    {
        manos().escribir("txtbliq", u"500"_qs);
        manos().pulsar("cmdAceptar");
        const qint32 csde = unico::la<cDecResumen>().CSDE();
        abrir(u"C"_qs, csde);
        QCOMPARE(manos().texto("txtctot"), u"40,00"_qs);
        manos().escribir("txtbliq", u"600"_qs);
        manos().pulsar("PicAce");
        QCOMPARE(declaraciones().size(), 1);
        QCOMPARE(declaraciones().front().toList().value(FilaDeclaracion::IMPORTE).toDouble(),
                 4800.0);
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void cancelarNoGuarda_data()
    {
        QTest::addColumn<QString>("como");
        for (const char *como : {"cmdCancelar", "Piccan", "frame"})
            QTest::newRow(como) << QString::fromLatin1(como);
    }
    void cancelarNoGuarda()
    {
        QFETCH(QString, como);
        QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
        manos().escribir("txtbliq", u"500"_qs);
        if (como == u"frame")
            m_pantalla->close();
        else
            manos().pulsar(qPrintable(como));
        QCOMPARE(siguiente.count(), 1);
        QVERIFY(declaraciones().isEmpty());
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_qs);
        QCOMPARE(unico::la<cDecResumen>().CSDE(), 0);
    }

    void cambioDeIdiomaConservaLoTecleado()
    {
        manos().escribir("txtbliq", u"500"_qs);
        manos().tecla(Qt::Key_Tab);
        unico::la<CEntrada>().IDI(u"E"_qs);
        QEvent cambio(QEvent::LanguageChange);
        QApplication::sendEvent(m_pantalla.get(), &cambio);
        QCOMPARE(m_pantalla->windowTitle(), u"Aitorpen - Likidazioa 430"_qs);
        QCOMPARE(manos().texto("lblperiodo"), u"URTARRILA"_qs);
        QCOMPARE(manos().texto("txtbliq"), u"500,00"_qs);
    }
};

QTEST_MAIN(PruebaDatos430)
#include "tst_frmdatos430.moc"
