#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarants/frmDecDatos.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QFile>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeWidget>

/// The declarant form in front of the real data service.
struct Formulario
{
    explicit Formulario(const QString &modo = u"A"_qs, qint32 csco = 0)
    {
        auto &datos = unico::la<cDecDatos>();
        datos.MODO(modo);
        if (csco != 0) {
            datos.CSCO(csco);
            datos.CargarDeclarante(csco);
        }
        pantalla = std::make_unique<frmDecDatos>();
        manos = std::make_unique<Manos>(*pantalla);
        QObject::connect(pantalla.get(), &PantallaBase::mostrar, pantalla.get(),
                         [this](Pantalla p) { siguiente = p; });
        pantalla->resize(pantalla->sizeHint());
        pantalla->show();
        QApplication::setActiveWindow(pantalla.get());
    }

    void rellenar() const
    {
        manos->escribir("txtdni", u"12345678z"_qs);
        manos->escribir("txtnombre", u"seguros uno"_qs);
        manos->escribir("txtdomicilio", u"mayor"_qs);
        manos->escribir("txtcodpos", u"20001"_qs);
        manos->escribir("txtcodmun", u"1"_qs);
        manos->escribir("txttelefono", u"943000000"_qs);
    }
    QTreeWidget *lista(const char *nombre) const { return manos->control<QTreeWidget>(nombre); }
    bool bloqueada(const char *nombre) const
    {
        return manos->control<QLineEdit>(nombre)->isReadOnly();
    }

    Entorno entorno;
    ConductorMensajes mensajes;
    std::unique_ptr<frmDecDatos> pantalla;
    std::unique_ptr<Manos> manos;
    std::optional<Pantalla> siguiente;
};

static cDecDatos &registro()
{
    return unico::la<cDecDatos>();
}

class tst_frmDecDatos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nuevoGuarda_data();
    void nuevoGuarda();
    void filtro();
    void mensajesDeValidacion_data();
    void mensajesDeValidacion();
    void dniRepetido();
    void cambioDeProvincia();
    void codigoDesconocidoAbreLaLista_data();
    void codigoDesconocidoAbreLaLista();
    void provinciaVaciada();
    void elegirEnLista();
    void cancelarYMarco_data();
    void cancelarYMarco();
    void sinCambiosNoGuarda();
    void calleLarga();
    void falloAlGuardar();
    void idioma();
    void ordenDelTeclado();
    void accesosDistintos_data();
    void accesosDistintos();
};

/// The last field typed is still being edited when the form is accepted.
void tst_frmDecDatos::nuevoGuarda_data()
{
    QTest::addColumn<QString>("manera");
    QTest::newRow("button") << u"cmdAceptar"_qs;
    QTest::newRow("picture") << u"PicAce"_qs;
    QTest::newRow("access key") << QString();
}

void tst_frmDecDatos::nuevoGuarda()
{
    QFETCH(QString, manera);
    Formulario f;
    f.rellenar();
    if (manera.isEmpty())
        f.manos->tecla(Qt::Key_A, Qt::AltModifier);
    else
        f.manos->pulsar(manera.toLatin1());
    QTRY_VERIFY(f.siguiente);
    QCOMPARE(*f.siguiente, Pantalla::Resumen);
    const qint32 csco = registro().ObtenerCodigoDeclarante(u"12345678Z"_qs);
    QVERIFY(csco > 0);
    const auto &resumen = unico::la<cDecResumen>();
    QCOMPARE(resumen.CSCO(), csco);
    QCOMPARE(resumen.ENTRADA(), u"A"_qs);
    QCOMPARE(resumen.NOMBRE(), u"SEGUROS UNO"_qs);
    QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1);
    registro().CargarDeclarante(csco);
    QCOMPARE(registro().TELEFONO(), u"943000000"_qs);
    QCOMPARE(registro().CODMUN(), u"001"_qs);
    QVERIFY(!registro().NOMMUN().isEmpty());
}

