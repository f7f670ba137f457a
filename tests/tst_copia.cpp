#include "app/DialogosVentana.h"
#include "app/MDIOstrel.h"
#include "server/Comprobacion.h"
#include "server/Conexion.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Ostrel.h"
#include "support/ServidorPrueba.h"
#include "widgets/Ficheros.h"
#include "widgets/PantallaBase.h"

#include <QAction>
#include <QFileDialog>
#include <QRegularExpression>
#include <QTableView>

#include <sys/stat.h>

static const QStringList Enteras{u"OstrLec.mdb"_s, u"OstrMod.mdb"_s};

/// Backup and restore, by window and by command line, and what may go wrong with them.
class TstCopia : public QObject, Ostrel
{
    Q_OBJECT

private:
    DialogosVentana m_dialogos;
    std::optional<Entorno> m_entorno;
    std::unique_ptr<MDIOstrel> m_ventana;
    QString m_propuesta, m_filtro;

    QString copias(const QString &nombre = {}) const
    {
        return m_entorno->ruta(u"backups/"_s + nombre);
    }
    static QStringList en(const QString &carpeta)
    {
        return QDir(carpeta).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    static int declarantes(const QString &ruta)
    {
        return servidor::abrirComprobada(ruta, servidor::FormatoDatos)
            .execAndGet("SELECT count(*) FROM DECLARANTES")
            .getInt();
    }
    void abrirPrograma()
    {
        m_ventana = std::make_unique<MDIOstrel>();
        m_ventana->show();
    }
    void menu(const char *entrada) const
    {
        m_ventana->findChild<QAction *>(QString::fromLatin1(entrada))->trigger();
        QCoreApplication::processEvents();
    }
    /// The next file dialogue gets `ruta`; empty: it is accepted as it opens.
    void elegir(const QString &ruta)
    {
        ficheros::observar([this, ruta](QFileDialog &dialogo) {
            m_propuesta = dialogo.selectedFiles().value(0);
            m_filtro = dialogo.nameFilters().join(u'|');
            if (!ruta.isEmpty())
                dialogo.selectFile(ruta);
            QTimer::singleShot(0, &dialogo,
                               [&dialogo] { static_cast<QDialog &>(dialogo).done(1); });
        });
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        carpeta = m_entorno->ruta({});
        registrarServidor(&m_dialogos);
    }
    void cleanup()
    {
        ficheros::observar({});
        m_ventana.reset();
        m_entorno.reset();
        fijarIdioma(Idioma::Castellano);
    }

    void copiaDesdeElMenu()
    {
        Entorno::altaDeclarante();
        abrirPrograma();
        ConductorMensajes mensajes;
        mensajes.responder(QMessageBox::Ok);
        menu("mnuBackup");
        const auto caja = mensajes.tomar().value(0);
        QCOMPARE(caja.icono, QMessageBox::Information);
        QCOMPARE(caja.titulo, u"Crear copia de seguridad"_s);
        static const QRegularExpression texto(
            u"^Se ha creado la copia de seguridad\\.\n\nFichero: (.+)\nTamaño: \\d+,\\d kB\n"
            "Fecha: (\\d\\d/\\d\\d/\\d{4}) \\d\\d:\\d\\d$"_s);
        const auto leido = texto.match(caja.texto);
        QVERIFY2(leido.hasMatch(), qPrintable(caja.texto));
        QCOMPARE(QDir::fromNativeSeparators(leido.captured(1)), copias(u"OstrMod_bak.mdb"_s));
        QCOMPARE(leido.captured(2), QDate::currentDate().toString(u"dd/MM/yyyy"));
        QCOMPARE(declarantes(copias(u"OstrMod_bak.mdb"_s)), 1);
        // what is refused when it is to be restored
        escribir(m_entorno->ruta(u"otra.mdb"_s), "no database");
        elegir(m_entorno->ruta(u"otra.mdb"_s));
        mensajes.responder(QMessageBox::Ok);
        menu("mnuRestore");
        const QString ficha = mensajes.ficha();
        QVERIFY2(ficha.startsWith(u"Warning|Restaurar copia de seguridad|")
                     && ficha.contains(u"otra.mdb» está dañado."),
                 qPrintable(ficha));
    }

    void restauraConLaListaYElResumenAbiertos()
    {
        const qint32 uno = Entorno::altaDeclarante();
        Entorno::altaDeclaracion(uno, 2026, 1);
        servicioCopia(false); // a service that is not used does nothing
        {
            ConductorMensajes mensajes;
            mensajes.responder(QMessageBox::Ok);
            servicioCopia(false)->CrearBackup();
        }
        Entorno::altaDeclarante(u"A58818501"_s, u"SEGUROS DOS"_s);
        unico::la<CEntrada>().IDI(u"E"_s);
        abrirPrograma();
        menu("d1");
        menu("mnuAbrirDeclarante");
        const auto *tabla = m_ventana->findChild<QTableView *>(u"flxDeclarantes"_s);
        QCOMPARE(tabla->model()->rowCount(), 2);

        elegir({});
        ConductorMensajes mensajes;
        mensajes.responder(QMessageBox::No);
        const QByteArray antes = bytes(rutas().datos);
        menu("mnuRestore");
        auto caja = mensajes.tomar().value(0);
        QCOMPARE(m_propuesta, copias(u"OstrMod_bak.mdb"_s));
        QCOMPARE(m_filtro, u"mdb fitxategiak (*.mdb)"_s);
        QCOMPARE(caja.titulo, u"Segurtasun kopia leheneratu"_s);
        QCOMPARE(caja.porDefecto, QMessageBox::No);
        static const QRegularExpression pregunta(
            u"^Oraingo datuak .+\n\nOraingo datuak: \\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d, 2 "
            u"aitortzaile, "
            "1 aitorpen\nKopia: .+, 1 aitortzaile, 1 aitorpen$"_s);
        QVERIFY2(pregunta.match(caja.texto).hasMatch(), qPrintable(caja.texto));
        QCOMPARE(bytes(rutas().datos), antes);
        QCOMPARE(tabla->model()->rowCount(), 2);

        mensajes.responder(QMessageBox::Yes);
        mensajes.responder(QMessageBox::Ok);
        menu("mnuRestore");
        caja = mensajes.tomar().value(1);
        QCOMPARE(caja.titulo + u'|' + caja.texto.section(u'\n', 0, 0),
                 u"Segurtasun kopia leheneratu|«%1» fitxategiko datuak leheneratu dira."_s.arg(
                     QDir::toNativeSeparators(copias(u"OstrMod_bak.mdb"_s))));
        QCOMPARE(tabla->model()->rowCount(), 1);
        QTRY_VERIFY(!m_ventana->findChild<PantallaBase *>(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1);
        QVERIFY(!m_ventana->findChild<QAction *>(u"d2"_s)->isVisible());
        QVERIFY(m_ventana->windowTitle().startsWith(u"Ostrel de seguros")); // the copy's language
        QCOMPARE(m_ventana->findChild<PantallaBase *>(u"FrmDecLista"_s)->windowTitle(),
                 u"Abrir Declarante"_s);
        QCOMPARE(declarantes(copias(u"OstrMod_antes.mdb"_s)), 2);
        QCOMPARE(en(rutas().tablas), Enteras);
    }

    void candidatasRechazadas()
    {
        for (const auto &[casos, motivo] :
             {std::pair{u"truncated|empty|fourth page"_s, "está dañado."},
              {u"without tables"_s, "está incompleto: le faltan tablas o datos."},
              {u"foreign"_s, "no es una base de datos de este programa."},
              {u"newer"_s, "procede de una versión más nueva del programa."},
              {u"folder|pipe"_s, "no es un fichero."},
              {u"itself|itself by link"_s, "es el que el programa está usando."},
              {u"unreadable"_s, ": no hay permiso o falla el disco."}})
            for (const QString &caso : casos.split(u'|')) {
                init();
                probarCandidata(caso, motivo);
            }
    }

    /// A copy made by hand while a save was being written: what was half done is undone.
    void candidataConSuDiario()
    {
        llenar(rutas().datos, 3000);
        const QString candidata = m_entorno->ruta(u"candidata.mdb"_s);
        {
            SQLite::Database otro(rutas().datos.toStdString(), SQLite::OPEN_READWRITE);
            otro.exec("PRAGMA cache_size = 5; BEGIN IMMEDIATE; UPDATE DECLARANTES SET NOMBRE = "
                      "NOMBRE || 'MUCHO MAS LARGO', NUMERO = 77");
            QVERIFY(QFile::copy(rutas().datos, candidata));
            QVERIFY(QFile::copy(rutas().datos + u"-journal"_s, candidata + u"-journal"_s));
            otro.exec("ROLLBACK; DELETE FROM DECLARANTES");
        }
        const QByteArray suya = bytes(candidata);
        QCOMPARE(ostrel({u"restaurar"_s, candidata}).error, QByteArray());
        auto base = servidor::abrirComprobada(rutas().datos, servidor::FormatoDatos);
        QCOMPARE(base.execAndGet("SELECT count(*) FROM DECLARANTES WHERE NUMERO = 1").getInt(),
                 3000);
        QCOMPARE(base.execAndGet("PRAGMA integrity_check").getString(), "ok");
        QCOMPARE(bytes(candidata), suya);
        QCOMPARE(en(rutas().tablas), Enteras);
    }

    void ordenesEnLosDosIdiomas()
    {
        Entorno::altaDeclarante();
        const QString guardada = copias(u"OstrMod_bak.mdb"_s);
        auto salida = proceso({u"copia"_s});
        QVERIFY(salida.texto.startsWith("Se ha creado la copia de seguridad.\n"));
        QVERIFY(salida.texto.contains(guardada.toUtf8()));
        // restored over a database that cannot be used, which is kept
        escribir(rutas().datos, "rubbish");
        salida = proceso({u"restaurar"_s});
        QCOMPARE(declarantes(rutas().datos), 1);
        const QString apartada = QDir(rutas().tablas).entryList({u"OstrMod.mdb.*"_s}).value(0);
        QCOMPARE(bytes(rutas().tablas + apartada), "rubbish");
        const QString hecho
            = u"Se han restaurado los datos de «%1».\nLos datos anteriores están en «%2».\n"_s;
        dicha(salida, hecho.arg(guardada, rutas().tablas + apartada).toUtf8());
        hacer({u"idioma"_s, u"E"_s});
        QVERIFY(ostrel({u"copia"_s}).texto.startsWith("Segurtasun kopia sortu da.\n"));
        rechazar({u"restaurar"_s, u"no-hay.mdb"_s}, "fitxategia ez dago.");
    }

    void copiaDelDia()
    {
        const QString hoy
            = u"OstrMod_auto_%1.mdb"_s.arg(QDate::currentDate().toString(Qt::ISODate));
        const ConductorMensajes ninguno;
        abrirPrograma();
        m_ventana->close();
        QVERIFY(en(copias()).isEmpty()); // nothing was saved
        QVERIFY(QDir().mkpath(copias()));
        QStringList viejas;
        for (int dia = 1; dia <= 6; ++dia) {
            viejas.append(u"OstrMod_auto_2020-01-0%1.mdb"_s.arg(dia));
            escribir(copias(viejas.last()), "old");
        }
        escribir(copias(u"OstrMod_bak.mdb"_s), "the user's own");
        const auto guardarYSalir = [this] {
            abrirPrograma();
            menu("mnuNuevoDeclarante");
            auto *pantalla = m_ventana->findChild<PantallaBase *>(u"frmDecDatos"_s);
            Q_EMIT pantalla->datosCambiados();
            m_ventana->close();
        };
        Entorno::altaDeclarante();
        guardarYSalir();
        QCOMPARE(en(copias()), viejas.mid(2) << hoy << u"OstrMod_bak.mdb"_s);
        QCOMPARE(declarantes(copias(hoy)), 1);
        QCOMPARE(bytes(copias(u"OstrMod_bak.mdb"_s)), "the user's own");
        Entorno::altaDeclarante(u"A58818501"_s);
        guardarYSalir();
        QCOMPARE(declarantes(copias(hoy)), 1); // one a day
    }

    void copiaDelDiaQueFallaSeCuenta()
    {
        escribir(copias().chopped(1), "a file where the folder should be");
        ConductorMensajes mensajes;
        mensajes.responder(QMessageBox::Ok);
        QVERIFY(!servicioCopia(false)->CrearBackupDelDia());
        QCOMPARE(mensajes.ficha().section(u'.', 0, 0),
                 u"Warning|Crear copia de seguridad|No se ha podido hacer la copia de seguridad "
                 "automática"_s);
    }

private:
    void probarCandidata(const QString &caso, const char *motivo) const
    {
        llenar(rutas().datos, 300);
        const QByteArray buena = bytes(rutas().datos);
        const QString candidata = m_entorno->ruta(u"candidata.mdb"_s);
        const QByteArray nativa = QFile::encodeName(candidata);
        std::function<void()> antes;
        if (caso == u"folder")
            QVERIFY(QDir().mkdir(candidata));
        else if (caso == u"pipe")
            QCOMPARE(::mkfifo(nativa, 0600), 0);
        else if (caso == u"itself by link")
            QCOMPARE(::link(QFile::encodeName(rutas().datos), nativa), 0);
        else
            escribir(candidata, estropeado(caso, buena, buena));
        if (caso == u"without tables")
            SQLite::Database(candidata.toStdString(), SQLite::OPEN_READWRITE)
                .exec("DROP TABLE DATOS430; DROP TABLE DATOS480; DROP TABLE DECLARACIONES");
        if (caso == u"unreadable") {
            QFile::setPermissions(candidata, {});
            QFile::setPermissions(m_entorno->ruta({}), QFile::Permissions(0x7555));
            antes = [] {
                if (::geteuid() == 0 && ::setuid(65534) != 0) // root reads everything
                    ::_exit(9);
            };
        }
        const QStringList orden{u"restaurar"_s, caso == u"itself" ? rutas().datos : candidata};
        rechazada(antes ? proceso(orden, antes) : ostrel(orden), motivo);
        QCOMPARE(bytes(rutas().datos), buena);
        QCOMPARE(en(rutas().tablas), Enteras);
        QVERIFY(en(copias()).isEmpty());
    }
};

QTEST_MAIN(TstCopia)
#include "tst_copia.moc"
