#include "core/Importe.h"
#include "declarations/FrmDatos480ab.h"
#include "declarations/FrmDatos480c.h"
#include "declarations/cDatos480.h"
#include "support/ConductorMensajes.h"
#include "support/DeclaracionesPrueba.h"
#include "support/Manos.h"
#include "support/Retrato.h"

#include <QRegularExpression>
#include <QTreeWidget>

/// The pages that show a return of all different figures, "|" between the rows: "01vida#1" is the
/// number of a box and the box, "#n" an amount of n × 1,001.01.
static const QString Cabecera
    = u"12345678Z SEGUROS UNO Ejercicio (txtejer=2026) Período (txtper=12) ANUAL|"_s;
static const QString Pagina1
    = u"No exento Exento|Vida 01vida#1 02vida#12|Accidentes 04acc#2 05acc#13|"
      "Enfermedad y asistencia sanit. 07enf#3 08enf#14|Vehículos terrestres 10terr#4 11terr#15|"
      "Vehículos ferroviarios 13ferr#5 14ferr#16|Vehículos aéreos 16aer#6 17aer#17|"
      "Vehículos marítimos 19mar#7 20mar#18|Mercancías transportadas 22mer#8 23mer#19|"
      "Incendios y elem. Naturales 25inc#9 26inc#20|Seguros Agrarios comb 28agr#10 29agr#21|"
      "Otros daños en bienes 31otr#11 32otr#22|<Siguiente> <Cancelar>"_s;
static const QString Pagina2
    = u"No exento Exento|Resp. Civil veh. Terrestres|Obligatorio 34obl#23 35obl#35|"
      "Voluntario 37vol#24 38vol#36|R.C. en veh. Aéreos 40rca#25 41rca#37|"
      "R.C. en veh. Marítimos 43rcm#26 44rcm#38|Resp. Civil general|"
      "Riesgos nucleares 46nuc#27 47nuc#39|Otros 49otr#28 50otr#40|Crédito 52cre#29 53cre#41|"
      "Caución 55cau#30 56cau#42|Pérdidas pecuniarias diversas 58ppe#31 59ppe#43|"
      "Defensa jurídica 61dju#32 62dju#44|Asistencia 64asi#33 65asi#45|Decesos 67dec#34 68dec#46|"
      "<Anterior> <Siguiente> <Cancelar>"_s;
