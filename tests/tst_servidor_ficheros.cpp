#include "server/Comprobacion.h"
#include "server/Esquemas.h"
#include "server/cTraspaso.h"
#include "support/ServidorPrueba.h"

#include <QDir>
#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

static SQLite::Database otroPrograma(const QString &ruta)
{
    return SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE);
}

class TstServidorFicheros : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_servidor.emplace();
        QVERIFY(!m_servidor->traspaso() && m_servidor->alta(u"12345678Z"_s, u"ANA"_s) > 0);
    }

    void rechazados()
    {
        for (const char *caso : {"empty", "truncated", "short", "text", "random", "damaged"})
            probarRechazado(caso, true, Fallo::Danada);
        for (const bool esDatos : {true, false})
            for (const auto &[caso, fallo] : {std::pair{"foreign", Fallo::Ajena},
                                              {"unnamed", Fallo::Ajena},
                                              {"swapped", Fallo::Ajena},
                                              {"newer", Fallo::MasNueva}})
                probarRechazado(caso, esDatos, fallo);
    }

    /// What is made from our own texts is made again when it is not what they say.
    void lecturaSeRenueva()
    {
        const QString ruta = m_servidor->lectura();
        const QByteArray buena = bytes(ruta);
        const auto leida = [&] {
            QVERIFY(!m_servidor->traspaso());
            const auto objeto = m_servidor->generales(ruta);
            QCOMPARE(objeto->ObtenerTipoImpositivo(2026, 1), 8.0F);
            QCOMPARE(objeto->URLAct(), u"https://www.varlenda.example/ostrel/version"_s);
        };
        for (const char *caso : {"empty", "truncated", "short", "text", "random", "damaged"}) {
            escribir(ruta, estropeado(QString::fromUtf8(caso), buena, {}));
            leida();
        }
        for (const char *sql :
             {"UPDATE T09_TIPOS SET T09_TIPO = 60 WHERE T09_TIPO = 800", "DELETE FROM T08_GENERAL",
              "DROP TABLE T07_SIGLASVIA", "PRAGMA user_version = 0",
              "INSERT INTO T09_TIPOS VALUES (202207, 1)"}) {
            escribir(ruta, buena);
            otroPrograma(ruta).exec(sql);
            leida();
        }
        const auto escrita = QFileInfo(ruta).lastModified();
        leida();
        QCOMPARE(QFileInfo(ruta).lastModified(), escrita);
    }

    /// A link to a place that is not there stays a link: a share may be mounted later.
    void enlaceRoto()
    {
        for (const QString &ruta : {m_servidor->datos(), m_servidor->lectura()}) {
            const QByteArray bueno = bytes(ruta);
            QVERIFY(QFile::remove(ruta) && QFile::link(u"/no/hay/nada.mdb"_s, ruta));
            QCOMPARE(falloDe([&] { m_servidor->traspaso(); }), Fallo::EnlaceRoto);
            QCOMPARE(falloDe(usar), Fallo::EnlaceRoto);
            QCOMPARE(QFileInfo(ruta).symLinkTarget(), u"/no/hay/nada.mdb"_s);
            QVERIFY(QFile::remove(ruta));
            escribir(ruta, bueno);
        }
    }

    /// The journal of a crash is played back into its own file, and into no other one.
    void diarioDeUnCorte()
    {
        const QString ruta = m_servidor->datos();
        const QString diario = ruta + u"-journal"_s;
        copiador(true)->CrearBackup();
        const QByteArray copia = bytes(copiasCarpeta() + u"/OstrMod_bak.mdb"_s);
        for (int i = 0; i < 3; ++i)
            m_servidor->alta(u"D%1"_s.arg(i), u"N"_s);
        QByteArray cortado, suDiario;
        {
            auto otro = otroPrograma(ruta);
            otro.exec("PRAGMA cache_size = 2; BEGIN; UPDATE DECLARANTES SET NOMBRE = 'A MEDIAS', "
                      "DOMICILIO = hex(zeroblob(50000))");
            cortado = bytes(ruta);
            suDiario = bytes(diario);
            QVERIFY(cortado.contains("A MEDIAS"));
        }
        const auto preparar = [&](const QByteArray &base) {
            escribir(ruta, base);
            escribir(diario, suDiario);
            return falloDe([&] { m_servidor->traspaso(); });
        };
        const auto apartados = [&] {
            return QDir(m_servidor->carpeta()).entryList({u"*-journal.*"_s}, QDir::Files).size();
        };
        QCOMPARE(preparar(cortado), std::nullopt);
        QCOMPARE(nombres(), u"ANA N N N"_s);
        QVERIFY(apartados() == 0 && !QFile::exists(diario));
        QCOMPARE(preparar(copia), std::nullopt);
        QCOMPARE(nombres(), u"ANA"_s);
        QVERIFY(apartados() == 1 && !QFile::exists(diario));
        QByteArray mala = copia;
        mala.replace(4096, 4096, QByteArray(4096, 'z'));
        QCOMPARE(preparar(mala), Fallo::Danada);
        QCOMPARE(bytes(ruta), mala);
        QCOMPARE(bytes(diario), suDiario);
    }

    /// While another program writes its journal is no leftover.
    void diarioDeOtroPrograma()
    {
        auto otro = otroPrograma(m_servidor->datos());
        servidor::registrarPrueba(otro);
        otro.exec("BEGIN IMMEDIATE; UPDATE DECLARANTES SET NOMBRE = 'OTRA'");
        otro.exec("UPDATE DECLARANTES SET PRUEBA = " + servidor::probadaDeclarantes().valor());
        QVERIFY(!m_servidor->traspaso());
        otro.exec("COMMIT");
        QCOMPARE(nombres(), u"OTRA"_s);
    }

    /// Started at the same moment on an empty folder, each keeps what it saves.
    void variosALaVez()
    {
        const ServidorPrueba nuevo;
        constexpr int Programas = 6;
        for (int i = 0; i < Programas; ++i)
            if (::fork() == 0) {
                bool bien = false;
                for (int intento = 0; intento < 40 && !bien; ++intento)
                    bien = falloDe([&] {
                               nuevo.traspaso();
                               nuevo.alta(u"D%1"_s.arg(i), u"N"_s);
                           }).value_or(Fallo::NoExiste)
                        != Fallo::EnUso;
                ::_exit(0);
            }
        for (int i = 0; i < Programas; ++i)
            QVERIFY(::wait(nullptr) > 0);
        QCOMPARE(nuevo.generales(nuevo.datos())->NumeroDeclarantes(), Programas);
        QCOMPARE(QDir(nuevo.carpeta()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    /// Each kind of error by what it is.
    void motivos()
    {
        const auto hecho = [&](const char *sql) { otroPrograma(m_servidor->datos()).exec(sql); };
        hecho("CREATE TRIGGER T BEFORE INSERT ON DECLARANTES BEGIN SELECT RAISE(ABORT, 'no'); END");
        QCOMPARE(falloDe(guardar), Fallo::Restriccion);
        // the second of a save's statements undoes the first
        hecho("DROP TRIGGER T; CREATE TRIGGER T BEFORE UPDATE OF RECIENTE ON DECLARANTES "
              "BEGIN SELECT RAISE(ABORT, 'no'); END");
        QCOMPARE(falloDe(guardar), Fallo::Restriccion);
        QCOMPARE(cuantos(), 1);
        hecho("DROP TABLE DECLARANTES");
        QCOMPARE(falloDe(guardar), Fallo::Incompleta);
        otroPrograma(m_servidor->lectura()).exec("DELETE FROM T08_GENERAL");
        Registro limites;
        const auto general = m_servidor->generales(m_servidor->lectura());
        QCOMPARE(falloDe([&] { general->DameEjerPerMinMax(limites); }), Fallo::Incompleta);
        QCOMPARE(falloDe([&] { general->URLAct(); }), Fallo::Incompleta);
    }

    void faltante()
    {
        QVERIFY(QFile::remove(m_servidor->datos()));
        QCOMPARE(falloDe(usar), Fallo::NoExiste);
        QVERIFY(!QFile::exists(m_servidor->datos()) && !m_servidor->traspaso());
        QCOMPARE(cuantos(), 0);
    }

    void soloLectura()
    {
        const QByteArray carpeta = QFile::encodeName(m_servidor->carpeta());
        const QByteArray padre = QFile::encodeName(QFileInfo(m_servidor->carpeta()).path());
        QVERIFY(::chmod(padre.constData(), 0755) == 0 && ::chmod(carpeta.constData(), 0555) == 0);
        for (const QString &ruta : {m_servidor->datos(), m_servidor->lectura()})
            QVERIFY(::chmod(QFile::encodeName(ruta).constData(), 0444) == 0);
        // Who may do anything (root) has to be somebody else meanwhile, for files only.
        const int yo = ::setfsuid(65534);
        const auto vuelta = qScopeGuard([&] {
            ::setfsuid(static_cast<uid_t>(yo));
            ::chmod(carpeta.constData(), 0755);
        });
        QVERIFY(!m_servidor->traspaso());
        QCOMPARE(nombres(), u"ANA"_s);
        QCOMPARE(falloDe(guardar), Fallo::SoloLectura);
        QCOMPARE(nombres(), u"ANA"_s);
        // made writable again, it is written without more ado
        ::setfsuid(static_cast<uid_t>(yo));
        ::chmod(carpeta.constData(), 0777);
        ::chmod(QFile::encodeName(m_servidor->datos()).constData(), 0666);
        ::setfsuid(65534);
        QCOMPARE(falloDe(guardar), std::nullopt);
        QCOMPARE(cuantos(), 2);
    }

    void migracion()
    {
        using namespace servidor;
        const Formato nuevo{FormatoDatos.aplicacion, 4, false};
        const Paso pasos[]{{2, "ALTER TABLE DECLARANTES ADD COLUMN FAX TEXT NOT NULL DEFAULT ''"},
                           {3, "UPDATE DECLARANTES SET FAX = DNI"}};
        const QByteArray antes = bytes(m_servidor->datos());
        // Without the last step nothing of the first one holds.
        QCOMPARE(falloDe([&] { migrar(m_servidor->datos(), nuevo, std::span(pasos).first(1)); }),
                 Fallo::Danada);
        QCOMPARE(bytes(m_servidor->datos()), antes);
        migrar(m_servidor->datos(), nuevo, pasos);
        auto base = otroPrograma(m_servidor->datos());
        QCOMPARE(base.execAndGet("SELECT FAX FROM DECLARANTES").getString(), "12345678Z");
        QCOMPARE(comprobarCabecera(m_servidor->datos(), nuevo, Version::Actual), 4);
        QCOMPARE(falloDe(usar), Fallo::MasNueva);
        const QString copia = copiaAnterior(m_servidor->datos(), 2);
        QCOMPARE(comprobarCabecera(copia, FormatoDatos, Version::Actual), 2);
        QCOMPARE(otroPrograma(copia).execAndGet("SELECT count(*) FROM DECLARANTES").getInt(), 1);
    }

    void copiaYRestauracion()
    {
        for (const QString &caso : {u"good"_s, u"missing"_s, u"random"_s, u"newer"_s}) {
            init();
            copiador(true)->CrearBackup();
            guardar();
            const QString ruta = m_servidor->datos();
            const QByteArray estado = estropeado(caso, bytes(ruta), {});
            if (caso != u"good")
                QVERIFY(QFile::remove(ruta));
            const bool apartado = caso == u"random" || caso == u"newer";
            if (apartado)
                escribir(ruta, estado);
            QVERIFY(copiador(false)->CrearRestore() && !m_servidor->traspaso());
            QCOMPARE(cuantos(), 1);
            QDir carpeta(m_servidor->carpeta());
            const QStringList apartados = carpeta.entryList({u"OstrMod.mdb.*"_s}, QDir::Files);
            QCOMPARE(apartados.size(), apartado ? 1 : 0);
            QVERIFY(!apartado || bytes(carpeta.filePath(apartados[0])) == estado);
        }
    }

    void copiasAnteriores()
    {
        for (int i = 0; i < 7; ++i) {
            m_servidor->alta(u"D%1"_s.arg(i), u"N"_s);
            copiador(true)->CrearBackup();
        }
        QDir copias(copiasCarpeta());
        QCOMPARE(copias.entryList(QDir::Files).size(), 6);
        const auto guardados = [&](const QString &nombre) {
            return otroPrograma(copias.filePath(nombre))
                .execAndGet("SELECT count(*) FROM DECLARANTES")
                .getInt();
        };
        QCOMPARE(guardados(u"OstrMod_bak.mdb"_s), 8);
        QCOMPARE(guardados(u"OstrMod_bak.5.mdb"_s), 3);
        // what cannot get to its place leaves nothing beside it
        QVERIFY(copias.remove(u"OstrMod_bak.mdb"_s) && copias.mkdir(u"OstrMod_bak.mdb"_s));
        QVERIFY(QFile(copias.filePath(u"OstrMod_bak.5.mdb"_s)).remove());
        QVERIFY(copias.mkdir(u"OstrMod_bak.5.mdb"_s) && copias.mkdir(u"OstrMod_bak.5.mdb/x"_s));
        QVERIFY(falloDe([&] { copiador(true)->CrearBackup(); }));
        QCOMPARE(copias.entryList({u"*nuevo*"_s}, QDir::AllEntries), QStringList());
    }

private:
    void probarRechazado(const char *caso, bool esDatos, Fallo fallo)
    {
        init();
        const QString ruta = esDatos ? m_servidor->datos() : m_servidor->lectura();
        const QString otra = esDatos ? m_servidor->lectura() : m_servidor->datos();
        const QByteArray malo = estropeado(QString::fromUtf8(caso), bytes(ruta), bytes(otra));
        QVERIFY(QFile::remove(otra)); // has to be prepared again all the same
        escribir(ruta, malo);
        QString objeto;
        try {
            m_servidor->traspaso();
            m_servidor->comprobar();
        } catch (const ErrorDatos &error) {
            objeto = error.objeto();
            QCOMPARE(error.fallo(), fallo);
        }
        QVERIFY2(objeto == ruta, caso);
        QVERIFY(falloDe(usar));
        if (esDatos) // found by the first write too, where nobody has looked before
            QCOMPARE(falloDe(guardar), fallo);
        QCOMPARE(bytes(ruta), malo);
        QVERIFY(QFile::exists(otra));
        QCOMPARE(QDir(m_servidor->carpeta()).entryList(QDir::Files).size(), 2);
    }

    /// The names stored, by a call that needs both databases.
    QString nombres() const
    {
        Filas filas;
        m_servidor->declarantes()->dameResultado(filas, 1, 0);
        return QVariant(columna(filas, FilaDeclarante::NOMBRE)).toStringList().join(u' ');
    }
    int cuantos() const { return m_servidor->generales(m_servidor->datos())->NumeroDeclarantes(); }
    const std::function<void()> usar = [this] { nombres(); };
    const std::function<void()> guardar = [this] { m_servidor->alta(u"00000000T"_s, u"EVA"_s); };

    QString copiasCarpeta() const
    {
        return QFileInfo(m_servidor->carpeta()).path() + u"/backups"_s;
    }

    std::unique_ptr<SvrKtComunLib::cSaveAsRestore> copiador(bool copia) const
    {
        const QString tablas = m_servidor->carpeta() + u'/';
        const QString copias = copiasCarpeta() + u'/';
        const QString modelo = u"OstrMod.mdb"_s;
        const QString guardado = u"OstrMod_bak.mdb"_s;
        auto objeto = servicio::crear<SvrKtComunLib::cSaveAsRestore>();
        objeto->ArchivoOrigen(copia ? modelo : guardado);
        objeto->ArchivoDestino(copia ? guardado : modelo);
        objeto->RutaOrigen(copia ? tablas : copias);
        objeto->RutaDestino(copia ? copias : tablas);
        objeto->BDLectura(m_servidor->lectura());
        objeto->BDTabla(u"T08_GENERAL"_s);
        objeto->BDCampo(u"T08_BACKUP_TVC"_s);
        return objeto;
    }

    std::optional<ServidorPrueba> m_servidor;
};

QTEST_GUILESS_MAIN(TstServidorFicheros)
#include "tst_servidor_ficheros.moc"
