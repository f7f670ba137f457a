#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarants/frmDecDatos.h"
#include "support/PantallaAbierta.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

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
        manos->escribir("txtdni", u"12345678z"_s);
        manos->escribir("txtnombre", u"seguros uno"_s);
        manos->escribir("txtdomicilio", u"mayor"_s);
        manos->escribir("txtcodpos", u"20001"_s);
        manos->escribir("txtcodmun", u"1"_s);
        manos->escribir("txttelefono", u"943000000"_s);
    }
    QTreeWidget *lista(const char *nombre) const { return manos->control<QTreeWidget>(nombre); }
    bool bloqueada(const char *nombre) const
    {
        return manos->control<QLineEdit>(nombre)->isReadOnly();
    }

    qint32 csco = 0;
};

static cDecDatos &registro()
{
    return unico::la<cDecDatos>();
}

/// No two access keys alike, and a name on every box.
static void accesosDistintos(const Formulario &f)
{
    QStringList letras;
    for (const auto *hijo : f.pantalla->findChildren<QWidget *>()) {
        if (hijo->inherits("QLineEdit"))
            QVERIFY2(!hijo->accessibleName().isEmpty(), qPrintable(hijo->objectName()));
        const auto clave = QKeySequence::mnemonic(hijo->property("text").toString());
        if (!clave.isEmpty())
            letras += clave.toString();
    }
    QVERIFY(letras.size() >= 12);
    QCOMPARE(QSet<QString>(letras.begin(), letras.end()).size(), letras.size());
}

/// What a person sees of a box and does with it: its label, how much it takes, what is typed and
/// what it shows then, and where Enter goes from there.
struct Renglon
{
    const char *caja;
    const char *etiqueta; ///< control with its label, when it has one
    QString rotulo;
    int ancho;
    QString tecleado;
    QString mostrado;
    QString siguiente;
};

static const Renglon Renglones[] = {
    {"txtdni", "lbldni", u"DNI-CIF:"_s, 9, u"00000001r"_s, u"00000001R"_s, u"txtnombre"_s},
    {"txtnombre", "lblnombre", u"Razón Social:"_s, 40, u"la una"_s, u"LA UNA"_s, u"txtvia"_s},
    {"txtvia", "lblvia", u"Vía"_s, 2, u"av"_s, u"AV"_s, u"txtdomicilio"_s},
    {"txtdomicilio", "lbldomicilio", u"Domicilio"_s, 20, u"dos"_s, u"DOS"_s, u"txtnumero"_s},
    {"txtnumero", "lblnumero", u"Nº"_s, 5, u"00033"_s, u"33"_s, u"txtletra"_s},
    {"txtletra", "lblletra", u"Letra"_s, 2, u"d"_s, u"D"_s, u"txtescalera"_s},
    {"txtescalera", "lblescalera", u"Esc."_s, 2, u"e5"_s, u"E5"_s, u"txtpiso"_s},
    {"txtpiso", "lblpiso", u"Piso"_s, 2, u"6"_s, u"6"_s, u"txtmano"_s},
    {"txtmano", "lblmano", u"Mano"_s, 3, u"izq"_s, u"IZQ"_s, u"txtcodprov"_s},
    {"txtcodprov", nullptr, {}, 2, u"1"_s, u"01"_s, u"txtcodpos"_s},
    {"txtcodpos", "lblcodpos", u"Cód. Postal:"_s, 5, u"1002"_s, u"01002"_s, u"txtnommun"_s},
    {"txtnommun", "lblnommun", u"Nombre del municipio:"_s, 25, u"llodio"_s, u"LLODIO"_s,
     u"txttelefono"_s},
    {"txttelefono", "lbltelefono", u"Teléfono:"_s, 9, u"945111222"_s, u"945111222"_s,
     u"cmdAceptar"_s},
};

