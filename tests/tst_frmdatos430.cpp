#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecResumen.h"
#include "declarations/FrmDatos430.h"
#include "declarations/cDatos430.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QSignalSpy>

#include <optional>

using namespace Qt::StringLiterals;

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
    static QList<DeclaracionListada> declaraciones()
    {
        return unico::la<cDecResumen>().CargarDeclaraciones();
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_csco = Entorno::altaDeclarante();
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(m_csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
        cabecera.EJERCICIO(2026);
        cabecera.CambiarModelo(u"430"_s);
        cabecera.PERIODO(1);
        abrir(u"A"_s);
    }
    void cleanup()
    {
        m_pantalla.reset();
        m_entorno.reset();
    }

    void muestraCabeceraYCasillasVacias()
    {
        const auto m = manos();
        QCOMPARE(m.texto("lbldni"), u"12345678Z"_s);
        QCOMPARE(m.texto("txtper"), u"01"_s);
        QCOMPARE(m.texto("lblperiodo"), u"ENERO"_s);
        QCOMPARE(m.texto("txttliq"), u"8,00"_s);
        for (const char *vacia :
             {"txtbliq", "txtcliq", "txtbrect", "txtcrect", "txtbtot", "txtctot"})
            QCOMPARE(m.texto(vacia), QString());
        QCOMPARE(m.foco(), u"txtbliq"_s);
        QVERIFY(!m.control("txtbrect")->isEnabled());
    }

    void recalculaEnCadaCambio()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"1234,56"_s);
        m.tecla(Qt::Key_Return);
        QCOMPARE(m.foco(), u"chkrect"_s);
        QCOMPARE(m.texto("txtbliq"), u"1.234,56"_s);
        QCOMPARE(m.texto("txtcliq"), u"98,76"_s); // 98.7648
        m.tecla(Qt::Key_Space);
        m.escribir("txtbrect", u"-100"_s);
        m.escribir("txtcrect", u"-8,76"_s);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbtot"), u"1.134,56"_s);
        QCOMPARE(m.texto("txtctot"), u"90,00"_s);
        m.pulsar("chkrect");
        QCOMPARE(m.texto("txtbrect"), QString());
        QCOMPARE(m.texto("txtctot"), u"98,76"_s);
    }

    void formasDeTeclear()
    {
        const auto m = manos();
        for (const auto &[tecleado, mostrado] :
             {std::pair{u"1234,5"_s, u"1.234,50"_s},
              {u"1.234,56"_s, u"1.234,56"_s},
              {u"1234.56"_s, u"1.234,56"_s},
              {u"12a3"_s, u"123,00"_s}, // letters, a third decimal, a 14th digit are not taken
              {u"1,239"_s, u"1,23"_s},
              {u"12345678901234"_s, u"1.234.567.890.123,00"_s},
              {u"-7"_s, u"-7,00"_s},
              {QString(), QString()}}) {
            m.escribir("txtbliq", tecleado);
            m.tecla(Qt::Key_Tab);
            QCOMPARE(m.texto("txtbliq"), mostrado);
        }
        // the point of the numeric keypad is the comma
        m.escribir("txtbliq", u"12"_s);
        QTest::keyEvent(QTest::Click, m.control("txtbliq"), '.', Qt::KeypadModifier);
        QTest::keyClicks(m.control("txtbliq"), u"5"_s);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbliq"), u"12,50"_s);
        // a digit more within an amount that the program has grouped
        m.escribir("txtbliq", u"1234,56"_s);
        m.tecla(Qt::Key_Tab);
        m.tecla(Qt::Key_Backtab);
        m.tecla(Qt::Key_Home);
        QTest::keyClicks(m.control("txtbliq"), u"9"_s);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m.texto("txtbliq"), u"91.234,56"_s);
    }

    void importeQueNoSeEntiendeSeQueda()
    {
        ConductorMensajes conductor;
        const auto m = manos();
        m.escribir("txtbliq", u"1.23.4"_s);
        conductor.responder(QMessageBox::Ok);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(conductor.texto(), msj(Msj::ImporteIlegible, u"1.23.4"_s));
        QTRY_COMPARE(m.foco(), u"txtbliq"_s);
        QCOMPARE(m.texto("txtbliq"), u"1.23.4"_s);
        QCOMPARE(unico::la<cDatos430>().BASELIQ(), 0.0);
    }

    void totalQueNoCabeSeRechazaEnLaCasilla()
    {
        ConductorMensajes conductor;
        const auto m = manos();
        m.escribir("txtbliq", u"9999999999999,99"_s);
        m.pulsar("chkrect");
        m.escribir("txtbrect", u"1"_s);
        conductor.responder(QMessageBox::Ok);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(conductor.texto(), msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
        QCOMPARE(unico::la<cDatos430>().BASETOT(), 999999999999999.0);
        QCOMPARE(unico::la<cDatos430>().BASEREC(), 0.0);
    }

    void aceptarTomaLaCasillaConElFoco()
    {
        int mes = 0;
        for (const char *como : {"cmdAceptar", "PicAce", "access key"}) {
            abrir(u"A"_s);
            unico::la<cDecResumen>().PERIODO(quint8(++mes));
            const auto m = manos();
            QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
            QSignalSpy cambios(m_pantalla.get(), &PantallaBase::datosCambiados);
            m.escribir("txtbliq", u"500"_s);
            if (qstrcmp(como, "access key") == 0)
                m.tecla(Qt::Key_A, Qt::AltModifier);
            else
                m.pulsar(como);
            // a button answers to its access key a moment later
            QTRY_COMPARE(siguiente.count(), 1);
            QCOMPARE(siguiente.front().front().value<Pantalla>(), Pantalla::Resumen);
            QCOMPARE(cambios.count(), 1);
            const auto fila = declaraciones().constLast();
            QCOMPARE(declaraciones().size(), mes);
            QCOMPARE(fila.importe, 4000.0);
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QCOMPARE(unico::la<cDecResumen>().CSDE(), fila.csde);
        }
    }

    void rectificacionSinImportes()
    {
        ConductorMensajes conductor;
        const auto m = manos();
        m.pulsar("chkrect");
        for (const auto &[caja, idioma] :
             {std::pair{"txtbrect", u"C"_s}, std::pair{"txtcrect", u"E"_s}}) {
            unico::la<CEntrada>().IDI(idioma);
            m.escribir(caja, u"10"_s);
            conductor.responder(QMessageBox::Ok);
            m.pulsar("cmdAceptar");
            const auto cajas = conductor.tomar();
            QCOMPARE(cajas.size(), 1);
            QCOMPARE(cajas[0].texto, msj(Msj::ErrorRectificacion430));
            QCOMPARE(cajas[0].icono, QMessageBox::Warning);
            QCOMPARE(m.foco(), u"txtbrect"_s);
            m.escribir(caja, {});
        }
        QVERIFY(m_pantalla->isVisible());
        QVERIFY(declaraciones().isEmpty());
    }

    void guardadoQueFallaDejaLaPantalla()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"500"_s);
        {
            const ModeloPerdido perdido;
            ConductorMensajes conductor;
            conductor.responder(QMessageBox::Ok);
            m.pulsar("cmdAceptar");
            QVERIFY(conductor.texto().contains(u"OstrMod.mdb"_s));
        }
        QVERIFY(m_pantalla->isVisible());
        QCOMPARE(m.texto("txtbliq"), u"500,00"_s);
        m.pulsar("cmdAceptar");
        QCOMPARE(declaraciones().size(), 1);
    }

    void existenteSeCargaYSeCambia()
    {
        manos().escribir("txtbliq", u"500"_s);
        manos().pulsar("cmdAceptar");
        const qint32 csde = unico::la<cDecResumen>().CSDE();
        abrir(u"C"_s, csde);
        QCOMPARE(manos().texto("txtctot"), u"40,00"_s);
        manos().escribir("txtbliq", u"600"_s);
        manos().pulsar("PicAce");
        QCOMPARE(declaraciones().size(), 1);
        QCOMPARE(declaraciones().front().importe, 4800.0);
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void cancelarNoGuarda()
    {
        for (const char *como : {"cmdCancelar", "Piccan", "frame"}) {
            abrir(u"A"_s);
            QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
            manos().escribir("txtbliq", u"500"_s);
            if (qstrcmp(como, "frame") == 0)
                m_pantalla->close();
            else
                manos().pulsar(como);
            QCOMPARE(siguiente.count(), 1);
            QVERIFY(declaraciones().isEmpty());
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
        }
    }

    void cambioDeIdiomaConservaLoTecleado()
    {
        manos().escribir("txtbliq", u"500"_s);
        manos().tecla(Qt::Key_Tab);
        Entorno::pasarAEuskera(*m_pantalla);
        QCOMPARE(m_pantalla->windowTitle(), u"Aitorpen - Likidazioa 430"_s);
        QCOMPARE(manos().texto("lblperiodo"), u"URTARRILA"_s);
        QCOMPARE(manos().texto("txtbliq"), u"500,00"_s);
    }
};

QTEST_MAIN(PruebaDatos430)
#include "tst_frmdatos430.moc"
