#include "core/Importe.h"
#include "core/Servicios.h"
#include "declarants/cDecResumen.h"
#include "declarations/FrmDatos480ab.h"
#include "declarations/FrmDatos480c.h"
#include "declarations/cDatos480.h"
#include "support/ConductorMensajes.h"
#include "support/DeclaracionesPrueba.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/Retrato.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QTreeWidget>

#include <optional>

using namespace Qt::StringLiterals;

/// The pages that show a return of all different figures; "#n" stands for n × 1,001.01.
static const QString Pagina1 = u"No exento Exento\n"
                               "Vida 01 [txt01vida=#1] 02 [txt02vida=#12]\n"
                               "Accidentes 04 [txt04acc=#2] 05 [txt05acc=#13]\n"
                               "Enfermedad y asistencia sanit. 07 [txt07enf=#3] 08 [txt08enf=#14]\n"
                               "Vehículos terrestres 10 [txt10terr=#4] 11 [txt11terr=#15]\n"
                               "Vehículos ferroviarios 13 [txt13ferr=#5] 14 [txt14ferr=#16]\n"
                               "Vehículos aéreos 16 [txt16aer=#6] 17 [txt17aer=#17]\n"
                               "Vehículos marítimos 19 [txt19mar=#7] 20 [txt20mar=#18]\n"
                               "Mercancías transportadas 22 [txt22mer=#8] 23 [txt23mer=#19]\n"
                               "Incendios y elem. Naturales 25 [txt25inc=#9] 26 [txt26inc=#20]\n"
                               "Seguros Agrarios comb 28 [txt28agr=#10] 29 [txt29agr=#21]\n"
                               "Otros daños en bienes 31 [txt31otr=#11] 32 [txt32otr=#22]\n"
                               "<Siguiente> <Cancelar>"_s;
static const QString Pagina2 = u"No exento Exento\n"
                               "Resp. Civil veh. Terrestres\n"
                               "Obligatorio 34 [txt34obl=#23] 35 [txt35obl=#35]\n"
                               "Voluntario 37 [txt37vol=#24] 38 [txt38vol=#36]\n"
                               "R.C. en veh. Aéreos 40 [txt40rca=#25] 41 [txt41rca=#37]\n"
                               "R.C. en veh. Marítimos 43 [txt43rcm=#26] 44 [txt44rcm=#38]\n"
                               "Resp. Civil general\n"
                               "Riesgos nucleares 46 [txt46nuc=#27] 47 [txt47nuc=#39]\n"
                               "Otros 49 [txt49otr=#28] 50 [txt50otr=#40]\n"
                               "Crédito 52 [txt52cre=#29] 53 [txt53cre=#41]\n"
                               "Caución 55 [txt55cau=#30] 56 [txt56cau=#42]\n"
                               "Pérdidas pecuniarias diversas 58 [txt58ppe=#31] 59 [txt59ppe=#43]\n"
                               "Defensa jurídica 61 [txt61dju=#32] 62 [txt62dju=#44]\n"
                               "Asistencia 64 [txt64asi=#33] 65 [txt65asi=#45]\n"
                               "Decesos 67 [txt67dec=#34] 68 [txt68dec=#46]\n"
                               "<Anterior> <Siguiente> <Cancelar>"_s;
static const QString Pagina3
    = u"No exento Exento\n"
      "Totales 70 (txt70tot=#47) 71 (txt71tot=673.679,73)\n"
      "Base imponible Tipo Cuota\n"
      "Operaciones sujetas y no exentas 73 [txt73ba1=#48] 74 (txt74ti1=7,15) 75 (txt75cu1=#53)\n"
      "76 [txt76ba2=#49] 77 (txt77ti2=6,00) 78 (txt78cu2=#54)\n"
      "Rectificación de ejercicios anteriores 79 [txt79ba3=#50] 80 [txt80cu3=#55]\n"
      "Resultado liquidación anual 81 (txt81res=#56)\n"
      "La casilla 70 difiere en -50.050,50 de la suma de las casillas 73 y 76.\n"
      "Declaraciones mensuales 430 del ejercicio\n"
      "No existen declaraciones mensuales para este ejercicio\n"
      "<Anterior> <Aceptar> <Cancelar>"_s;