class TstFrmDecDatos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// From box to box with Enter, every value being another, and all of it stored and shown again.
    void cadaCaja()
    {
        Formulario f;
        f.manos->control("txtdni")->setFocus();
        for (const auto &r : Renglones) {
            QCOMPARE(f.manos->foco(), QString::fromLatin1(r.caja));
            if (r.etiqueta)
                QCOMPARE(f.manos->texto(r.etiqueta).remove(u'&'), r.rotulo);
            QTest::keyClicks(f.manos->control(r.caja), QString(60, u'7'));
            QCOMPARE(f.manos->texto(r.caja).size(), r.ancho);
            f.manos->tecla(Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(f.manos->control(r.caja), r.tecleado);
            f.manos->tecla(Qt::Key_Return);
            QCOMPARE(f.manos->texto(r.caja), r.mostrado);
            QCOMPARE(f.manos->foco(), r.siguiente);
        }
        QCOMPARE(f.manos->texto("lblnomprov").remove(u'&'), u"Nombre de provincia:"_s);
        QCOMPARE(f.manos->texto("lblnum430").remove(u'&'), u"Nº declaraciones contables:"_s);
        QCOMPARE(f.manos->texto("lblnum480").remove(u'&'), u"NºDeclaraciones informativas:"_s);
        QCOMPARE(f.manos->texto("txtviaaux"), u"AVENIDA"_s);
        QCOMPARE(f.manos->texto("txtnomprov"), u"ÁLAVA"_s);
        f.manos->tecla(Qt::Key_Return);
        QCOMPARE(f.siguiente, Pantalla::Resumen);
        const qint32 csco = registro().CSCO();
        QVERIFY(csco > 0);
        const QString guardado
            = u"%1|00000001R|LA UNA|AV|DOS|33|D|E5|6|IZQ|01|01002||LLODIO|945111222"_s;
        for (quint8 mes = 1; mes <= 2; ++mes)
            Entorno::altaDeclaracion(csco, 2026, mes);
        registro().CargarDeclarante(csco);
        QStringList campos;
        for (const QVariant &campo : registro().RegistroCompleto())
            campos += campo.toString();
        QCOMPARE(campos.join(u'|'), guardado.arg(csco) + u"|2|0"_s);
        registro().MODO(u"C"_s);
        f.abrir();
        for (const auto &r : Renglones)
            QCOMPARE(f.manos->texto(r.caja), r.mostrado);
        QCOMPARE(f.manos->texto("txtnum430"), u"2"_s);
        QCOMPARE(f.manos->texto("txtnum480"), QString());
    }

    /// The last field typed is still being edited when the form is accepted.
    void nuevoGuarda()
    {
        for (const char *manera : {"cmdAceptar", "PicAce", "access key"}) {
            Formulario f;
            f.rellenar();
            if (qstrcmp(manera, "access key") == 0)
                f.manos->tecla(Qt::Key_A, Qt::AltModifier);
            else
                f.manos->pulsar(manera);
            QTRY_COMPARE(f.siguiente, Pantalla::Resumen);
            const qint32 csco = registro().ObtenerCodigoDeclarante(u"12345678Z"_s);
            QVERIFY(csco > 0);
            QCOMPARE(unico::la<cDecResumen>().CSCO(), csco);
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"A"_s);
            QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1);
            registro().CargarDeclarante(csco);
            QCOMPARE(registro().TELEFONO(), u"943000000"_s);
            QCOMPARE(registro().CODMUN() + registro().NOMMUN(), u"001ABRENZUOLA"_s);
        }
    }

    void filtro()
    {
        Formulario f;
        f.manos->escribir("txtnombre", u"pe"_s);
        // letters outside ASCII come from the keyboard as text only
        for (const QChar c : u"ñ@ç"_s)
            QTest::sendKeyEvent(QTest::Click, f.manos->control("txtnombre"), Qt::Key_unknown, c,
                                {});
        f.manos->escribir("txtnumero", u"1a23456"_s);
        QCOMPARE(f.manos->texto("txtnumero"), u"12345"_s);
        f.manos->escribir("txtdni", u"1234567890"_s);
        QCOMPARE(f.manos->texto("txtdni").size(), 9);
        QCOMPARE(registro().NOMBRE(), u"PEÑÇ"_s);
        QCOMPARE(registro().NUMERO(), 12345);
    }

    /// Every refusal of one form, one after the other: its text, the focus, nothing stored.
    void mensajesDeValidacion()
    {
        Formulario f;
        f.rellenar();
        const auto caso = [&f](const char *campo, const QString &malo, int codigo) {
            const QString bueno = f.manos->texto(campo);
            f.manos->escribir(campo, malo);
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
            const auto vistos = f.mensajes.tomar();
            QCOMPARE(vistos.size(), 1);
            QCOMPARE(vistos[0].texto, msjDesde(Msj::ErrorDni, codigo - 1));
            QCOMPARE(vistos[0].titulo, u"Datos del declarante"_s);
            QCOMPARE(vistos[0].icono, QMessageBox::Warning);
            QCOMPARE(f.manos->foco(), QString::fromLatin1(campo));
            QCOMPARE(f.manos->texto(campo), malo);
            f.manos->escribir(campo, bueno);
        };
        caso("txtcodmun", {}, 9);
        caso("txtdni", u"12345678A"_s, 1);
        caso("txtnombre", {}, 2);
        caso("txtdomicilio", {}, 3);
        caso("txtcodpos", u"48001"_s, 5);
        caso("txtcodpos", {}, 6);
        caso("txttelefono", u"94300"_s, 11);
        caso("txttelefono", {}, 12);
        QVERIFY(!f.siguiente);
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 0);
    }

    /// Told once on leaving the box, and again when it is to be saved all the same.
    void dniRepetido()
    {
        Formulario f;
        Entorno::altaDeclarante();
        const QString repetido = msj(Msj::ErrorAltaDniExiste);
        f.manos->escribir("txtdni", u"12345678z"_s);
        f.mensajes.responder(QMessageBox::Ok);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.mensajes.texto(), repetido);
        QTRY_COMPARE(f.manos->foco(), u"txtdni"_s);
        QApplication::setActiveWindow(f.pantalla.get());
        f.rellenar();
        f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        QCOMPARE(f.mensajes.texto(), repetido);
        QCOMPARE(registro().CSCO(), 0);
        f.manos->escribir("txtdni", u"00000001R"_s);
        f.manos->pulsar("cmdAceptar");
        QVERIFY(registro().ObtenerCodigoDeclarante(u"00000001R"_s) > 0);
    }

    /// A save over what another copy of the program has stored meanwhile.
    void cambioAjeno_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("respuesta");
        QTest::addColumn<QString>("guardado");
        QTest::addColumn<QString>("enPantalla");
        QTest::newRow("replaced") << QMessageBox::Yes << u"MIO|943000000"_s << u"MIO"_s;
        QTest::newRow("kept") << QMessageBox::No << u"SUYO|943999999"_s << u"SUYO"_s;
        QTest::newRow("neither") << QMessageBox::Cancel << u"SUYO|943999999"_s << u"MIO"_s;
    }

    void cambioAjeno()
    {
        QFETCH(QMessageBox::StandardButton, respuesta);
        Formulario f(true);
        f.manos->escribir("txtnombre", u"mio"_s);
        cDecDatos otro;
        const auto leer = [&] {
            otro.CSCO(f.csco);
            otro.CargarDeclarante(f.csco);
            return otro.NOMBRE() + u'|' + otro.TELEFONO();
        };
        leer();
        otro.NOMBRE(u"SUYO"_s);
        otro.TELEFONO(u"943999999"_s);
        QCOMPARE(otro.GuardarDeclarante(otro.RegistroCompleto()), qint16(0));
        f.responderYPulsar(respuesta, "cmdAceptar");
        const auto vistos = f.mensajes.tomar();
        QCOMPARE(vistos.size(), 1);
        QVERIFY2(vistos[0].texto.startsWith(
                     u"Otra copia del programa ha cambiado «12345678Z - SEGUROS UNO»"),
                 qPrintable(vistos[0].texto));
        QCOMPARE(vistos[0].porDefecto, QMessageBox::Cancel);
        QTEST(leer(), "guardado");
        QTEST(f.manos->texto("txtnombre"), "enPantalla");
        QCOMPARE(f.siguiente.has_value(), respuesta == QMessageBox::Yes);
        QCOMPARE(f.pantalla->modificada(), respuesta == QMessageBox::Cancel);
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
        QVERIFY(!f.pantalla->isVisible());
        QVERIFY(!f.siguiente);
    }

    void cambioDeProvincia()
    {
        Formulario f;
        f.rellenar();
        QVERIFY(f.bloqueada("txtnommun"));
        f.manos->escribir("txtcodprov", u"1"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.manos->texto("txtcodprov"), u"01"_s);
        QCOMPARE(registro().CODPROV(), u"01"_s);
        QCOMPARE(registro().CODMUN(), QString());
        QCOMPARE(f.manos->texto("txtnommun"), QString());
        QVERIFY(!f.bloqueada("txtnommun"));
        QVERIFY(f.bloqueada("txtcodmun"));
        f.manos->escribir("txtcodprov", u"20"_s);
        f.manos->tecla(Qt::Key_Tab);
        QVERIFY(f.bloqueada("txtnommun"));
        QVERIFY(!f.bloqueada("txtcodmun"));
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
            QVERIFY(!f.manos->control("fraDatos")->isEnabled());
            QVERIFY(!f.manos->control("cmdAceptar")->isEnabled());
            QTest::keyClick(f.lista(lista), Qt::Key_Escape);
            QVERIFY(!f.lista(lista)->isVisible());
            QCOMPARE(f.manos->foco(), QString::fromLatin1(caja));
            QCOMPARE(f.manos->texto(caja), codigo);
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

    /// A wrong code does not stand in the way out.
    void codigoDesconocidoDejaSalir()
    {
        for (const char *caja : {"txtcodprov", "txtcodmun"})
            for (const char *salida : {"cmdCancelar", "Piccan", "access key", "frame"}) {
                Formulario f;
                f.manos->escribir(caja, u"999"_s);
                if (qstrcmp(salida, "access key") == 0)
                    f.manos->tecla(Qt::Key_C, Qt::AltModifier);
                else if (qstrcmp(salida, "frame") == 0) {
                    f.mensajes.responder(QMessageBox::Yes);
                    f.pantalla->close();
                } else
                    f.manos->pulsar(salida);
                QTRY_VERIFY(!f.pantalla->isVisible());
            }
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
        QCOMPARE(f.manos->foco(), u"txtcodpos"_s);
        QCOMPARE(registro().CODPROV(), u"08"_s);
        QCOMPARE(f.manos->texto("txtnomprov"), u"BARCELONA"_s);
        QCOMPARE(f.manos->texto("txtdni"), u"123"_s);

        f.manos->control("txtvia")->setFocus();
        f.manos->tecla(Qt::Key_F4);
        auto *vias = f.lista("lstVia");
        QCOMPARE(vias->currentItem()->text(0), u"CALLE"_s);
        const auto lugar = vias->visualItemRect(vias->topLevelItem(0)).center();
        QTest::mouseClick(vias->viewport(), Qt::LeftButton, {}, lugar);
        QTest::mouseDClick(vias->viewport(), Qt::LeftButton, {}, lugar);
        QVERIFY(!vias->isVisible());
        QCOMPARE(registro().VIA(), u"AL"_s);
        QCOMPARE(f.manos->foco(), u"txtdomicilio"_s);
    }

    void cancelarYMarco()
    {
        for (const bool existente : {false, true})
            for (const bool marco : {false, true}) {
                Formulario f(existente);
                unico::la<cDecResumen>().CSDE(7);
                f.manos->escribir("txtnombre", u"otro"_s);
                if (marco) {
                    f.mensajes.responder(QMessageBox::Yes);
                    f.pantalla->close();
                } else
                    f.manos->pulsar("Piccan");
                QVERIFY(!f.pantalla->isVisible());
                QCOMPARE(f.siguiente.has_value(), existente);
                QCOMPARE(unico::la<cDecResumen>().CSDE(), existente ? 0 : 7);
                if (!existente)
                    continue;
                QCOMPARE(f.siguiente, Pantalla::Resumen);
                QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
                registro().CargarDeclarante(f.csco);
                QCOMPARE(registro().NOMBRE(), u"SEGUROS UNO"_s);
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
        Formulario f;
        const QString calle = u"ÁNGEL GARCÍA DE LA CALLE NUEVA"_s;
        const qint32 csco = Entorno::altaDeclarante();
        auto &datos = registro();
        datos.MODO(u"C"_s);
        datos.CSCO(csco);
        datos.CargarDeclarante(csco);
        datos.DOMICILIO(calle);
        f.manos->escribir("txtnombre", u"otro nombre"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.manos->texto("txtdomicilio"), calle);
        f.manos->control("txtdomicilio")->setFocus();
        f.manos->tecla(Qt::Key_End);
        QTest::keyClicks(f.manos->control("txtdomicilio"), u"x"_s);
        QCOMPARE(f.manos->texto("txtdomicilio"), calle);
        f.manos->pulsar("cmdAceptar");
        registro().CargarDeclarante(csco);
        QCOMPARE(registro().DOMICILIO(), calle);
        QCOMPARE(registro().NOMBRE(), u"OTRO NOMBRE"_s);
    }

    void falloAlGuardar()
    {
        Formulario f;
        f.rellenar();
        {
            const ModeloPerdido perdido;
            f.responderYPulsar(QMessageBox::Ok, "cmdAceptar");
        }
        QVERIFY(f.mensajes.texto().contains(u"OstrMod.mdb"_s));
        QVERIFY(f.pantalla->isVisible());
        QCOMPARE(f.manos->texto("txttelefono"), u"943000000"_s);
        f.manos->pulsar("cmdAceptar");
        QCOMPARE(f.siguiente, Pantalla::Resumen);
        QVERIFY(registro().ObtenerCodigoDeclarante(u"12345678Z"_s) > 0);
    }

    void idioma()
    {
        Formulario f;
        f.manos->escribir("txtcodprov", u"48"_s);
        f.manos->tecla(Qt::Key_Tab);
        QCOMPARE(f.manos->texto("txtnomprov"), u"VIZCAYA"_s);
        f.manos->escribir("txtnombre", u"a medias"_s);
        accesosDistintos(f);
        Entorno::pasarAEuskera(*f.pantalla);
        accesosDistintos(f);
        QCOMPARE(f.pantalla->windowTitle(), u"Aitortzailearen datuak"_s);
        QCOMPARE(f.manos->texto("txtnomprov"), u"BIZKAIA"_s);
        QCOMPARE(f.manos->texto("txtviaaux"), u"KALEA"_s);
        QCOMPARE(f.manos->texto("txtnombre"), u"A MEDIAS"_s);
        QCOMPARE(f.lista("lstCodProv")->findItems(u"BIZKAIA"_s, Qt::MatchExactly).size(), 1);
        QVERIFY(f.lista("lstCodProv")->findItems(u"VIZCAYA"_s, Qt::MatchExactly).isEmpty());
    }

    void ordenDelTeclado()
    {
        Formulario f;
        QStringList vistos;
        f.manos->control("txtdni")->setFocus();
        do {
            vistos += f.manos->foco();
            f.manos->tecla(Qt::Key_Tab);
        } while (f.manos->foco() != u"txtdni" && vistos.size() < 40);
        QCOMPARE(
            vistos.join(u' '),
            u"txtdni txtnombre txtvia cmdVia txtdomicilio txtnumero txtletra txtescalera txtpiso "
            "txtmano txtcodprov cmdProvincia txtcodpos txtcodmun cmdMunicipio txttelefono "
            "cmdAceptar cmdCancelar"_s);
    }
};

QTEST_MAIN(TstFrmDecDatos)
#include "tst_frmdecdatos.moc"
