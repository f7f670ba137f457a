#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "declarants/cDecResumen.h"
#include "declarations/FrmDatos430.h"
#include "declarations/cDatos430.h"
#include "support/ConductorMensajes.h"
#include "support/DeclaracionesPrueba.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/Retrato.h"

#include <QSignalSpy>

#include <optional>

using namespace Qt::StringLiterals;

/// The 430 entry screen for a new return of January 2026 (rate 8 %), as the summary opens it.
class TstFrmDatos430 : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;
    std::unique_ptr<FrmDatos430> m_pantalla;
    qint32 m_csco = 0;

    void abrir(const QString &modo, qint32 csde = 0)
    {
        auto &registro = unico::la<cDatos430>();
        registro.MODO(modo);
        registro.CSDE(csde);
        m_pantalla = std::make_unique<FrmDatos430>();
        m_pantalla->resize(m_pantalla->sizeHint());
        m_pantalla->show();
        m_pantalla->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pantalla.get()));
    }
    Manos manos() const { return Manos(*m_pantalla); }
    /// Presses a button and answers Ok to the one message that it brings; the message's text.
    QString avisoAlPulsar(const char *boton)
    {
        m_mensajes->responder(QMessageBox::Ok);
        manos().pulsar(boton);
        return m_mensajes->texto();
    }
    /// What is stored: the figures of the only return, or nothing.
    static Registro guardado()
    {
        const Filas filas = servicioFilas();
        Registro figuras;
        if (filas.size() != 1)
            return figuras;
        qint32 csde = filas[0].toList().value(FilaDeclaracion::CSDE).toInt();
        servicioDeclaracion()->Cargar430(csde, figuras);
        return figuras;
    }
    static Filas servicioFilas()
    {
        Filas filas;
        servicioDeclaracion()->dameResultado(filas, unico::la<cDecResumen>().CSCO());
        return filas;
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
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
        m_mensajes.reset();
        m_entorno.reset();
    }

    void nuevaEnLosDosIdiomas()
    {
        QCOMPARE(m_pantalla->windowTitle(), u"Declaración - Liquidación 430"_s);
        compararRetrato(
            *m_pantalla,
            u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=01) ENERO\n"
            "Base imponible Tipo Cuota\n"
            "Liquidación [txtbliq=] (txttliq=8,00) (txtcliq=)\n"
            "<Rectificación de períodos anteriores>\n"
            "Rectificación -[txtbrect=] -[txtcrect=]\n"
            "Total (txtbtot=) (txtttot=8,00) (txtctot=)\n"
            "<Aceptar> <Cancelar>"_s);
        QCOMPARE(vueltaConTab(*m_pantalla), u"txtbliq chkrect cmdAceptar cmdCancelar"_s);
        manos().escribir("txtbliq", u"500"_s);
        manos().pulsar("chkrect");
        QCOMPARE(vueltaConTab(*m_pantalla),
                 u"chkrect txtbrect txtcrect cmdAceptar cmdCancelar txtbliq"_s);
        Entorno::pasarAEuskera(*m_pantalla);
        QCOMPARE(m_pantalla->windowTitle(), u"Aitorpen - Likidazioa 430"_s);
        compararRetrato(
            *m_pantalla,
            u"12345678Z SEGUROS UNO Ekitaldia (txtejer=2026) Zergaldia (txtper=01) URTARRILA\n"
            "Oinarri ezargarria Tasa Kuota\n"
            "Likidazioa [txtbliq=500,00] (txttliq=8,00) (txtcliq=40,00)\n"
            "<Aurreko zergaldien zuzenketa>\n"
            "Zuzenketa [txtbrect=] [txtcrect=]\n"
            "Guztira (txtbtot=500,00) (txtttot=8,00) (txtctot=40,00)\n"
            "<Ados> <Utzi>"_s);
        QCOMPARE(manos().control("txtcrect")->accessibleName(), u"Zuzenketa: Kuota"_s);
    }

    void existenteSeMuestraYSeGuardaEntera()
    {
        const qint32 csde = guardarDistinta(m_csco, u"430"_s);
        unico::la<cDecResumen>().CSDE(csde);
        abrir(u"C"_s, csde);
        compararRetrato(
            *m_pantalla,
            u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=01) ENERO\n"
            "Base imponible Tipo Cuota\n"
            "Liquidación [txtbliq=1.111,11] (txttliq=7,15) (txtcliq=2.222,22)\n"
            "<Rectificación de períodos anteriores>\n"
            "Rectificación [txtbrect=-3.333,33] [txtcrect=-44,44]\n"
            "Total (txtbtot=5.555,55) (txtttot=6,00) (txtctot=6.666,66)\n"
            "<Aceptar> <Cancelar>"_s);
        manos().escribir("txtbliq", u"1111,11"_s); // the same amount: nothing is computed again
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().texto("txtctot"), u"6.666,66"_s);
        manos().escribir("txtcrect", u"-44,45"_s);
        manos().pulsar("PicAce");
        QCOMPARE(guardado(),
                 (Registro{u"X"_s, 111111.0, 7.15F, 7944.0, -333333.0, -4445.0, -222222.0, 6.0F,
                           3499.0}));
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void recalculaEnCadaCambio()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"1234,56"_s);
        m.tecla(Qt::Key_Enter);
        QCOMPARE(m.foco(), u"chkrect"_s);
        QCOMPARE(m.texto("txtbliq"), u"1.234,56"_s);
        QCOMPARE(m.texto("txtcliq"), u"98,76"_s); // 98.7648
        m.tecla(Qt::Key_Space);
        m.escribir("txtbrect", u"-100"_s);
        m.tecla(Qt::Key_Tab);
        QTest::keyClicks(m.control("txtcrect"), u"-8,76"_s);
        m.tecla(Qt::Key_Backtab);
        QCOMPARE(m.control<QLineEdit>("txtbrect")->selectedText(), u"-100,00"_s);
        QCOMPARE(m.texto("txtbtot"), u"1.134,56"_s);
        QCOMPARE(m.texto("txtctot"), u"90,00"_s);
        m.pulsar("chkrect");
        QCOMPARE(m.texto("txtbrect"), QString());
        QCOMPARE(m.texto("txtctot"), u"98,76"_s);
        QVERIFY(!m.control("txtbrect")->isEnabled() && !m.control("txtcrect")->isEnabled());
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
        const auto m = manos();
        m.escribir("txtbliq", u"1.23.4"_s);
        m_mensajes->responder(QMessageBox::Ok);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m_mensajes->texto(), u"«1.23.4» no es un importe."_s);
        QTRY_COMPARE(m.foco(), u"txtbliq"_s);
        QCOMPARE(m.texto("txtbliq"), u"1.23.4"_s);
        QCOMPARE(unico::la<cDatos430>().BASELIQ(), 0.0);
    }

    void totalQueNoCabeSeRechazaEnLaCasilla()
    {
        const auto m = manos();
        m.escribir("txtbliq", u"9999999999999,99"_s);
        m.pulsar("chkrect");
        m.escribir("txtbrect", u"1"_s);
        m_mensajes->responder(QMessageBox::Ok);
        m.tecla(Qt::Key_Tab);
        QCOMPARE(m_mensajes->texto(),
                 u"No se admite el cambio: el total «Total» tendría más de 13 "
                 "cifras enteras."_s);
        QCOMPARE(unico::la<cDatos430>().BASETOT(), 999999999999999.0);
        QCOMPARE(unico::la<cDatos430>().BASEREC(), 0.0);
    }

    void aceptarTomaLaCasillaConElFoco_data()
    {
        QTest::addColumn<QString>("boton"); // none: by its access key
        QTest::newRow("button") << u"cmdAceptar"_s;
        QTest::newRow("picture") << u"PicAce"_s;
        QTest::newRow("access key") << QString();
    }
    void aceptarTomaLaCasillaConElFoco()
    {
        QFETCH(QString, boton);
        const auto m = manos();
        QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
        QSignalSpy cambios(m_pantalla.get(), &PantallaBase::datosCambiados);
        m.escribir("txtbliq", u"500"_s);
        if (boton.isEmpty())
            m.tecla(Qt::Key_A, Qt::AltModifier);
        else
            m.pulsar(boton.toLatin1().constData());
        // a button answers to its access key a moment later
        QTRY_COMPARE(siguiente.count(), 1);
        QCOMPARE(siguiente.front().front().value<Pantalla>(), Pantalla::Resumen);
        QCOMPARE(cambios.count(), 1);
        QCOMPARE(guardado(),
                 (Registro{QString(), 50000.0, 8.0F, 4000.0, 0.0, 0.0, 50000.0, 8.0F, 4000.0}));
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
        QCOMPARE(unico::la<cDecResumen>().CSDE(),
                 servicioFilas()[0].toList().value(FilaDeclaracion::CSDE));
    }

    void rectificacionSinImportes()
    {
        const auto m = manos();
        m.pulsar("chkrect");
        for (
            const auto &[caja, idioma, texto] :
            {std::tuple{"txtbrect", u"C"_s,
                        u"La casillas Base imponible y Cuota de Rectificación no pueden ser 0"_s},
             {"txtcrect", u"E"_s,
              u"Oinarri ezargarriaren eta zuzenketa kuotaren laukien balioa ezin da zero izan"_s}}) {
            unico::la<CEntrada>().IDI(idioma);
            m.escribir(caja, u"10"_s);
            m_mensajes->responder(QMessageBox::Ok);
            m.pulsar("cmdAceptar");
            const auto cajas = m_mensajes->tomar();
            QCOMPARE(cajas.size(), 1);
            QCOMPARE(cajas[0].texto, texto);
            QCOMPARE(cajas[0].icono, QMessageBox::Warning);
            QCOMPARE(cajas[0].titulo, u"Declaración - Liquidación 430"_s);
            QCOMPARE(m.foco(), u"txtbrect"_s);
            m.escribir(caja, {});
        }
        QVERIFY(m_pantalla->isVisible());
        QVERIFY(servicioFilas().isEmpty());
    }

    void guardadoQueFallaDejaLaPantalla()
    {
        manos().escribir("txtbliq", u"500"_s);
        {
            const ModeloPerdido perdido;
            QVERIFY(avisoAlPulsar("cmdAceptar").contains(u"OstrMod.mdb"_s));
        }
        QVERIFY(m_pantalla->isVisible());
        QCOMPARE(manos().texto("txtbliq"), u"500,00"_s);
        manos().pulsar("cmdAceptar");
        QCOMPARE(servicioFilas().size(), 1);
    }

    /// The mark stays as it is while a box refuses its text, whichever way it is pressed.
    void laMarcaEsperaALasCasillas()
    {
        const auto m = manos();
        m.pulsar("chkrect");
        m.escribir("txtbrect", u"1.23.4"_s);
        m_mensajes->responder(QMessageBox::Ok);
        m.pulsar("chkrect");
        QCOMPARE(m_mensajes->texto(), u"«1.23.4» no es un importe."_s);
        QVERIFY(m.control<QAbstractButton>("chkrect")->isChecked());
        QCOMPARE(unico::la<cDatos430>().RECTIFICA(), u"X"_s);
        QCOMPARE(m.texto("txtbrect"), u"1.23.4"_s);
        m.escribir("txtbrect", u"5"_s);
        m.pulsar("chkrect");
        QVERIFY(!m.control<QAbstractButton>("chkrect")->isChecked());
        QCOMPARE(m.texto("txtbtot"), QString());
    }

    void loGuardadoSeDice()
    {
        for (const auto &[idioma, dicho] :
             {std::pair{u"C"_s, u"Declaración guardada: 430 ENERO 2026: 40,00"_s},
              {u"E"_s, u"Aitorpena gorde da: 430 URTARRILA 2026: 40,08"_s}}) {
            unico::la<CEntrada>().IDI(idioma);
            QSignalSpy dichos(m_pantalla.get(), &PantallaBase::dicho);
            manos().escribir("txtbliq", idioma == u"C" ? u"500"_s : u"501"_s);
            manos().pulsar("cmdAceptar");
            QCOMPARE(dichos.count(), 1);
            QCOMPARE(dichos[0][0].toString(), dicho);
            abrir(u"C"_s, unico::la<cDecResumen>().CSDE());
        }
    }

    void cambiadaEnOtraCopia_data()
    {
        QTest::addColumn<int>("respuesta");
        QTest::addColumn<double>("guardada"); // base of the liquidation stored afterwards
        QTest::addColumn<QString>("mostrada"); // and shown; none when the screen has closed
        QTest::newRow("replace") << int(QMessageBox::Yes) << 700.0 << QString();
        QTest::newRow("keep") << int(QMessageBox::No) << 900.0 << u"9,00"_s;
        QTest::newRow("neither") << int(QMessageBox::Cancel) << 900.0 << u"7,00"_s;
    }
    void cambiadaEnOtraCopia()
    {
        QFETCH(int, respuesta);
        QFETCH(double, guardada);
        QFETCH(QString, mostrada);
        const qint32 csde = guardarDistinta(m_csco, u"430"_s);
        abrir(u"C"_s, csde);
        Registro deOtra = figurasDistintas(u"430"_s);
        deOtra[Reg430::BASELIQ] = 900.0;
        servicioDeclaracion()->Guardar430(Registro{csde, m_csco, 2026, 1, 1, u"430"_s, 1} + deOtra);
        manos().escribir("txtbliq", u"7"_s);
        m_mensajes->responder(static_cast<QMessageBox::StandardButton>(respuesta));
        manos().pulsar("cmdAceptar");
        QVERIFY(m_mensajes->texto().contains(u"«430 ENERO 2026»"_s));
        QCOMPARE(guardado()[Reg430::BASELIQ].toDouble(), guardada);
        QCOMPARE(m_pantalla->isVisible(), !mostrada.isEmpty());
        if (!mostrada.isEmpty())
            QCOMPARE(manos().texto("txtbliq"), mostrada);
    }

    void guardadaOEliminadaEnOtraCopia()
    {
        manos().escribir("txtbliq", u"7"_s);
        const qint32 csde = guardarDistinta(m_csco, u"430"_s);
        QCOMPARE(avisoAlPulsar("cmdAceptar"),
                 u"No se puede dar de alta la nueva declaración. Ya existe una declaración con ese "
                 "ejercicio-periodo"_s);
        QVERIFY(m_pantalla->isVisible());
        QCOMPARE(manos().texto("txtbliq"), u"7,00"_s);

        abrir(u"C"_s, csde);
        auto servicio = servicioDeclaracion();
        servicio->BorrarDatosNoComunes(csde, u"430"_s);
        servicio->BorrarDeclaracion(csde);
        QCOMPARE(avisoAlPulsar("cmdAceptar"),
                 u"«430 ENERO 2026» ya no existe: se ha eliminado en "
                 "otra copia del programa."_s);
        QVERIFY(m_pantalla->isVisible() && servicioFilas().isEmpty());
    }

    /// Only what differs from what was loaded asks before it is lost.
    void sinCambiosNoPregunta()
    {
        manos().escribir("txtbliq", u"7"_s);
        manos().tecla(Qt::Key_Tab);
        QVERIFY(m_pantalla->perderia());
        manos().escribir("txtbliq", {});
        manos().tecla(Qt::Key_Tab);
        QVERIFY(!m_pantalla->perderia());
        m_pantalla->close();
        QVERIFY(!m_pantalla->isVisible());
    }

    /// However long the name, the form is as wide as ever.
    void nombreLargo()
    {
        const int ancho = m_pantalla->sizeHint().width();
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(m_csco, u"12345678Z"_s, QString(300, u'W'));
        abrir(u"A"_s);
        QCOMPARE(m_pantalla->sizeHint().width(), ancho);
        QVERIFY(m_pantalla->minimumSizeHint().width() <= ancho);
    }

    /// A box that cannot be read stands in the way of no cancel; only the frame asks.
    void cancelarNoGuarda()
    {
        for (const char *como : {"cmdCancelar", "Piccan", "access key", "frame"}) {
            abrir(u"A"_s);
            QSignalSpy siguiente(m_pantalla.get(), &PantallaBase::mostrar);
            manos().escribir("txtbliq", u"1.23.4"_s);
            if (qstrcmp(como, "frame") == 0) {
                for (const auto respuesta : {QMessageBox::No, QMessageBox::Yes}) {
                    m_mensajes->responder(respuesta);
                    m_pantalla->close();
                    QCOMPARE(m_pantalla->isVisible(), respuesta == QMessageBox::No);
                }
            } else if (qstrcmp(como, "access key") == 0) {
                manos().tecla(Qt::Key_C, Qt::AltModifier);
                QTRY_VERIFY(!m_pantalla->isVisible());
            } else {
                manos().pulsar(como);
            }
            QCOMPARE(siguiente.count(), 1);
            QVERIFY(servicioFilas().isEmpty());
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
        }
    }
};

QTEST_MAIN(TstFrmDatos430)
#include "tst_frmdatos430.moc"