void tst_frmDecDatos::filtro()
{
    Formulario f;
    f.manos->escribir("txtnombre", u"pe"_qs);
    // letters outside ASCII come from the keyboard as text only
    for (const QChar c : u"ñá@#ç"_qs)
        QTest::sendKeyEvent(QTest::Click, f.manos->control("txtnombre"), Qt::Key_unknown, c, {});
    QCOMPARE(f.manos->texto("txtnombre"), u"PEÑÇ"_qs);
    f.manos->escribir("txtnumero", u"1a23456"_qs);
    QCOMPARE(f.manos->texto("txtnumero"), u"12345"_qs);
    f.manos->escribir("txtdni", u"1234567890"_qs);
    QCOMPARE(f.manos->texto("txtdni").size(), 9);
    QCOMPARE(registro().NOMBRE(), u"PEÑÇ"_qs);
    QCOMPARE(registro().NUMERO(), 12345);
}

void tst_frmDecDatos::mensajesDeValidacion_data()
{
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("codigo");
    QTest::newRow("dni") << u"txtdni"_qs << u"12345678A"_qs << 1;
    QTest::newRow("name") << u"txtnombre"_qs << QString() << 2;
    QTest::newRow("street") << u"txtdomicilio"_qs << QString() << 3;
    QTest::newRow("other province") << u"txtcodpos"_qs << u"48001"_qs << 5;
    QTest::newRow("no postal code") << u"txtcodpos"_qs << QString() << 6;
    QTest::newRow("000") << u"txtcodpos"_qs << u"20000"_qs << 7;
    QTest::newRow("zero") << u"txtcodpos"_qs << u"00000"_qs << 8;
    QTest::newRow("municipality") << u"txtcodmun"_qs << QString() << 9;
    QTest::newRow("short telephone") << u"txttelefono"_qs << u"94300"_qs << 11;
    QTest::newRow("no telephone") << u"txttelefono"_qs << QString() << 12;
}

void tst_frmDecDatos::mensajesDeValidacion()
{
    QFETCH(QString, campo);
    QFETCH(QString, texto);
    QFETCH(int, codigo);
    Formulario f;
    f.rellenar();
    f.manos->escribir(campo.toLatin1(), texto);
    f.mensajes.responder(QMessageBox::Ok);
    f.manos->pulsar("cmdAceptar");
    const auto vistos = f.mensajes.tomar();
    QCOMPARE(vistos.size(), 1);
    QCOMPARE(vistos[0].texto, msjDesde(Msj::ErrorDni, codigo - 1));
    QCOMPARE(vistos[0].titulo, u"Datos del declarante"_qs);
    QCOMPARE(vistos[0].icono, QMessageBox::Warning);
    QCOMPARE(f.manos->foco(), campo);
    QCOMPARE(f.manos->texto(campo.toLatin1()), texto);
    QVERIFY(!f.siguiente);
    QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 0);
}

void tst_frmDecDatos::dniRepetido()
{
    Formulario f;
    Entorno::altaDeclarante();
    f.rellenar();
    f.mensajes.responder(QMessageBox::Ok);
    f.manos->pulsar("cmdAceptar");
    QCOMPARE(f.mensajes.texto(), msj(Msj::ErrorAltaDniExiste));
    QVERIFY(f.pantalla->isVisible());
    QCOMPARE(registro().CSCO(), 0);
    f.manos->escribir("txtdni", u"00000001R"_qs);
    f.manos->pulsar("cmdAceptar");
    QVERIFY(registro().ObtenerCodigoDeclarante(u"00000001R"_qs) > 0);
}

