#include "declarations/FrmDatos430.h"
#include "declarations/cDatos430.h"
#include "support/DeclaracionesPrueba.h"
#include "support/PantallaAbierta.h"
#include "support/Retrato.h"

/// The 430 entry screen for a new return of January 2026 (rate 8 %), as the summary opens it.
struct Formulario : PantallaAbierta<FrmDatos430>
{
    explicit Formulario(const QString &idioma = u"C"_s)
    {
        unico::la<CEntrada>().IDI(idioma);
        csco = Entorno::altaDeclarante();
        tomarCabecera(csco, u"430"_s, 1);
        abrir(u"A"_s);
    }
    void abrir(const QString &modo, qint32 csde = 0)
    {
        unico::la<cDatos430>().MODO(modo);
        unico::la<cDatos430>().CSDE(csde);
        PantallaAbierta::abrir();
    }
    /// Types and leaves the box; what it shows then.
    QString rellenar(const char *caja, const QString &texto)
    {
        manos->escribir(caja, texto);
        manos->tecla(Qt::Key_Tab);
        return manos->texto(caja);
    }
    Filas filas() const { return declaracionesDe(csco); }
    /// What is stored: the figures of the only return, or nothing.
    Registro guardado() const
    {
        Registro figuras;
        if (const Filas todas = filas(); todas.size() == 1) {
            qint32 csde = todas[0].toList().value(FilaDeclaracion::CSDE).toInt();
            servicioDeclaracion()->Cargar430(csde, figuras);
        }
        return figuras;
    }

    qint32 csco = 0;
};

