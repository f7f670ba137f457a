#include "faults/Averias.h"

#include <QApplication>
#include <QElapsedTimer>

#include <csignal>
#include <linux/capability.h>
#include <sched.h>
#include <sys/fsuid.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

static bool anotar(const QString &fichero, const QByteArray &texto)
{
    QFile destino(fichero);
    return destino.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && destino.write(texto) == texto.size();
}

/// Where this process may mount, seen by nobody else; whoever is not root stays who he is.
static bool mundoAparte()
{
    const auto mismo = [](auto numero) {
        return QByteArray::number(numero) + ' ' + QByteArray::number(numero) + " 1";
    };
    const QByteArray yo = mismo(::geteuid()), grupo = mismo(::getegid());
    if (::geteuid() == 0)
        return ::unshare(CLONE_NEWNS) == 0
            && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && anotar(u"/proc/self/setgroups"_s, "deny")
        && anotar(u"/proc/self/uid_map"_s, yo) && anotar(u"/proc/self/gid_map"_s, grupo);
}

static bool Aparte;

/// Every command where there is no room, no permission, or another program in the way.
class TstFallosDisco : public QObject, Averias
{
    Q_OBJECT

private Q_SLOTS:
    /// A disk of 1 MB that fills up a bit earlier each time.
    void discoDeUnMega()
    {
        if (!Aparte || ::mount("ostrel", qPrintable(carpeta), "tmpfs", 0, "size=1M") != 0)
            QSKIP("no disk of 1 MB: this account or container cannot mount one");
        const auto vuelta = qScopeGuard([this] { ::umount2(qPrintable(carpeta), MNT_DETACH); });
        probarTodas("disk", [this](const Prueba &prueba, qint64 libre) {
            QFile lastre(ruta("lastre"));
            const bool abierto = lastre.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            while (abierto && lastre.write(QByteArray(4096, 'x')) == 4096)
                continue;
            lastre.resize(std::max<qint64>(lastre.size() - libre, 0));
            const Salida salida = ostrel(prueba.orden);
            lastre.remove();
            return salida;
        });
    }

    void limiteDeTamano()
    {
        probarTodas("RLIMIT_FSIZE", [this](const Prueba &prueba, qint64 libre) {
            return proceso(prueba.orden, [libre] {
                const rlimit limite{rlim_t(libre), rlim_t(libre)};
                ::setrlimit(RLIMIT_FSIZE, &limite);
            });
        });
    }

    /// Root may do anything, and has to be somebody else meanwhile, for files only.
    void carpetaDeSoloLectura()
    {
        __user_cap_header_struct cabecera{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct ninguno[2]{}; // whoever may mount in his own world may do anything
        if (::geteuid() != 0)
            QCOMPARE(::syscall(SYS_capset, &cabecera, ninguno), 0);
        int rechazadas = 0;
        for (const Prueba &prueba : pruebas()) {
            const Extremos extremos = this->extremos(prueba);
            reponer(prueba);
            permisos(0555, 0444);
            const int yo = ::setfsuid(65534);
            const Salida salida = ostrel(prueba.orden);
            ::setfsuid(uid_t(yo));
            permisos(0755, 0644);
            rechazada(salida, "solo lectura");
            comprobar(prueba, extremos, salida, false);
            ++rechazadas;
        }
        contar("read-only", u"%1 commands refused"_s.arg(rechazadas));
    }

    /// Told within a second, and done when the other one is gone.
    void otroLaTieneBloqueada()
    {
        for (const Prueba &prueba : pruebas().first(7)) {
            const Extremos extremos = this->extremos(prueba);
            reponer(prueba);
            SQLite::Database otro(ruta("Tablas/OstrMod.mdb").toStdString(), SQLite::OPEN_READWRITE);
            otro.exec("BEGIN EXCLUSIVE");
            QElapsedTimer reloj;
            reloj.start();
            const Salida salida = ostrel(prueba.orden);
            QVERIFY2(reloj.elapsed() < 1000, prueba.nombre);
            otro.exec("COMMIT");
            rechazada(salida, "Otro programa está usando el fichero");
            comprobar(prueba, extremos, salida, false);
        }
        contar("lock", u"7 commands told within 1 s"_s);
    }

private:
    template <class F> void probarTodas(const char *que, F &&intentar)
    {
        int llenos = 0, hechos = 0;
        for (const Prueba &prueba : pruebas()) {
            const Extremos extremos = this->extremos(prueba);
            const qint64 paso = largo() ? 4096 : 36'864;
            for (qint64 libre = 0; libre <= 320'000; libre += paso) {
                reponer(prueba);
                const Salida salida = intentar(prueba, libre);
                if (salida.codigo != 0)
                    QVERIFY2(salida.error.contains("No queda espacio"),
                             prueba.nombre + salida.error);
                ++(salida.codigo == 0 ? hechos : llenos);
                comprobar(prueba, extremos, salida, false);
                if (QTest::currentTestFailed())
                    qWarning("%s with %lld bytes", prueba.nombre, libre);
                if (salida.codigo == 0 && !largo())
                    break;
            }
        }
        contar(que, u"%1 commands without room, %2 with just enough"_s.arg(llenos).arg(hechos));
    }
    void permisos(mode_t carpetas, mode_t ficheros) const
    {
        ::chmod(qPrintable(QFileInfo(carpeta).path()), 0755);
        QDirIterator todo(carpeta, QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (todo.hasNext()) {
            todo.next();
            ::chmod(qPrintable(todo.filePath()), todo.fileInfo().isDir() ? carpetas : ficheros);
        }
        ::chmod(qPrintable(carpeta), carpetas);
    }
};

int main(int argc, char **argv)
{
    Aparte = mundoAparte(); // while there is one thread
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication aplicacion(argc, argv);
    TstFallosDisco prueba;
    return QTest::qExec(&prueba, argc, argv);
}
#include "tst_fallos_disco.moc"
