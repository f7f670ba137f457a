#include "declarants/frmDecDatos.h"
#include "support/PantallaAbierta.h"
#include "support/Retrato.h"

#include <QTreeWidget>

/// The declarant form, for a new declarant or for a stored one.
struct Formulario : PantallaAbierta<frmDecDatos>
{
    explicit Formulario(bool existente = false)
    {
        auto &datos = unico::la<cDecDatos>();
        datos.MODO(existente ? u"C"_s : u"A"_s);
        if (existente) {
            csco = Entorno::altaDeclarante();
            datos.CSCO(csco);
            datos.CargarDeclarante(csco);
        }
        abrir();
    }

    void rellenar() const
    {
        const QString valores = u"txtdni|12345678z;txtnombre|seguros uno;txtdomicilio|mayor;"
                                "txtcodpos|20001;txtcodmun|1;txttelefono|943000000"_s;
        for (const QString &par : valores.split(u';'))
            manos->escribir(qPrintable(par.section(u'|', 0, 0)), par.section(u'|', 1));
    }
    /// Leaves in some way; the frame's question is confirmed.
    void hacer(const char *manera)
    {
        if (qstrcmp(manera, "frame") == 0)
            mensajes.responder(QMessageBox::Yes);
        salir(manera);
    }
    /// Province, code and name of the municipality, in brackets what cannot be typed in; "-" when
    /// there is no list to choose it from.
    QString lugar() const
    {
        QStringList textos;
        for (const char *nombre : {"txtcodprov", "txtcodmun", "txtnommun"})
            textos += (manos->control<QLineEdit>(nombre)->isReadOnly() ? u"(%1)"_s : u"%1"_s)
                          .arg(manos->texto(nombre));
        return textos.join(u'|')
            + (manos->control("cmdMunicipio")->isEnabled() ? QString() : u"-"_s);
    }
    QTreeWidget *lista(const char *nombre) const { return manos->control<QTreeWidget>(nombre); }

    qint32 csco = 0;
};

static cDecDatos &registro()
{
    return unico::la<cDecDatos>();
}

/// What a person sees of a box and does with it: its label, how much it takes, what is typed and
/// what it shows then. Enter leads to the next.
static const QStringList Renglones
    = u"txtdni|DNI-CIF:|9|00000001r|00000001R;txtnombre|Razón Social:|40|la una|LA UNA;"
      "txtvia|Vía|2|av|AV;txtdomicilio|Domicilio|20|dos|DOS;txtnumero|Nº|5|0x033|33;"
      "txtletra|Letra|2|d|D;txtescalera|Esc.|2|e5|E5;txtpiso|Piso|2|6|6;"
      "txtmano|Mano|3|izq|IZQ;txtcodprov||2|1|01;txtcodpos|Cód. Postal:|5|1o002|01002;"
      "txtnommun|Nombre del municipio:|25|llodio|LLODIO;"
      "txttelefono|Teléfono:|9|945111222|945111222"_s.split(u';');