void tst_frmDecDatos::cambioDeProvincia()
{
    Formulario f;
    f.rellenar();
    QVERIFY(f.bloqueada("txtnommun"));
    f.manos->escribir("txtcodprov", u"48"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QCOMPARE(registro().CODPROV(), u"48"_qs);
    QCOMPARE(registro().CODMUN(), QString());
    QCOMPARE(f.manos->texto("txtnommun"), QString());
    QVERIFY(!f.bloqueada("txtnommun"));
    QVERIFY(f.bloqueada("txtcodmun"));
    f.manos->escribir("txtnommun", u"bilbao"_qs);
    f.manos->escribir("txtcodprov", u"1"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QCOMPARE(f.manos->texto("txtcodprov"), u"01"_qs);
    QCOMPARE(registro().NOMMUN(), QString());
    f.manos->escribir("txtcodprov", u"20"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QVERIFY(f.bloqueada("txtnommun"));
    QVERIFY(!f.bloqueada("txtcodmun"));
}

void tst_frmDecDatos::codigoDesconocidoAbreLaLista_data()
{
    QTest::addColumn<QString>("caja");
    QTest::addColumn<QString>("lista");
    QTest::addColumn<QString>("codigo");
    QTest::newRow("province") << u"txtcodprov"_qs << u"lstCodProv"_qs << u"99"_qs;
    QTest::newRow("municipality") << u"txtcodmun"_qs << u"lstCodMun"_qs << u"999"_qs;
}

void tst_frmDecDatos::codigoDesconocidoAbreLaLista()
{
    QFETCH(QString, caja);
    QFETCH(QString, lista);
    QFETCH(QString, codigo);
    Formulario f;
    f.manos->escribir(caja.toLatin1(), codigo);
    f.manos->tecla(Qt::Key_Tab);
    QTRY_VERIFY(f.lista(lista.toLatin1())->isVisible());
    QVERIFY(!f.manos->control("fraDatos")->isEnabled());
    QVERIFY(!f.manos->control("cmdAceptar")->isEnabled());
    QTest::keyClick(f.lista(lista.toLatin1()), Qt::Key_Escape);
    QVERIFY(!f.lista(lista.toLatin1())->isVisible());
    QCOMPARE(f.manos->foco(), caja);
    QCOMPARE(f.manos->texto(caja.toLatin1()), codigo);
    QCOMPARE(registro().CODPROV(), u"20"_qs);
    // a wrong code does not stand in the way out
    f.manos->pulsar("cmdCancelar");
    QVERIFY(!f.pantalla->isVisible());
}

void tst_frmDecDatos::provinciaVaciada()
{
    Formulario f;
    f.rellenar();
    f.manos->escribir("txtcodprov", u"00"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QTRY_VERIFY(f.lista("lstCodProv")->isVisible());
    QTest::keyClick(f.lista("lstCodProv"), Qt::Key_Escape);
    QCOMPARE(f.manos->texto("txtcodprov"), QString());
    f.mensajes.responder(QMessageBox::Ok);
    f.manos->pulsar("cmdAceptar");
    QCOMPARE(f.mensajes.texto(), msj(Msj::ErrorCodigoProvincia));
    QCOMPARE(f.manos->foco(), u"txtcodprov"_qs);
}

void tst_frmDecDatos::elegirEnLista()
{
    Formulario f;
    f.manos->escribir("txtdni", u"123"_qs);
    f.manos->pulsar("cmdProvincia");
    auto *provincias = f.lista("lstCodProv");
    QCOMPARE(provincias->currentItem()->text(0), u"VARLENDA"_qs);
    QTest::keyClicks(provincias, u"barce"_qs);
    QTest::keyClick(provincias, Qt::Key_Return);
    QCOMPARE(f.manos->foco(), u"txtcodpos"_qs);
    QCOMPARE(registro().CODPROV(), u"08"_qs);
    QCOMPARE(f.manos->texto("txtnomprov"), u"BARCELONA"_qs);
    QCOMPARE(f.manos->texto("txtdni"), u"123"_qs);

    f.manos->control("txtvia")->setFocus();
    f.manos->tecla(Qt::Key_F4);
    auto *vias = f.lista("lstVia");
    QCOMPARE(vias->currentItem()->text(0), u"CALLE"_qs);
    const auto lugar = vias->visualItemRect(vias->topLevelItem(0)).center();
    QTest::mouseClick(vias->viewport(), Qt::LeftButton, {}, lugar);
    QTest::mouseDClick(vias->viewport(), Qt::LeftButton, {}, lugar);
    QVERIFY(!vias->isVisible());
    QCOMPARE(registro().VIA(), u"AL"_qs);
    QCOMPARE(f.manos->foco(), u"txtdomicilio"_qs);
}

void tst_frmDecDatos::cancelarYMarco_data()
{
    QTest::addColumn<bool>("existente");
    QTest::addColumn<bool>("marco");
    QTest::newRow("new, button") << false << false;
    QTest::newRow("new, frame") << false << true;
    QTest::newRow("existing, button") << true << false;
    QTest::newRow("existing, frame") << true << true;
}

void tst_frmDecDatos::cancelarYMarco()
{
    QFETCH(bool, existente);
    QFETCH(bool, marco);
    Formulario previo; // its session holds the declarant
    const qint32 csco = Entorno::altaDeclarante();
    registro().MODO(existente ? u"C"_qs : u"A"_qs);
    if (existente) {
        registro().CSCO(csco);
        registro().CargarDeclarante(csco);
    }
    unico::la<cDecResumen>().CSDE(7);
    previo.pantalla->show();
    previo.manos->escribir("txtnombre", u"otro"_qs);
    if (marco)
        previo.pantalla->close();
    else
        previo.manos->pulsar("Piccan");
    QVERIFY(!previo.pantalla->isVisible());
    QCOMPARE(previo.siguiente.has_value(), existente);
    QCOMPARE(unico::la<cDecResumen>().CSDE(), existente ? 0 : 7);
    if (existente) {
        QCOMPARE(*previo.siguiente, Pantalla::Resumen);
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_qs);
    }
    registro().CargarDeclarante(csco);
    QCOMPARE(registro().NOMBRE(), u"SEGUROS UNO"_qs);
}

/// Accepting what was not changed validates and hands back, but stores nothing.
void tst_frmDecDatos::sinCambiosNoGuarda()
{
    Formulario f;
    const qint32 csco = Entorno::altaDeclarante();
    registro().MODO(u"C"_qs);
    registro().CSCO(csco);
    registro().CargarDeclarante(csco);
    QSignalSpy cambios(f.pantalla.get(), &PantallaBase::datosCambiados);
    f.manos->escribir("txtnombre", u"SEGUROS UNO"_qs);
    f.manos->pulsar("cmdAceptar");
    QCOMPARE(f.siguiente.value_or(Pantalla::Ninguna), Pantalla::Resumen);
    QCOMPARE(cambios.count(), 0);
}

void tst_frmDecDatos::calleLarga()
{
    Formulario f;
    const QString calle = u"ÁNGEL GARCÍA DE LA CALLE NUEVA"_qs;
    const qint32 csco = Entorno::altaDeclarante();
    auto &datos = registro();
    datos.MODO(u"C"_qs);
    datos.CSCO(csco);
    datos.CargarDeclarante(csco);
    datos.DOMICILIO(calle);
    f.manos->escribir("txtnombre", u"otro nombre"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QCOMPARE(f.manos->texto("txtdomicilio"), calle);
    f.manos->control("txtdomicilio")->setFocus();
    f.manos->tecla(Qt::Key_End);
    QTest::keyClicks(f.manos->control("txtdomicilio"), u"x"_qs);
    QCOMPARE(f.manos->texto("txtdomicilio"), calle);
    f.manos->pulsar("cmdAceptar");
    registro().CargarDeclarante(csco);
    QCOMPARE(registro().DOMICILIO(), calle);
    QCOMPARE(registro().NOMBRE(), u"OTRO NOMBRE"_qs);
}

/// The model database is gone for a while.
void tst_frmDecDatos::falloAlGuardar()
{
    Formulario f;
    f.rellenar();
    const Rutas buenas = rutas();
    Rutas malas = buenas;
    malas.modelo = f.entorno.ruta(u"ninguna/OstrMod.mdb"_qs);
    fijarRutas(malas);
    f.mensajes.responder(QMessageBox::Ok);
    f.manos->pulsar("cmdAceptar");
    QVERIFY(f.mensajes.texto().contains(u"OstrMod.mdb"_qs));
    QVERIFY(f.pantalla->isVisible());
    QCOMPARE(f.manos->texto("txttelefono"), u"943000000"_qs);
    fijarRutas(buenas);
    f.manos->pulsar("cmdAceptar");
    QCOMPARE(f.siguiente.value_or(Pantalla::Ninguna), Pantalla::Resumen);
    QVERIFY(registro().ObtenerCodigoDeclarante(u"12345678Z"_qs) > 0);
}

void tst_frmDecDatos::idioma()
{
    Formulario f;
    f.manos->escribir("txtcodprov", u"48"_qs);
    f.manos->tecla(Qt::Key_Tab);
    QCOMPARE(f.manos->texto("txtnomprov"), u"VIZCAYA"_qs);
    f.manos->escribir("txtnombre", u"a medias"_qs);
    unico::la<CEntrada>().IDI(u"E"_qs);
    QEvent cambio(QEvent::LanguageChange);
    QApplication::sendEvent(f.pantalla.get(), &cambio);
    QCOMPARE(f.pantalla->windowTitle(), u"Aitortzailearen datuak"_qs);
    QCOMPARE(f.manos->texto("txtnomprov"), u"BIZKAIA"_qs);
    QCOMPARE(f.manos->texto("txtviaaux"), u"KALEA"_qs);
    QCOMPARE(f.manos->texto("txtnombre"), u"A MEDIAS"_qs);
    auto *provincias = f.lista("lstCodProv");
    QStringList nombres;
    for (int i = 0; i < provincias->topLevelItemCount(); ++i)
        nombres += provincias->topLevelItem(i)->text(0);
    QVERIFY(nombres.contains(u"BIZKAIA"_qs));
    QVERIFY(!nombres.contains(u"VIZCAYA"_qs));
}

void tst_frmDecDatos::ordenDelTeclado()
{
    Formulario f;
    QStringList vistos;
    f.manos->control("txtdni")->setFocus();
    do {
        vistos += f.manos->foco();
        f.manos->tecla(Qt::Key_Tab);
    } while (f.manos->foco() != u"txtdni" && vistos.size() < 40);
    QCOMPARE(vistos.join(u' '),
             u"txtdni txtnombre txtvia cmdVia txtdomicilio txtnumero txtletra txtescalera txtpiso "
             "txtmano txtcodprov cmdProvincia txtcodpos txtcodmun cmdMunicipio txttelefono "
             "cmdAceptar cmdCancelar"_qs);
    f.manos->control("txtvia")->setFocus();
    f.manos->tecla(Qt::Key_Return);
    QCOMPARE(f.manos->foco(), u"txtdomicilio"_qs);
}

void tst_frmDecDatos::accesosDistintos_data()
{
    QTest::addColumn<QString>("idioma");
    QTest::newRow("Castilian") << u"C"_qs;
    QTest::newRow("Basque") << u"E"_qs;
}

void tst_frmDecDatos::accesosDistintos()
{
    QFETCH(QString, idioma);
    Formulario f;
    unico::la<CEntrada>().IDI(idioma);
    QEvent cambio(QEvent::LanguageChange);
    QApplication::sendEvent(f.pantalla.get(), &cambio);
    QStringList letras;
    for (auto *hijo : f.pantalla->findChildren<QWidget *>()) {
        const QString texto = hijo->property("text").toString();
        if (const auto marca = texto.indexOf(u'&'); marca >= 0 && !hijo->inherits("QLineEdit"))
            letras += texto.mid(marca + 1, 1).toUpper();
        if (hijo->inherits("QLineEdit"))
            QVERIFY2(!hijo->accessibleName().isEmpty(), qPrintable(hijo->objectName()));
    }
    QVERIFY(letras.size() >= 12);
    QCOMPARE(QSet<QString>(letras.begin(), letras.end()).size(), letras.size());
}

QTEST_MAIN(tst_frmDecDatos)
#include "tst_frmdecdatos.moc"