static const QString Pagina1EnEuskera
    = u"Ez salbuetsia Salbuetsia\n"
      "Bizi aseguruak 01 [txt01vida=#1] 02 [txt02vida=#12]\n"
      "Istripu aseguruak 04 [txt04acc=#2] 05 [txt05acc=#13]\n"
      "Gaixotasuna eta osasun lag. 07 [txt07enf=#3] 08 [txt08enf=#14]\n"
      "Lehorreko ibilgailuak. 10 [txt10terr=#4] 11 [txt11terr=#15]\n"
      "Trenbideak 13 [txt13ferr=#5] 14 [txt14ferr=#16]\n"
      "Aireuntziak 16 [txt16aer=#6] 17 [txt17aer=#17]\n"
      "Urontziak 19 [txt19mar=#7] 20 [txt20mar=#18]\n"
      "Garraiatutako merkantziak 22 [txt22mer=#8] 23 [txt23mer=#19]\n"
      "Suteak eta elem. nat. 25 [txt25inc=#9] 26 [txt26inc=#20]\n"
      "Nekazaritzako aseg. konb. 28 [txt28agr=#10] 29 [txt29agr=#21]\n"
      "Beste kalteak ondasunetan 31 [txt31otr=#11] 32 [txt32otr=#22]\n"
      "<Ondorengoa> <Utzi>"_s;

/// `pagina` with the head of the screen in front and every "#n" as the amount that it stands for.
static QString rellena(QString pagina, const QString &cabecera)
{
    static const QRegularExpression numero(u"#(\\d+)"_s);
    for (auto m = numero.match(pagina); m.hasMatch(); m = numero.match(pagina)) {
        pagina.replace(m.capturedStart(), m.capturedLength(),
                       textoImporte(m.captured(1).toInt() * 100101.0));
    }
    return cabecera + u'\n' + pagina;
}