class TstFrmDatos430 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nuevaEnLosDosIdiomas()
    {
        Formulario f;
        compararRetrato(
            *f.pantalla,
            u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=01) ENERO\n"
            "Base imponible Tipo Cuota\nLiquidación [txtbliq=] (txttliq=8,00) (txtcliq=)\n"
            "<Rectificación de períodos anteriores>\nRectificación -[txtbrect=] -[txtcrect=]\n"
            "Total (txtbtot=) (txtttot=8,00) (txtctot=)\n<Aceptar> <Cancelar>"_s);
        QCOMPARE(vueltaConTab(*f.pantalla), u"txtbliq chkrect cmdAceptar cmdCancelar"_s);
        f.manos->pulsar("chkrect");
        QCOMPARE(vueltaConTab(*f.pantalla),
                 u"chkrect txtbrect txtcrect cmdAceptar cmdCancelar txtbliq"_s);
        f.manos->escribir("txtbliq", u"500"_s); // only typed yet
        Entorno::pasarAEuskera(*f.pantalla);
        QCOMPARE(f.manos->textos("txtbliq txtctot lblperiodo"), u"500,00|40,00|URTARRILA"_s);
    }

    void existenteSeMuestraYSeGuardaEntera()
    {
        Formulario f;
        const qint32 csde = guardarDistinta(f.csco, u"430"_s);
        unico::la<cDecResumen>().CSDE(csde);
        f.abrir(u"C"_s, csde);
        compararRetrato(
            *f.pantalla,
            u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=01) ENERO\n"
            "Base imponible Tipo Cuota\n"
            "Liquidación [txtbliq=1.111,11] (txttliq=7,15) (txtcliq=2.222,22)\n"
            "<Rectificación de períodos anteriores>\n"
            "Rectificación [txtbrect=-3.333,33] [txtcrect=-44,44]\n"
            "Total (txtbtot=5.555,55) (txtttot=6,00) (txtctot=6.666,66)\n<Aceptar> <Cancelar>"_s);
        f.rellenar("txtbliq", u"1111,11"_s); // the same amount: nothing is computed again
        QCOMPARE(f.manos->texto("txtctot"), u"6.666,66"_s);
        f.manos->escribir("txtcrect", u"-44,45"_s);
        f.manos->pulsar("PicAce");
        QCOMPARE(f.guardado(),
                 (Registro{u"X"_s, 111111.0, 7.15F, 7944.0, -333333.0, -4445.0, -222222.0, 6.0F,
                           3499.0}));
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void recalculaEnCadaCambio()
    {
        Formulario f;
        const auto &m = *f.manos;
        const auto *cajas = "txtbliq txtcliq txtbrect txtbtot txtctot";
        m.escribir("txtbliq", u"1234,56"_s);
        m.tecla(Qt::Key_Enter);
        QCOMPARE(m.foco(), u"chkrect"_s);
        QCOMPARE(m.textos(cajas), u"1.234,56|98,76||1.234,56|98,76"_s); // 98.7648
        m.tecla(Qt::Key_Space);
        f.rellenar("txtbrect", u"-100"_s);
        QTest::keyClicks(m.control("txtcrect"), u"-8,76"_s);
        m.tecla(Qt::Key_Backtab);
        QCOMPARE(m.control<QLineEdit>("txtbrect")->selectedText(), u"-100,00"_s);
        QCOMPARE(m.textos(cajas), u"1.234,56|98,76|-100,00|1.134,56|90,00"_s);
        m.pulsar("chkrect");
        QCOMPARE(m.textos(cajas), u"1.234,56|98,76||1.234,56|98,76"_s);
        QVERIFY(!m.control("txtbrect")->isEnabled() && !m.control("txtcrect")->isEnabled());
    }

    void importesRechazadosEnLaCasilla()
    {
        Formulario f;
        f.mensajes.responder(QMessageBox::Ok);
        QCOMPARE(f.rellenar("txtbliq", u"1.23.4"_s), u"1.23.4"_s);
        QCOMPARE(f.mensajes.texto(), u"«1.23.4» no es un importe."_s);
        QTRY_COMPARE(f.manos->foco(), u"txtbliq"_s);
        QApplication::setActiveWindow(f.pantalla.get());
        QCOMPARE(unico::la<cDatos430>().BASELIQ(), 0.0);
        f.manos->escribir("txtbliq", u"9999999999999,99"_s);
        f.manos->pulsar("chkrect");
        f.mensajes.responder(QMessageBox::Ok);
        f.rellenar("txtbrect", u"1"_s);
        QCOMPARE(f.mensajes.texto(),
                 u"No se admite el cambio: el total «Total» tendría más de 13 cifras enteras."_s);
        QCOMPARE(unico::la<cDatos430>().BASETOT(), 999999999999999.0);
        QCOMPARE(unico::la<cDatos430>().BASEREC(), 0.0);
    }

    /// Accepting takes the box with the focus, by either button and by the access key.
    void loGuardadoSeDice()
    {
        for (const auto &[como, idioma, dicho] :
             {std::tuple{"cmdAceptar", u"C"_s, u"Declaración guardada: 430 ENERO 2026: 40,00"_s},
              {"PicAce", u"E"_s, u"Aitorpena gorde da: 430 URTARRILA 2026: 40,00"_s},
              {"Alt+A", u"C"_s, u"Declaración guardada: 430 ENERO 2026: 40,00"_s}}) {
            Formulario f(idioma);
            QSignalSpy cambios(f.pantalla.get(), &PantallaBase::datosCambiados);
            QSignalSpy dichos(f.pantalla.get(), &PantallaBase::dicho);
            f.manos->escribir("txtbliq", u"500"_s);
            f.salir(como);
            // a button answers to its access key a moment later
            QTRY_COMPARE(f.siguiente, Pantalla::Resumen);
            QCOMPARE(cambios.count(), 1);
            QCOMPARE(dichos.value(0).value(0).toString(), dicho);
            QCOMPARE(f.guardado(),
                     (Registro{QString(), 50000.0, 8.0F, 4000.0, 0.0, 0.0, 50000.0, 8.0F, 4000.0}));
            QCOMPARE(unidos({unico::la<cDecResumen>().ENTRADA(), unico::la<cDecResumen>().CSDE()}),
                     u"P|"_s + f.filas()[0].toList().value(FilaDeclaracion::CSDE).toString());
        }
    }

    void rectificacionSinImportes()
    {
        Formulario f;
        f.manos->pulsar("chkrect");
        for (
            const auto &[caja, idioma, texto] :
            {std::tuple{"txtbrect", u"C"_s,
                        u"La casillas Base imponible y Cuota de Rectificación no pueden ser 0"_s},
             {"txtcrect", u"E"_s,
              u"Oinarri ezargarriaren eta zuzenketa kuotaren laukien balioa ezin da zero izan"_s}}) {
            unico::la<CEntrada>().IDI(idioma);
            f.manos->escribir(caja, u"10"_s);
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
            QCOMPARE(f.mensajes.ficha(),
                     u"Warning|Declaración - Liquidación 430|%1|Ok"_s.arg(texto));
            QCOMPARE(f.manos->foco(), u"txtbrect"_s);
            f.manos->escribir(caja, {});
        }
        QVERIFY(f.pantalla->isVisible() && f.filas().isEmpty());
    }

    /// The mark stays as it is while a box refuses its text, whichever way it is pressed.
    void laMarcaEsperaALasCasillas()
    {
        Formulario f;
        f.manos->pulsar("chkrect");
        f.manos->escribir("txtbrect", u"1.23.4"_s);
        QCOMPARE(f.aviso("chkrect"), u"«1.23.4» no es un importe."_s);
        const auto *marca = f.manos->control<QAbstractButton>("chkrect");
        QTRY_COMPARE(f.manos->foco(), u"txtbrect"_s);
        f.mensajes.responder(QMessageBox::Ok); // once, although the key moves the focus too
        f.manos->tecla(Qt::Key_R, Qt::AltModifier);
        QTRY_VERIFY(!marca->isDown());
        QTRY_COMPARE(f.manos->foco(), u"txtbrect"_s);
        QVERIFY(marca->isChecked());
        QCOMPARE(unico::la<cDatos430>().RECTIFICA(), u"X"_s);
        QCOMPARE(f.manos->texto("txtbrect"), u"1.23.4"_s);
        f.manos->escribir("txtbrect", u"5"_s);
        f.manos->pulsar("chkrect");
        QVERIFY(!marca->isChecked());
        QCOMPARE(f.manos->texto("txtbtot"), QString());
    }

    void cambiadaEnOtraCopia()
    {
        // the answer, the base stored afterwards, and the one shown while the screen is open
        for (const auto &[respuesta, guardada, mostrada] :
             {std::tuple{QMessageBox::Yes, 700.0, QString()},
              {QMessageBox::No, 900.0, u"9,00"_s},
              {QMessageBox::Cancel, 900.0, u"7,00"_s}}) {
            Formulario f;
            const qint32 csde = guardarDistinta(f.csco, u"430"_s);
            f.abrir(u"C"_s, csde);
            Registro deOtra = figurasDistintas(u"430"_s);
            deOtra[Reg430::BASELIQ] = 900.0;
            servicioDeclaracion()->Guardar430(Registro{csde, f.csco, 2026, 1, 1, u"430"_s, 1}
                                              + deOtra);
            f.manos->escribir("txtbliq", u"7"_s);
            QVERIFY(f.aviso("cmdAceptar", respuesta).contains(u"«430 ENERO 2026»"_s));
            QCOMPARE(f.guardado()[Reg430::BASELIQ].toDouble(), guardada);
            QCOMPARE(f.pantalla->isVisible() ? f.manos->texto("txtbliq") : QString(), mostrada);
        }
    }

    void guardadaOEliminadaEnOtraCopia()
    {
        Formulario f;
        f.manos->escribir("txtbliq", u"7"_s);
        const qint32 csde = guardarDistinta(f.csco, u"430"_s);
        QCOMPARE(f.aviso("cmdAceptar"),
                 u"No se puede dar de alta la nueva declaración. Ya existe una declaración con ese "
                 "ejercicio-periodo"_s);
        QVERIFY(f.pantalla->isVisible());
        QCOMPARE(f.manos->texto("txtbliq"), u"7,00"_s);

        f.abrir(u"C"_s, csde);
        const auto servicio = servicioDeclaracion();
        servicio->BorrarDatosNoComunes(csde, u"430"_s);
        servicio->BorrarDeclaracion(csde);
        QCOMPARE(f.aviso("cmdAceptar"),
                 u"«430 ENERO 2026» ya no existe: se ha eliminado en otra copia del programa."_s);
        QVERIFY(f.pantalla->isVisible() && f.filas().isEmpty());
        unico::la<cDecResumen>().CSDE(csde);
        try {
            unico::la<cDatos430>().CargarDeclaracion(csde);
            QFAIL("loaded");
        } catch (const ErrorDatos &error) {
            QCOMPARE(error.objeto(), u"430 ENERO 2026"_s);
        }
    }

    /// A box that cannot be read stands in the way of no cancel; only the frame asks.
    void cancelarNoGuarda()
    {
        Formulario f;
        for (const char *como : {"cmdCancelar", "Piccan", "Alt+C", "frame"}) {
            f.abrir(u"A"_s);
            f.manos->escribir("txtbliq", u"1.23.4"_s);
            if (qstrcmp(como, "frame") == 0) {
                f.mensajes.responder(QMessageBox::No);
                f.pantalla->close();
                QVERIFY(f.pantalla->isVisible());
                f.mensajes.responder(QMessageBox::Yes);
            }
            f.salir(como);
            QTRY_VERIFY(!f.pantalla->isVisible());
            QCOMPARE(f.siguiente, Pantalla::Resumen);
            QVERIFY(f.filas().isEmpty());
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
        }
        // what differs no more from what was loaded is not asked about
        f.abrir(u"A"_s);
        f.rellenar("txtbliq", u"7"_s);
        QVERIFY(f.pantalla->perderia());
        f.rellenar("txtbliq", {});
        f.pantalla->close();
        QVERIFY(!f.pantalla->isVisible());
    }
};

QTEST_MAIN(TstFrmDatos430)
#include "tst_frmdatos430.moc"