static const QString Pagina3
    = u"No exento Exento|Totales 70 (txt70tot=#47) 71 (txt71tot=673.679,73)|"
      "Base imponible Tipo Cuota|"
      "Operaciones sujetas y no exentas 73ba1#48 74 (txt74ti1=7,15) 75 (txt75cu1=#53)|"
      "76ba2#49 77 (txt77ti2=6,00) 78 (txt78cu2=#54)|"
      "Rectificación de ejercicios anteriores 79ba3#50 80cu3#55|"
      "Resultado liquidación anual 81 (txt81res=#56)|"
      "La casilla 70 difiere en -50.050,50 de la suma de las casillas 73 y 76.|"
      "Declaraciones mensuales 430 del ejercicio|"
      "No existen declaraciones mensuales para este ejercicio|<Anterior> <Aceptar> <Cancelar>"_s;
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

    template <class T> static std::unique_ptr<PantallaBase> nueva()
    {
        return std::make_unique<T>();
    }
    void abrir(Pantalla cual)
    {
        static const QMap<Pantalla, std::unique_ptr<PantallaBase> (*)()> paginas{
            {Pantalla::Datos480a, nueva<FrmDatos480a>},
            {Pantalla::Datos480b, nueva<FrmDatos480b>},
            {Pantalla::Datos480c, nueva<FrmDatos480c>}};
        if (!paginas.contains(cual))
            return m_pedidas.append(cual);
        // the page that asks is still on its way out
        if (m_pagina)
            m_pagina.release()->deleteLater();
        m_pagina = paginas[cual]();
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
    /// Types and leaves the box.
    void rellenar(const char *caja, const QString &texto)
    {
        manos().escribir(caja, texto);
        manos().tecla(Qt::Key_Tab);
    }
    /// Presses a button and answers to the one message that it brings; the message's text.
    QString avisoAlPulsar(const char *boton,
                          QMessageBox::StandardButton respuesta = QMessageBox::Ok)
    {
        m_mensajes->responder(respuesta);
        manos().pulsar(boton);
        return m_mensajes->texto();
    }
    void compararPagina(const QString &titulo, QString pagina) const
    {
        static const QRegularExpression caja(u"\\b(\\d\\d)([a-z]\\w+)(#\\d+)"_s),
            numero(u"#(\\d+)"_s);
        pagina.replace(caja, u"\\1 [txt\\1\\2=\\3]"_s).replace(u'|', u'\n');
        for (auto m = numero.match(pagina); m.hasMatch(); m = numero.match(pagina))
            pagina.replace(m.capturedStart(), m.capturedLength(),
                           textoImporte(m.captured(1).toInt() * 100101.0));
        QCOMPARE(m_pagina->windowTitle(), titulo);
        compararRetrato(*m_pagina, pagina);
    }
    static Registro guardado(qint32 csde)
    {
        Registro leidas;
        servicioDeclaracion()->Cargar480(csde, leidas);
        return leidas;
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
        m_pedidas.clear();
        m_csco = Entorno::altaDeclarante();
        tomarCabecera(m_csco, u"480"_s, 12);
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
        const qint32 csde = guardarDistinta(m_csco, u"480"_s);
        abrirGuardada(csde);
        compararPagina(u"Declaración Resumen Anual (1 de 3)"_s, Cabecera + Pagina1);
        avanzar(1);
        compararPagina(u"Declaración Resumen Anual (2 de 3)"_s, Cabecera + Pagina2);
        avanzar(1);
        compararPagina(u"Declaración Resumen Anual (3 de 3)"_s, Cabecera + Pagina3);
        QCOMPARE(vueltaConTab(*m_pagina),
                 u"txt73ba1 txt76ba2 txt79ba3 txt80cu3 cmdanterior cmdAceptar cmdCancelar"_s);
        // box 70 is not what the bands add up to
        QCOMPARE(avisoAlPulsar("cmdAceptar"),
                 u"La casilla Total No Exento debe ser igual a la suma de las bases imponibles"_s);
        QCOMPARE(manos().foco(), u"txt73ba1"_s);
        QCOMPARE(guardado(csde), figurasDistintas(u"480"_s));
    }

    /// Every box of every page, by Enter and Tab from the first: typed, recomputed, kept over the
    /// pages, stored.
    void todasLasCasillasPorTeclado()
    {
        registro().C74_TI1(7.15F);
        registro().C77_TI2(6.0F);
        Registro esperado(56);
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
            }
        }
        avanzar(1);
        manos().pulsar("picant");
        manos().pulsar("cmdanterior");
        avanzar(2);
        rellenar("txt73ba1", u"600"_s);
        QCOMPARE(manos().textos("txt75cu1 lblDiferencia"),
                 u"42,90|La casilla 70 difiere en 186,83 de la suma de las casillas 73 y 76."_s);
        rellenar("txt76ba2", u"186,83"_s);
        QVERIFY(!manos().control("lblDiferencia")->isVisible());
        manos().escribir("txt79ba3", u"-5"_s);
        manos().escribir("txt80cu3", u"-1,5"_s);
        manos().pulsar("cmdAceptar");
        esperado.resize(46);
        esperado
            += {78683.0, 60000.0, 18683.0, -500.0, 7.15F, 6.0F, 4290.0, 1121.0, -150.0, 5261.0};
        QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
        QCOMPARE(guardado(unico::la<cDecResumen>().CSDE()), esperado);
    }

    /// The box with the focus is taken by every way of leaving a page.
    void laCasillaConElFocoNoSePierde()
    {
        for (const auto &[caja, salida, avances, casilla] :
             {std::tuple{"txt01vida", "PicSig", 0, Casilla480::C01_VIDA},
              {"txt34obl", "cmdanterior", 2, Casilla480::C34_OBL},
              {"txt80cu3", "picant", 0, Casilla480::C80_CU3}}) {
            manos().escribir(caja, u"2"_s);
            manos().pulsar(salida);
            QCOMPARE(registro().casilla(casilla), 200.0);
            avanzar(avances);
        }
    }

    /// With one rate there is no second band to fill in; what is stored in it can be taken out.
    void unSoloTipo()
    {
        avanzar(2);
        const QString motivo
            = u"El ejercicio 2026 tiene un solo tipo impositivo: la casilla 76 no se rellena."_s;
        QCOMPARE(manos().texto("lblUnTipo"), motivo);
        QCOMPARE(manos().control("txt76ba2")->toolTip(), motivo);
        QVERIFY(!manos().control("lblDiferencia")->isVisible());
        QCOMPARE(vueltaConTab(*m_pagina),
                 u"txt73ba1 txt79ba3 txt80cu3 cmdanterior cmdAceptar cmdCancelar"_s);
        manos().pulsar("picant");
        registro().casilla(Casilla480::C76_BA2, 500);
        avanzar(1);
        const auto *caja = manos().control<QLineEdit>("txt76ba2");
        QVERIFY(!caja->isReadOnly() && manos().control("lblDiferencia")->isVisible());
        rellenar("txt76ba2", {});
        QVERIFY(caja->isReadOnly());
    }

    /// Enter leads on from the last box of each page.
    void lasPaginasSeSiguen()
    {
        for (const auto &[pagina, ultima, boton] :
             {std::tuple{u"FrmDatos480a"_s, "txt32otr", u"cmdSiguiente"_s},
              {u"FrmDatos480b"_s, "txt68dec", u"cmdSiguiente"_s},
              {u"FrmDatos480c"_s, "txt80cu3", u"cmdAceptar"_s}}) {
            QCOMPARE(m_pagina->objectName(), pagina);
            manos().control(ultima)->setFocus();
            manos().tecla(Qt::Key_Return);
            QCOMPARE(manos().foco(), boton);
            if (boton == u"cmdSiguiente")
                manos().tecla(Qt::Key_Enter);
        }
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
            avanzar(1);
            manos().pulsar("cmdanterior"); // the first page is not loaded again
            QCOMPARE(manos().texto("txt01vida"), u"7,00"_s);
            avanzar(2);
            const double total = registro().casilla(Casilla480::C70_TOT);
            manos().escribir("txt73ba1",
                             textoImporte(total - registro().casilla(Casilla480::C76_BA2)));
            QVERIFY(avisoAlPulsar("cmdAceptar", respuesta).contains(u"«480 ANUAL 2026»"_s));
            QCOMPARE(guardado(csde)[0].toDouble(), casilla01);
            QCOMPARE(m_pedidas.size(), pedidas);
            QCOMPARE(registro().casilla(Casilla480::C01_VIDA), casilla01);
            QVERIFY(!registro().MODIFICADO());
        }
    }

    /// A save that fails keeps everything; without changes nothing is saved.
    void guardadoQueFallaYSinCambios()
    {
        manos().escribir("txt01vida", u"1000"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("PicSig");
        manos().escribir("txt73ba1", u"1000"_s);
        {
            const ModeloPerdido perdido;
            QVERIFY(avisoAlPulsar("PicAce").contains(u"OstrMod.mdb"_s) && m_pedidas.isEmpty());
        }
        manos().pulsar("PicAce");
        QCOMPARE(declaracionesDe(m_csco).size(), 1);
        const qint32 csde = unico::la<cDecResumen>().CSDE();
        abrirGuardada(csde);
        avanzar(2);
        // were anything saved, the missing file would be told
        const ModeloPerdido perdido;
        manos().pulsar("cmdAceptar");
        QCOMPARE(m_pedidas, (QList{Pantalla::Resumen, Pantalla::Resumen}));
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    /// Nothing is stored by any way out; the frame asks when something typed would be lost.
    void salirSinGuardar()
    {
        for (int avances = 0; avances < 3; ++avances) {
            m_pedidas.clear();
            abrir(Pantalla::Datos480a);
            QVERIFY(avances > 0 || !m_pagina->perderia());
            manos().escribir("txt01vida", u"5"_s);
            avanzar(avances);
            for (const auto respuesta : {QMessageBox::No, QMessageBox::Yes})
                if (avances == 2) {
                    m_mensajes->responder(respuesta);
                    m_pagina->close();
                    QCOMPARE(m_pagina->isVisible(), respuesta == QMessageBox::No);
                }
            if (avances < 2)
                manos().pulsar(avances == 1 ? "Piccan" : "cmdCancelar");
            QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QVERIFY(declaracionesDe(m_csco).isEmpty());
        }
    }

    /// Each month shows the totals of its return, rectification included.
    void listaDeMensuales()
    {
        for (const int mes : {3, 12, 1})
            servicioDeclaracion()->Guardar430({0, m_csco, 2026, 1, mes, u"430"_s, 1, u"X"_s, 1.0,
                                               8.0F, 2.0, 3.0, 4.0, 10000.0 * mes, 8.0F,
                                               1001.0 * mes});
        avanzar(2);
        auto *lista = manos().control<QTreeWidget>("lst430");
        const auto filas = [lista] {
            QStringList textos;
            for (QTreeWidgetItemIterator i(lista); *i; ++i)
                textos += (*i)->text(0) + u' ' + (*i)->text(1) + u' ' + (*i)->text(2);
            return textos.join(u'|');
        };
        QVERIFY(lista->isVisible() && !manos().control("lblNo430")->isVisible());
        QCOMPARE(filas(),
                 u"ENERO 100,00 10,01|FEBRERO  |MARZO 300,00 30,03|ABRIL  |MAYO  |JUNIO  |"
                 "JULIO  |AGOSTO  |SEPTIEMBRE  |OCTUBRE  |NOVIEMBRE  |DICIEMBRE 1.200,00 120,12"_s);
        QCOMPARE(manos().textos("lblTotales430 lblTotalBase lblTotalCuota"),
                 u"Total|1.600,00|160,16"_s);
        QVERIFY(manos().control("picCuotas")->accessibleDescription().contains(u"MARZO: 30,03"_s));
        Entorno::pasarAEuskera(*m_pagina);
        QVERIFY(filas().startsWith(u"URTARRILA 100,00 10,01|OTSAILA"_s));
        manos().escribir("txt73ba1", u"1"_s);
        QCOMPARE(avisoAlPulsar("PicAce"),
                 u"Salbuetsi gabeko guztizkoa oinarri ezargarrien batura izan behar da"_s);
    }

    /// The months' bases go into the band of their rate; the rest is said beside the button.
    void tomarDeLasMensuales()
    {
        const auto mes = [this](int periodo, double base, float tipo) {
            servicioDeclaracion()->Guardar430({0, m_csco, 2026, 1, periodo, u"430"_s, 1, u"X"_s,
                                               base, tipo, 0.0, 100.0, 8.0, base + 100, tipo, 8.0});
        };
        mes(1, 10000, 7.15F);
        mes(2, 20000, 6.0F);
        mes(3, 40000, 7.15F);
        mes(4, 80000, 4.0F);
        registro().C74_TI1(7.15F);
        registro().C77_TI2(6.0F);
        abrir(Pantalla::Datos480a);
        manos().escribir("txt01vida", u"200"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().texto("lblPorRepartir"),
                 u"Bases de las declaraciones mensuales: 700,00. Por repartir entre las clases: "
                 "500,00"_s);
        avanzar(2);
        QCOMPARE(manos().texto("lblAparte"),
                 u"Rectificaciones de las mensuales, que no se incluyen: base 4,00, cuota 0,32\n"
                 "Meses con otro tipo, que no se incluyen: ABRIL"_s);
        // all of it leaves the list's height to give, not the page's buttons
        QVERIFY(!m_pagina->layout()->hasHeightForWidth());
        manos().control("txt80cu3")->setFocus();
        for (const char *siguiente : {"cmdTomarMensuales", "lst430", "cmdanterior"}) {
            manos().tecla(Qt::Key_Tab);
            QCOMPARE(manos().foco(), QString::fromLatin1(siguiente));
        }
        manos().pulsar("cmdTomarMensuales");
        QCOMPARE(manos().textos("txt73ba1 txt76ba2 txt75cu1 txt78cu2"),
                 u"500,00|200,00|35,75|12,00"_s);
        QVERIFY(registro().MODIFICADO());
        manos().escribir("txt73ba1", u"1"_s); // still to be edited
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(registro().casilla(Casilla480::C73_BA1), 100.0);
        for (const int otro : {5, 6})
            mes(otro, ImporteMaximo - 100, 7.15F);
        manos().pulsar("cmdanterior");
        avanzar(1);
        QCOMPARE(avisoAlPulsar("cmdTomarMensuales"),
                 u"No se admite el cambio: el total «Base imponible» tendría más de 13 cifras "
                 "enteras."_s);
        QCOMPARE(registro().casilla(Casilla480::C73_BA1), 100.0);
    }
};

QTEST_MAIN(TstFrmDatos480)
#include "tst_frmdatos480.moc"