/// The three pages of a 480, opened one after the other as the main window does.
class TstFrmDatos480 : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;
    std::unique_ptr<PantallaBase> m_pagina;
    QList<Pantalla> m_pedidas; ///< screens asked for that are none of the pages
    qint32 m_csco = 0;

    static cDatos480 &registro() { return unico::la<cDatos480>(); }

    void abrir(Pantalla cual)
    {
        std::unique_ptr<PantallaBase> nueva;
        if (cual == Pantalla::Datos480a)
            nueva = std::make_unique<FrmDatos480a>();
        else if (cual == Pantalla::Datos480b)
            nueva = std::make_unique<FrmDatos480b>();
        else if (cual == Pantalla::Datos480c)
            nueva = std::make_unique<FrmDatos480c>();
        else {
            m_pedidas.append(cual);
            return;
        }
        // the page that asks is still on its way out
        if (m_pagina)
            m_pagina.release()->deleteLater();
        m_pagina = std::move(nueva);
        connect(m_pagina.get(), &PantallaBase::mostrar, this, &TstFrmDatos480::abrir);
        m_pagina->resize(m_pagina->sizeHint());
        m_pagina->show();
        m_pagina->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pagina.get()));
    }
    void abrirGuardada(qint32 csde)
    {
        registro().MODO(u"C"_s);
        registro().CSDE(csde);
        registro().ENTRADA(u"A"_s);
        abrir(Pantalla::Datos480a);
    }
    Manos manos() const { return Manos(*m_pagina); }
    void avanzar(int paginas)
    {
        for (int i = 0; i < paginas; ++i)
            manos().pulsar("cmdSiguiente");
    }
    Filas declaraciones() const
    {
        Filas filas;
        servicioDeclaracion()->dameResultado(filas, m_csco);
        return filas;
    }
    static Registro guardado(qint32 csde)
    {
        Registro leidas;
        servicioDeclaracion()->Cargar480(csde, leidas);
        return leidas;
    }
    /// Fills a whole return of 1,000.00 in box 01 by the keyboard.
    void rellenar()
    {
        manos().escribir("txt01vida", u"1000"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("PicSig");
        manos().escribir("txt73ba1", u"1000"_s);
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
        m_pedidas.clear();
        m_csco = Entorno::altaDeclarante();
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(m_csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
        cabecera.EJERCICIO(2026);
        cabecera.CambiarModelo(u"480"_s);
        registro().MODO(u"A"_s);
        registro().ENTRADA(u"A"_s);
        abrir(Pantalla::Datos480a);
    }
    void cleanup()
    {
        m_pagina.reset();
        m_mensajes.reset();
        m_entorno.reset();
    }

    void guardadaEnSusTresPaginas()
    {
        const QString cabecera
            = u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=12) ANUAL"_s;
        const qint32 csde = guardarDistinta(m_csco, u"480"_s);
        abrirGuardada(csde);
        QCOMPARE(m_pagina->windowTitle(), u"Declaración Resumen Anual (1 de 3)"_s);
        compararRetrato(*m_pagina, rellena(Pagina1, cabecera));
        avanzar(1);
        QCOMPARE(m_pagina->windowTitle(), u"Declaración Resumen Anual (2 de 3)"_s);
        compararRetrato(*m_pagina, rellena(Pagina2, cabecera));
        avanzar(1);
        QCOMPARE(m_pagina->windowTitle(), u"Declaración Resumen Anual (3 de 3)"_s);
        compararRetrato(*m_pagina, rellena(Pagina3, cabecera));
        QCOMPARE(vueltaConTab(*m_pagina),
                 u"txt73ba1 txt76ba2 txt79ba3 txt80cu3 cmdanterior cmdAceptar cmdCancelar"_s);
        // nothing has changed: were anything saved, the missing file would be told; box 70 is not
        // what the bands add up to, which is refused first
        m_mensajes->responder(QMessageBox::Ok);
        manos().pulsar("cmdAceptar");
        QCOMPARE(m_mensajes->texto(),
                 u"La casilla Total No Exento debe ser igual a la suma de las "
                 "bases imponibles"_s);
        QCOMPARE(manos().foco(), u"txt73ba1"_s);
        QCOMPARE(guardado(csde), figurasDistintas(u"480"_s));
    }

    void enEuskera()
    {
        abrirGuardada(guardarDistinta(m_csco, u"480"_s));
        Entorno::pasarAEuskera(*m_pagina);
        QCOMPARE(m_pagina->windowTitle(), u"Urteko laburpen-aitorpena (1/3)"_s);
        compararRetrato(
            *m_pagina,
            rellena(Pagina1EnEuskera,
                    u"12345678Z SEGUROS UNO Ekitaldia (txtejer=2026) Zergaldia (txtper=12) "
                    "URTEKOA"_s));
        avanzar(2);
        QCOMPARE(m_pagina->windowTitle(), u"Urteko laburpen-aitorpena (3/3)"_s);
        m_mensajes->responder(QMessageBox::Ok);
        manos().pulsar("PicAce");
        QCOMPARE(m_mensajes->texto(),
                 u"Salbuetsi gabeko guztizkoa oinarri ezargarrien batura izan behar da"_s);
    }

    /// Every box of every page, by Enter and Tab from the first: typed, recomputed, kept over the
    /// pages, stored.
    void todasLasCasillasPorTeclado()
    {
        registro().C74_TI1(7.15F);
        registro().C77_TI2(6.0F);
        Registro esperado(56);
        double totales[2] = {};
        for (int clase = 0; clase < 23; ++clase) {
            if (clase == 11)
                manos().pulsar("cmdSiguiente");
            for (int columna = 0; columna < 2; ++columna) {
                const int numero = 1 + 3 * clase + columna;
                QCOMPARE(manos().foco(), controlCasilla(static_cast<Casilla480>(numero)));
                QTest::keyClicks(m_pagina->focusWidget(), u"%1,%2"_s.arg(numero).arg(10 + clase));
                manos().tecla(columna == 0 ? Qt::Key_Return : Qt::Key_Tab);
                const double centimos = numero * 100 + 10 + clase;
                const int pagina = clase < 11 ? 0 : 22;
                esperado[pagina + columna * (pagina == 0 ? 11 : 12) + clase - pagina / 2]
                    = centimos;
                totales[columna] += centimos;
                QCOMPARE(
                    registro().casilla(columna == 0 ? Casilla480::C70_TOT : Casilla480::C71_TOT),
                    totales[columna]);
            }
        }
        avanzar(1);
        manos().pulsar("picant");
        manos().pulsar("cmdanterior");
        QCOMPARE(m_pagina->objectName(), u"FrmDatos480a"_s);
        avanzar(2);
        manos().escribir("txt73ba1", u"600"_s);
        manos().escribir("txt76ba2", u"186,83"_s);
        manos().escribir("txt79ba3", u"-5"_s);
        manos().escribir("txt80cu3", u"-1,5"_s);
        manos().pulsar("cmdAceptar");
        QCOMPARE(totales[0], 78683.0);
        int posicion = 46;
        for (const QVariant &valor : Registro{totales[0], 60000.0, 18683.0, -500.0, 7.15F, 6.0F,
                                              4290.0, 1121.0, -150.0, 5261.0})
            esperado[posicion++] = valor;
        QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
        QCOMPARE(guardado(unico::la<cDecResumen>().CSDE()), esperado);
    }

    /// The box with the focus is taken by every way of leaving a page.
    void laCasillaConElFocoNoSePierde()
    {
        manos().escribir("txt01vida", u"1"_s);
        manos().pulsar("PicSig");
        QCOMPARE(registro().casilla(Casilla480::C01_VIDA), 100.0);
        manos().escribir("txt34obl", u"2"_s);
        manos().pulsar("cmdanterior");
        QCOMPARE(registro().casilla(Casilla480::C34_OBL), 200.0);
        avanzar(2);
        manos().escribir("txt80cu3", u"3"_s);
        manos().pulsar("picant");
        QCOMPARE(registro().casilla(Casilla480::C80_CU3), 300.0);
    }

    void liquidacionConDosTipos()
    {
        registro().C74_TI1(7.15F);
        registro().C77_TI2(6.0F);
        avanzar(2);
        manos().escribir("txt73ba1", u"10.000.000,00"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().foco(), u"txt76ba2"_s);
        QCOMPARE(manos().texto("txt75cu1"), u"715.000,00"_s);
        QCOMPARE(manos().texto("lblDiferencia"),
                 u"La casilla 70 difiere en -10.000.000,00 de la "
                 "suma de las casillas 73 y 76."_s);
        // the warning costs the list its height, not the page its buttons
        QVERIFY(!m_pagina->layout()->hasHeightForWidth());
        manos().escribir("txt76ba2", u"123,45"_s);
        manos().escribir("txt80cu3", u"-15.000"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().texto("txt78cu2"), u"7,41"_s);
        QCOMPARE(manos().texto("txt81res"), u"700.007,41"_s);
    }

    /// With one rate there is no second band to fill in; what is stored in it can be taken out.
    void unSoloTipo()
    {
        avanzar(2);
        const auto *caja = manos().control<QLineEdit>("txt76ba2");
        const QString motivo
            = u"El ejercicio 2026 tiene un solo tipo impositivo: la casilla 76 no se rellena."_s;
        QVERIFY(caja->isReadOnly());
        QCOMPARE(manos().texto("lblUnTipo"), motivo);
        QCOMPARE(caja->toolTip(), motivo);
        QVERIFY(!manos().control("lblDiferencia")->isVisible());
        QCOMPARE(vueltaConTab(*m_pagina),
                 u"txt73ba1 txt79ba3 txt80cu3 cmdanterior cmdAceptar cmdCancelar"_s);
        manos().pulsar("picant");
        registro().casilla(Casilla480::C76_BA2, 500);
        avanzar(1);
        caja = manos().control<QLineEdit>("txt76ba2");
        QVERIFY(!caja->isReadOnly());
        QVERIFY(manos().control("lblDiferencia")->isVisible());
        manos().escribir("txt76ba2", {});
        manos().tecla(Qt::Key_Tab);
        QVERIFY(caja->isReadOnly());
    }

    /// The pages are as large as each other, and Enter leads on from the last box of each.
    void lasPaginasSeSiguen()
    {
        const QSize tamano = m_pagina->sizeHint();
        manos().control("txt32otr")->setFocus();
        manos().tecla(Qt::Key_Return);
        QCOMPARE(manos().foco(), u"cmdSiguiente"_s);
        manos().tecla(Qt::Key_Return);
        QCOMPARE(m_pagina->objectName(), u"FrmDatos480b"_s);
        QCOMPARE(m_pagina->sizeHint(), tamano);
        manos().control("txt68dec")->setFocus();
        manos().tecla(Qt::Key_Return);
        QCOMPARE(manos().foco(), u"cmdSiguiente"_s);
        manos().tecla(Qt::Key_Return);
        QCOMPARE(m_pagina->objectName(), u"FrmDatos480c"_s);
        QCOMPARE(m_pagina->sizeHint(), tamano);
        manos().control("txt80cu3")->setFocus();
        manos().tecla(Qt::Key_Enter);
        QCOMPARE(manos().foco(), u"cmdAceptar"_s);
    }

    /// Where there is more room than the page needs, a label stays beside its box.
    void losRotulosSiguenJuntoASusCasillas()
    {
        m_pagina->resize(m_pagina->sizeHint() + QSize(900, 400));
        QCoreApplication::processEvents();
        int derecha = 0;
        for (const auto *etiqueta : m_pagina->findChildren<QLabel *>())
            if (etiqueta->text() == u"Enfermedad y asistencia sanit.")
                derecha = etiqueta->mapTo(m_pagina.get(), QPoint()).x()
                    + etiqueta->fontMetrics().horizontalAdvance(etiqueta->text());
        const int caja = manos().control("txt07enf")->mapTo(m_pagina.get(), QPoint()).x();
        QVERIFY2(derecha > 0 && caja - derecha < 120, qPrintable(QString::number(caja - derecha)));
    }

    void cambiadaEnOtraCopia()
    {
        const qint32 csde = guardarDistinta(m_csco, u"480"_s);
        for (const auto &[respuesta, ajena, casilla01, pedidas] :
             {std::tuple{QMessageBox::No, 900.0, 900.0, 0}, {QMessageBox::Yes, 901.0, 700.0, 1}}) {
            abrirGuardada(csde);
            Registro deOtra = figurasDistintas(u"480"_s);
            deOtra[0] = ajena;
            servicioDeclaracion()->Guardar480(Registro{csde, m_csco, 2026, 2, 12, u"480"_s, 2}
                                              + deOtra);
            manos().escribir("txt01vida", u"7"_s);
            avanzar(2);
            const double bandas
                = registro().casilla(Casilla480::C70_TOT) - registro().casilla(Casilla480::C76_BA2);
            manos().escribir("txt73ba1", textoImporte(bandas));
            m_mensajes->responder(respuesta);
            manos().pulsar("cmdAceptar");
            QVERIFY(m_mensajes->texto().contains(u"«480 ANUAL 2026»"_s));
            QCOMPARE(guardado(csde)[0].toDouble(), casilla01);
            QCOMPARE(m_pedidas.size(), pedidas);
            QCOMPARE(registro().casilla(Casilla480::C01_VIDA), casilla01);
            QVERIFY(!registro().MODIFICADO());
        }
    }

    void totalQueNoCabeSeRechazaEnLaCasilla()
    {
        manos().escribir("txt01vida", u"9999999999999,99"_s);
        manos().escribir("txt04acc", u"0,01"_s);
        m_mensajes->responder(QMessageBox::Ok);
        manos().tecla(Qt::Key_Tab);
        QVERIFY(m_mensajes->texto().startsWith(u"No se admite el cambio"_s));
        QCOMPARE(registro().casilla(Casilla480::C70_TOT), 999999999999999.0);
        QTRY_COMPARE(manos().foco(), u"txt04acc"_s);
    }

    void aceptarSinCambiosNoGuarda()
    {
        rellenar();
        manos().pulsar("cmdAceptar");
        const qint32 csde = unico::la<cDecResumen>().CSDE();
        abrirGuardada(csde);
        avanzar(2);
        // were anything saved, the missing file would be told
        const ModeloPerdido perdido;
        manos().pulsar("cmdAceptar");
        QCOMPARE(m_pedidas, (QList{Pantalla::Resumen, Pantalla::Resumen}));
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void volverALaPrimeraNoRecarga()
    {
        abrirGuardada(guardarDistinta(m_csco, u"480"_s));
        QVERIFY(!registro().MODIFICADO());
        manos().escribir("txt04acc", u"7"_s);
        avanzar(1);
        manos().pulsar("cmdanterior");
        QCOMPARE(manos().texto("txt04acc"), u"7,00"_s);
        QVERIFY(registro().MODIFICADO());
    }

    void guardadoQueFallaConservaTodo()
    {
        rellenar();
        {
            const ModeloPerdido perdido;
            m_mensajes->responder(QMessageBox::Ok);
            manos().pulsar("PicAce");
            QVERIFY(m_mensajes->texto().contains(u"OstrMod.mdb"_s));
        }
        QVERIFY(m_pedidas.isEmpty());
        manos().pulsar("PicAce");
        QCOMPARE(declaraciones().size(), 1);
    }

    void cancelarDesdeCadaPagina()
    {
        for (int avances = 0; avances < 3; ++avances) {
            m_pedidas.clear();
            abrir(Pantalla::Datos480a);
            manos().escribir("txt01vida", u"5"_s);
            avanzar(avances);
            manos().pulsar(avances == 1 ? "Piccan" : "cmdCancelar");
            QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QVERIFY(declaraciones().isEmpty());
        }
    }

    /// A page closed by its frame asks only when something typed would be lost.
    void cerrarElMarcoDeUnaPagina()
    {
        avanzar(2);
        QVERIFY(!m_pagina->perderia());
        manos().escribir("txt80cu3", u"5"_s);
        for (const auto respuesta : {QMessageBox::No, QMessageBox::Yes}) {
            m_mensajes->responder(respuesta);
            m_pagina->close();
            QCOMPARE(m_pagina->isVisible(), respuesta == QMessageBox::No);
        }
        QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
        QVERIFY(declaraciones().isEmpty());
    }

    /// Each month shows the totals of its return, rectification included.
    void listaDeMensuales()
    {
        for (const int mes : {3, 1})
            servicioDeclaracion()->Guardar430({0, m_csco, 2026, 1, mes, u"430"_s, 1, u"X"_s, 1.0,
                                               8.0F, 2.0, 3.0, 4.0, 10000.0 * mes, 8.0F,
                                               1001.0 * mes});
        avanzar(2);
        const auto *lista = manos().control<QTreeWidget>("lst430");
        const auto filas = [lista] {
            QStringList textos;
            for (int i = 0; i < lista->topLevelItemCount(); ++i)
                textos += lista->topLevelItem(i)->text(0) + u' ' + lista->topLevelItem(i)->text(1)
                    + u' ' + lista->topLevelItem(i)->text(2);
            return textos.join(u'|');
        };
        QVERIFY(lista->isVisible() && !manos().control("lblNo430")->isVisible());
        QCOMPARE(filas(),
                 u"ENERO 100,00 10,01|FEBRERO  |MARZO 300,00 30,03|ABRIL  |MAYO  |JUNIO  |"
                 "JULIO  |AGOSTO  |SEPTIEMBRE  |OCTUBRE  |NOVIEMBRE  |DICIEMBRE  "_s);
        QCOMPARE(manos().texto("lblTotalBase"), u"400,00"_s);
        QCOMPARE(manos().texto("lblTotalCuota"), u"40,04"_s);
        // each under its column
        const QList totales{manos().control("lblTotalBase"), manos().control("lblTotalCuota")};
        for (int columna = 1; columna <= 2; ++columna) {
            const int borde = lista->header()->sectionViewportPosition(columna)
                + lista->header()->sectionSize(columna);
            const auto *total = totales[columna - 1];
            const QPoint derecha = total->mapTo(m_pagina.get(), total->rect().topRight());
            QVERIFY(std::abs(derecha.x()
                             - lista->viewport()->mapTo(m_pagina.get(), QPoint(borde, 0)).x())
                    < 8);
        }
        QVERIFY(manos().control("picCuotas")->accessibleDescription().contains(u"MARZO: 30,03"_s));
        Entorno::pasarAEuskera(*m_pagina);
        QVERIFY(filas().startsWith(u"URTARRILA 100,00 10,01|OTSAILA"_s));
    }
};

QTEST_MAIN(TstFrmDatos480)
#include "tst_frmdatos480.moc"