class TstFrmDecDatos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// From box to box with Enter, every value being another, and all of it stored and shown again.
    void cadaCaja()
    {
        Formulario f;
        f.manos->control("txtdni")->setFocus();
        for (const QString &renglon : Renglones) {
            const QString caja = f.manos->foco();
            auto *control = f.manos->control(qPrintable(caja));
            const auto *etiqueta = f.pantalla->findChild<QLabel *>(u"lbl"_s + caja.mid(3));
            QStringList visto{caja, etiqueta ? etiqueta->text().remove(u'&') : QString()};
            QTest::keyClicks(control, QString(60, u'7'));
            visto += QString::number(control->property("text").toString().size());
            f.manos->tecla(Qt::Key_A, Qt::ControlModifier);
            visto += renglon.section(u'|', 3, 3);
            QTest::keyClicks(control, visto.last());
            f.manos->tecla(Qt::Key_Return);
            visto += control->property("text").toString();
            QCOMPARE(visto.join(u'|'), renglon);
        }
        QCOMPARE(f.manos->foco(), u"cmdAceptar"_s);
        QCOMPARE(f.manos->textos("cmdAceptar cmdCancelar", "toolTip"),
                 u"Guardar datos del declarante|Salir sin guardar los cambios"_s);
        QCOMPARE(
            f.manos->textos("lblnomprov lblnum430 lblnum480 txtviaaux txtnomprov").remove(u'&'),
            u"Nombre de provincia:|Nº declaraciones contables:|NºDeclaraciones informativas:|"
            "AVENIDA|ÁLAVA"_s);
        f.manos->tecla(Qt::Key_Return);
        QCOMPARE(f.siguiente, Pantalla::Resumen);
        const qint32 csco = registro().CSCO();
        QVERIFY(csco > 0);
        for (quint8 mes = 1; mes <= 2; ++mes)
            Entorno::altaDeclaracion(csco, 2026, mes);
        Entorno::altaDeclaracion(csco, 2025, 12, u"480"_s);
        registro().CargarDeclarante(csco);
        QCOMPARE(
            unidos(registro().RegistroCompleto()),
            u"%1|00000001R|LA UNA|AV|DOS|33|D|E5|6|IZQ|01|01002||LLODIO|945111222|2|1"_s.arg(csco));
        registro().MODO(u"C"_s);
        f.abrir();
        for (const QString &r : Renglones)
            QCOMPARE(f.manos->texto(qPrintable(r.section(u'|', 0, 0))), r.section(u'|', 4));
        QCOMPARE(f.manos->textos("txtnum430 txtnum480 txtnomprov"), u"2|1|ÁLAVA"_s);
    }

    /// The last field typed is still being edited when the form is accepted.
    void nuevoGuarda()
    {
        for (const char *manera : {"cmdAceptar", "PicAce", "Alt+A"}) {
            Formulario f;
            f.rellenar();
            f.hacer(manera);
            QTRY_COMPARE(f.siguiente, Pantalla::Resumen);
            const qint32 csco = registro().ObtenerCodigoDeclarante(u"12345678Z"_s);
            const auto &resumen = unico::la<cDecResumen>();
            registro().CargarDeclarante(csco);
            QCOMPARE(unidos({resumen.CSCO(), resumen.ENTRADA(), unico::la<CEntrada>().NUMDECLA(),
                             registro().TELEFONO(), registro().CODMUN(), registro().NOMMUN()}),
                     u"%1|A|1|943000000|001|ABRENZUOLA"_s.arg(csco));
        }
    }

    /// Every refusal of one form, one after the other, and a failure: its text, the focus, nothing
    /// stored until all is well.
    void mensajesDeValidacion()
    {
        Formulario f;
        f.rellenar();
        for (const QString &caso :
             u"txtcodmun||9 txtdni|12345678A|1 txtnombre||2 txtdomicilio||3 txtcodpos|48001|5 "
             "txtcodpos||6 txttelefono|94300|11 txttelefono||12"_s.split(u' ')) {
            const QByteArray campo = caso.section(u'|', 0, 0).toLatin1();
            const QString malo = caso.section(u'|', 1, 1);
            const int codigo = caso.section(u'|', 2).toInt();
            const QString bueno = f.manos->texto(campo);
            f.manos->escribir(campo, malo);
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
            QCOMPARE(f.mensajes.ficha().section(u'|', 0, 2),
                     u"Warning|Datos del declarante|"_s + msjDesde(Msj::ErrorDni, codigo - 1));
            const QString elegido = f.manos->control(campo)->property("selectedText").toString();
            QCOMPARE(f.manos->foco() + elegido, QString::fromLatin1(campo) + malo);
            f.manos->escribir(campo, bueno);
        }
        {
            const ModeloPerdido perdido;
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        }
        QVERIFY(f.mensajes.texto().contains(u"OstrMod.mdb"_s));
        QVERIFY(f.pantalla->isVisible() && !f.siguiente);
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 0);
        QCOMPARE(f.manos->texto("txttelefono"), u"943000000"_s);
        f.manos->pulsar("cmdAceptar");
        QCOMPARE(f.siguiente, Pantalla::Resumen);
        QVERIFY(registro().ObtenerCodigoDeclarante(u"12345678Z"_s) > 0);
    }

    /// Told once on leaving the box, and again when it is to be saved all the same.
    void dniRepetido()
    {
        for (const auto &[guardado, repetido] :
             {std::pair{false, Msj::ErrorAltaDniExiste}, {true, Msj::ErrorCambioDniExiste}}) {
            Formulario f(guardado);
            Entorno::altaDeclarante(u"00000001R"_s);
            f.manos->escribir("txtdni", u"00000001r"_s);
            f.mensajes.responder(QMessageBox::Ok);
            f.manos->tecla(Qt::Key_Tab);
            QCOMPARE(f.mensajes.texto(), msj(repetido));
            QTRY_COMPARE(f.manos->foco(), u"txtdni"_s);
            QApplication::setActiveWindow(f.pantalla.get());
            f.rellenar();
            f.manos->escribir("txtdni", u"00000001r"_s);
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
            QCOMPARE(f.mensajes.texto(), msj(repetido));
            QCOMPARE(registro().CSCO(), f.csco);
            f.manos->escribir("txtdni", u"A58818501"_s);
            f.manos->pulsar("cmdAceptar");
            QVERIFY(registro().ObtenerCodigoDeclarante(u"A58818501"_s) > 0);
        }
    }

    /// A save over what another copy of the program has stored meanwhile.
    void cambioAjeno()
    {
        for (const auto &[respuesta, guardado, enPantalla] :
             {std::tuple{QMessageBox::Yes, u"MIO|943000000"_s, u"MIO"_s},
              {QMessageBox::No, u"SUYO|943999999"_s, u"SUYO"_s},
              {QMessageBox::Cancel, u"SUYO|943999999"_s, u"MIO"_s}}) {
            Formulario f(true);
            f.manos->escribir("txtnombre", u"mio"_s);
            cDecDatos otro;
            otro.CSCO(f.csco);
            otro.CargarDeclarante(f.csco);
            otro.NOMBRE(u"SUYO"_s);
            otro.TELEFONO(u"943999999"_s);
            QCOMPARE(otro.GuardarDeclarante(otro.RegistroCompleto()), qint16(0));
            f.responderYPulsar(respuesta, "cmdAceptar");
            const QString ficha = f.mensajes.ficha();
            QVERIFY2(
                ficha.contains(u"|Otra copia del programa ha cambiado «12345678Z - SEGUROS UNO»"_s)
                    && ficha.endsWith(u"|Cancel"),
                qPrintable(ficha));
            otro.CargarDeclarante(f.csco);
            QCOMPARE(otro.NOMBRE() + u'|' + otro.TELEFONO(), guardado);
            QCOMPARE(f.manos->texto("txtnombre"), enPantalla);
            QCOMPARE(f.siguiente.has_value(), respuesta == QMessageBox::Yes);
            QCOMPARE(f.pantalla->modificada(), respuesta == QMessageBox::Cancel);
        }
    }

    void eliminadoEnOtraCopia()
    {
        Formulario f(true);
        f.manos->escribir("txtnombre", u"mio"_s);
        cDecDatos otro;
        otro.CSCO(f.csco);
        otro.BorrarDeclarante();
        f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        QCOMPARE(f.mensajes.texto(), msj(Msj::EliminadoEnOtraCopia, u"12345678Z - SEGUROS UNO"_s));
        QCOMPARE(f.manos->texto("txtnombre"), u"MIO"_s);
        f.manos->pulsar("cmdCancelar");
        QVERIFY(!f.pantalla->isVisible() && !f.siguiente);
    }

    void cambioDeProvincia()
    {
        Formulario f;
        f.rellenar();
        QCOMPARE(f.lugar(), u"20|1|(ABRENZUOLA)"_s);
        f.manos->escribir("txtcodprov", u"1"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.lugar(), u"01|()|-"_s);
        QCOMPARE(registro().CODPROV() + registro().CODMUN(), u"01"_s);
        f.manos->escribir("txtcodprov", u"20"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.lugar(), u"20||()"_s);
    }

    void codigoDesconocidoAbreLaLista()
    {
        Formulario f;
        for (const auto &[caja, lista, codigo] : {std::tuple("txtcodprov", "lstCodProv", u"99"_s),
                                                  {"txtcodmun", "lstCodMun", u"999"_s}}) {
            const QString antes = f.manos->texto(caja);
            f.manos->escribir(caja, codigo);
            f.manos->tecla(Qt::Key_Tab);
            QTRY_VERIFY(f.lista(lista)->isVisible());
            for (const char *cerrado : {"fraDatos", "cmdAceptar"})
                QVERIFY(!f.manos->control(cerrado)->isEnabled());
            QTest::keyClick(f.lista(lista), Qt::Key_Escape);
            QVERIFY(!f.lista(lista)->isVisible());
            QCOMPARE(f.manos->foco() + f.manos->texto(caja), QLatin1String(caja) + codigo);
            QCOMPARE(registro().CODPROV(), u"20"_s);
            f.manos->escribir(caja, antes);
        }
    }

    /// The press that leaves the box reaches the form, which it has just disabled.
    void laListaSigueAbierta()
    {
        Formulario f;
        f.manos->escribir("txtcodprov", u"99"_s);
        f.manos->pulsar("txtcodpos");
        QVERIFY(f.lista("lstCodProv")->isVisible());
        QTest::qWait(1);
        f.manos->pulsar("txtcodpos");
        QVERIFY(!f.lista("lstCodProv")->isVisible());
    }

    void elegirEnLista()
    {
        Formulario f;
        f.manos->escribir("txtdni", u"123"_s);
        f.manos->pulsar("cmdProvincia");
        auto *provincias = f.lista("lstCodProv");
        QCOMPARE(provincias->currentItem()->text(0), u"VARLENDA"_s);
        QTest::keyClicks(provincias, u"barce"_s);
        QTest::keyClick(provincias, Qt::Key_Return);
        QCOMPARE(registro().CODPROV() + f.manos->foco(), u"08txtcodpos"_s);
        QCOMPARE(f.manos->textos("txtnomprov txtdni"), u"BARCELONA|123"_s);

        f.manos->control("txtvia")->setFocus();
        f.manos->tecla(Qt::Key_F4);
        auto *vias = f.lista("lstVia");
        QCOMPARE(vias->currentItem()->text(0), u"CALLE"_s);
        const auto lugar = vias->visualItemRect(vias->topLevelItem(0)).center();
        QTest::mouseClick(vias->viewport(), Qt::LeftButton, {}, lugar);
        QTest::mouseDClick(vias->viewport(), Qt::LeftButton, {}, lugar);
        QVERIFY(!vias->isVisible());
        QCOMPARE(registro().VIA() + f.manos->foco(), u"ALtxtdomicilio"_s);
    }

    /// A wrong code does not stand in the way out.
    void cancelarYMarco()
    {
        for (const bool existente : {false, true})
            for (const char *salida : {"cmdCancelar", "Piccan", "Alt+C", "frame"}) {
                Formulario f(existente);
                unico::la<cDecResumen>().CSDE(7);
                f.manos->escribir("txtnombre", u"otro"_s);
                f.manos->escribir(existente ? "txtcodprov" : "txtcodmun", u"999"_s);
                f.hacer(salida);
                QTRY_VERIFY(!f.pantalla->isVisible());
                QCOMPARE(f.siguiente.has_value(), existente);
                QCOMPARE(unico::la<cDecResumen>().CSDE(), existente ? 0 : 7);
                if (!existente)
                    continue;
                registro().CargarDeclarante(f.csco);
                QCOMPARE(unico::la<cDecResumen>().ENTRADA() + registro().NOMBRE(),
                         u"PSEGUROS UNO"_s);
            }
    }

    /// Accepting what was not changed validates and hands back, but stores nothing.
    void sinCambiosNoGuarda()
    {
        Formulario f(true);
        QSignalSpy cambios(f.pantalla.get(), &PantallaBase::datosCambiados);
        f.manos->escribir("txtnombre", u"SEGUROS UNO"_s);
        f.manos->pulsar("cmdAceptar");
        QCOMPARE(f.siguiente, Pantalla::Resumen);
        QCOMPARE(cambios.count(), 0);
    }

    /// What a file brought in stays, though the form would not let it be typed.
    void calleLarga()
    {
        Formulario f(true);
        const QString calle = u"ÁNGEL GARCÍA DE LA CALLE NUEVA"_s;
        registro().DOMICILIO(calle);
        f.manos->escribir("txtnombre", u"otro nombre"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.manos->texto("txtdomicilio"), calle);
        f.manos->control("txtdomicilio")->setFocus();
        f.manos->tecla(Qt::Key_End);
        QTest::keyClicks(f.manos->control("txtdomicilio"), u"x"_s);
        QCOMPARE(f.manos->texto("txtdomicilio"), calle);
        f.manos->pulsar("cmdAceptar");
        registro().CargarDeclarante(f.csco);
        QCOMPARE(registro().NOMBRE() + registro().DOMICILIO(), u"OTRO NOMBRE"_s + calle);
    }

    void idioma()
    {
        Formulario f;
        f.manos->escribir("txtcodprov", u"48"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.manos->texto("txtnomprov"), u"VIZCAYA"_s);
        f.manos->escribir("txtnombre", u"a medias"_s);
        Entorno::pasarAEuskera(*f.pantalla);
        QCOMPARE(f.manos->textos("txtnomprov txtviaaux txtnombre"), u"BIZKAIA|KALEA|A MEDIAS"_s);
        QCOMPARE(f.lista("lstCodProv")->findItems(u"BIZKAIA"_s, Qt::MatchExactly).size(), 1);
        QVERIFY(f.lista("lstCodProv")->findItems(u"VIZCAYA"_s, Qt::MatchExactly).isEmpty());
    }
};

QTEST_MAIN(TstFrmDecDatos)
#include "tst_frmdecdatos.moc"
