#include "core/CEntrada.h"
#include "core/Importe.h"
#include "core/Textos.h"
#include "declarants/cDecResumen.h"
#include "declarations/FrmDatos480a.h"
#include "declarations/FrmDatos480b.h"
#include "declarations/FrmDatos480c.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/ServicioDosEneros.h"

#include <QApplication>
#include <QTreeWidget>

#include <optional>

using namespace Qt::StringLiterals;

/// The three pages of a 480, opened one after the other as the main window does.
class PruebaDatos480 : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::unique_ptr<PantallaBase> m_pagina;
    QList<Pantalla> m_pedidas; ///< screens asked for that are none of the pages

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
        connect(m_pagina.get(), &PantallaBase::mostrar, this, &PruebaDatos480::abrir);
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
    static double importeGuardado()
    {
        const auto filas = unico::la<cDecResumen>().CargarDeclaraciones();
        return filas.isEmpty() ? -1 : filas.first().importe;
    }
    /// Fills a whole return of 1,000.00 in box 01 by the keyboard.
    void rellenar()
    {
        manos().escribir("txt01vida", u"1000"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("PicSig");
        manos().escribir("txt73ba1", u"1000"_s);
    }
    /// Fills a return and accepts it; its key.
    qint32 rellenarYGuardar()
    {
        rellenar();
        manos().pulsar("cmdAceptar");
        return unico::la<cDecResumen>().CSDE();
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_pedidas.clear();
        const qint32 csco = Entorno::altaDeclarante();
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
        cabecera.EJERCICIO(2026);
        cabecera.CambiarModelo(u"480"_s);
        registro().MODO(u"A"_s);
        registro().ENTRADA(u"A"_s);
        abrir(Pantalla::Datos480a);
    }
    void cleanup()
    {
        m_pagina.reset();
        m_entorno.reset();
    }

    /// Every box of every page, by Tab from the first: typed, recomputed, kept over the pages.
    void todasLasCasillasPorTeclado()
    {
        double columnas[2] = {};
        for (int clase = 0; clase < Reg480::Clases; ++clase) {
            if (clase == Reg480::ClasesPagina1)
                manos().pulsar("cmdSiguiente");
            for (int columna = 0; columna < 2; ++columna) {
                QCOMPARE(manos().foco(), controlClase(clase, columna));
                const int numero = Reg480::casilla(clase, columna);
                QTest::keyClicks(m_pagina->focusWidget(), u"%1,%2"_s.arg(numero).arg(10 + clase));
                manos().tecla(columna == 0 ? Qt::Key_Return : Qt::Key_Tab);
                columnas[columna] += numero * 100 + 10 + clase;
                QCOMPARE(registro().casilla(Casilla480::C70_TOT + columna), columnas[columna]);
            }
        }
        manos().pulsar("cmdSiguiente");
        QCOMPARE(manos().texto("txt70tot"), textoImporte(columnas[0]));
        QCOMPARE(manos().texto("txt71tot"), textoImporte(columnas[1]));
        manos().pulsar("picant");
        manos().pulsar("cmdanterior");
        QCOMPARE(m_pagina->objectName(), u"FrmDatos480a"_s);
        QCOMPARE(manos().texto("txt31otr"), u"31,20"_s);
        QCOMPARE(manos().texto("txt02vida"), u"2,10"_s);
    }

    void liquidacionConDosTipos()
    {
        registro().C74_TI1(7.15F);
        registro().C77_TI2(6.0F);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdSiguiente");
        manos().escribir("txt73ba1", u"10.000.000,00"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().foco(), u"txt76ba2"_s);
        QCOMPARE(manos().texto("txt75cu1"), u"715.000,00"_s);
        QVERIFY(manos().texto("lblDiferencia").contains(u"-10.000.000,00"_s));
        manos().escribir("txt76ba2", u"123,45"_s);
        manos().escribir("txt80cu3", u"-15.000"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(manos().texto("txt78cu2"), u"7,41"_s);
        QCOMPARE(manos().texto("txt81res"), u"700.007,41"_s);
    }

    void totalQueNoCuadraSeDice()
    {
        manos().escribir("txt01vida", u"5"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdSiguiente");
        for (const QString &idioma : {u"C"_s, u"E"_s}) {
            unico::la<CEntrada>().IDI(idioma);
            ConductorMensajes conductor;
            conductor.responder(QMessageBox::Ok);
            manos().pulsar("cmdAceptar");
            QCOMPARE(conductor.texto(), msj(Msj::ErrorTotal480));
            QCOMPARE(manos().foco(), u"txt73ba1"_s);
        }
        QCOMPARE(importeGuardado(), -1.0);
    }

    void totalQueNoCabeSeRechazaEnLaCasilla()
    {
        manos().escribir("txt01vida", u"9999999999999,99"_s);
        ConductorMensajes conductor;
        conductor.responder(QMessageBox::Ok);
        manos().escribir("txt04acc", u"0,01"_s);
        manos().tecla(Qt::Key_Tab);
        QCOMPARE(conductor.texto(), msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
        QCOMPARE(registro().casilla(Casilla480::C70_TOT), 999999999999999.0);
        QTRY_COMPARE(manos().foco(), u"txt04acc"_s);
    }

    void guardarCargarYAceptarSinCambios()
    {
        const qint32 csde = rellenarYGuardar();
        QVERIFY(csde > 0);
        QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
        QCOMPARE(importeGuardado(), 8000.0);
        abrirGuardada(csde);
        QCOMPARE(manos().texto("txt01vida"), u"1.000,00"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdSiguiente");
        // were anything saved, the missing file would be told
        const ModeloPerdido perdido;
        manos().pulsar("cmdAceptar");
        QCOMPARE(m_pedidas.size(), 2);
        QCOMPARE(unico::la<cDecResumen>().CSDE(), csde);
    }

    void volverALaPrimeraNoRecarga()
    {
        abrirGuardada(rellenarYGuardar());
        manos().escribir("txt04acc", u"7"_s);
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdanterior");
        QCOMPARE(manos().texto("txt04acc"), u"7,00"_s);
        QVERIFY(registro().MODIFICADO());
    }

    void guardadoQueFallaConservaTodo()
    {
        rellenar();
        {
            const ModeloPerdido perdido;
            ConductorMensajes conductor;
            conductor.responder(QMessageBox::Ok);
            manos().pulsar("PicAce");
            QVERIFY(conductor.texto().contains(u"OstrMod.mdb"_s));
        }
        QVERIFY(m_pedidas.isEmpty());
        manos().pulsar("PicAce");
        QCOMPARE(importeGuardado(), 8000.0);
    }

    void cancelarDesdeCadaPagina()
    {
        for (int avances = 0; avances < 3; ++avances) {
            m_pedidas.clear();
            abrir(Pantalla::Datos480a);
            manos().escribir("txt01vida", u"5"_s);
            for (int i = 0; i < avances; ++i)
                manos().pulsar("cmdSiguiente");
            manos().pulsar(avances == 1 ? "Piccan" : "cmdCancelar");
            QCOMPARE(m_pedidas, QList{Pantalla::Resumen});
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QCOMPARE(importeGuardado(), -1.0);
        }
    }

    void listaDeMensuales()
    {
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdSiguiente");
        QCOMPARE(manos().texto("lblNo430"), msj(Msj::SinDeclaracionesMensuales));
        QVERIFY(!manos().control("lst430")->isVisible());
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.CambiarModelo(u"430"_s);
        for (const quint8 mes : QList<quint8>{1, 3}) {
            cDatos430 mensual;
            cabecera.PERIODO(mes);
            mensual.BASELIQ(10000.0 * mes);
            mensual.TIPOLIQ(10);
            mensual.CalcularValores();
            QVERIFY(mensual.GuardarDeclaracion(mensual.RegistroGuardar()) > 0);
        }
        cabecera.CambiarModelo(u"480"_s);
        manos().pulsar("cmdanterior");
        manos().pulsar("cmdSiguiente");
        const auto *lista = manos().control<QTreeWidget>("lst430");
        QVERIFY(lista->isVisible());
        QCOMPARE(lista->topLevelItemCount(), 12);
        QCOMPARE(lista->topLevelItem(0)->text(0), u"ENERO"_s);
        QCOMPARE(lista->topLevelItem(0)->text(1), u"100,00"_s);
        QCOMPARE(lista->topLevelItem(1)->text(1), QString());
        QCOMPARE(lista->topLevelItem(2)->text(2), u"30,00"_s);
        QVERIFY(manos().texto("lblTotales430").contains(u"400,00"_s));
        QVERIFY(manos().texto("lblTotales430").contains(u"40,00"_s));
        QVERIFY(manos().control("picCuotas")->accessibleDescription().contains(u"MARZO: 30,00"_s));
        Entorno::pasarAEuskera(*m_pagina);
        QCOMPARE(lista->topLevelItem(0)->text(0), u"URTARRILA"_s);
    }

    /// The last of two returns of one month is shown, both count.
    void dosDeclaracionesDeUnMes()
    {
        const ServicioDosEneros doble;
        manos().pulsar("cmdSiguiente");
        manos().pulsar("cmdSiguiente");
        const auto *lista = manos().control<QTreeWidget>("lst430");
        QCOMPARE(lista->topLevelItem(0)->text(1), u"200,00"_s);
        QCOMPARE(lista->topLevelItem(0)->text(2), u"20,00"_s);
        QVERIFY(manos().texto("lblTotales430").contains(u"600,00"_s));
        QVERIFY(manos().texto("lblTotales430").contains(u"60,00"_s));
    }
};

QTEST_MAIN(PruebaDatos480)
#include "tst_frmdatos480.moc"
