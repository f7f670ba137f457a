#include "faults/Averias.h"

/// Each call of the program to the system that writes, one after the other, fails, or is the last
/// one before the process is killed.
class TstFallosLlamadas : public QObject, Averias
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // the sanitizer wants to be the first library of a process, and works all the same
        qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0");
    }
    void cadaLlamada_data()
    {
        QTest::addColumn<int>("numero");
        for (int i = 0; i < pruebas().size(); ++i)
            QTest::newRow(pruebas()[i].nombre) << i;
    }
    void cadaLlamada()
    {
        QFETCH(int, numero);
        const Prueba prueba = pruebas()[numero];
        const Extremos extremos = this->extremos(prueba);
        reponer(prueba);
        const Salida entera = averiada(prueba, 0, "5");
        QCOMPARE(entera.codigo, 0);
        const QList<QByteArray> llamadas = m_llamadas;
        // the removal of the journal commits, and has to survive a power cut
        if (numero == 0)
            QVERIFY(llamadas.last().startsWith("fdatasync") && llamadas.last().endsWith("/Tablas"));
        int fallidas = 0, muertes = 0;
        for (int n = 1; n <= llamadas.size(); ++n) {
            const bool entreIguales
                = n > 1 && n < llamadas.size() && igual(llamadas, n - 1) && igual(llamadas, n);
            if (entreIguales && !largo())
                continue;
            static const QList<QByteArray> modos{"28", "k", "5", "m", "5+", "K", "28+"};
            for (const QByteArray &modo :
                 largo() && !entreIguales ? modos : modos.mid((n + numero) % 7, 1)) {
                reponer(prueba);
                const Salida salida = averiada(prueba, n, modo);
                QVERIFY2(m_llamadas.size() >= n,
                         prueba.nombre + QByteArray::number(n) + modo + m_llamadas.join('\n'));
                const QByteArray &golpe = m_llamadas[n - 1];
                const bool mata = QByteArray("kKm").contains(modo);
                QCOMPARE(salida.codigo < 0, mata);
                ++(mata ? muertes : fallidas);
                comprobar(prueba, extremos, salida,
                          mata || modo.endsWith('+') || golpe.startsWith("unlink"));
                if (QTest::currentTestFailed())
                    return qWarning("%s %s: %s: %d %s", prueba.nombre, modo.constData(),
                                    golpe.constData(), salida.codigo, salida.error.constData());
            }
        }
        contar("llamadas",
               u"%1: %2 calls, %3 failed, %4 kills"_s.arg(QString::fromLatin1(prueba.nombre))
                   .arg(llamadas.size())
                   .arg(fallidas)
                   .arg(muertes));
    }

private:
    Salida averiada(const Prueba &prueba, int n, const QByteArray &modo)
    {
        const QString golpe = carpeta + u".golpes"_s;
        QFile::remove(golpe);
        const std::pair<const char *, QByteArray> entorno[]
            = {{"LD_PRELOAD", OSTREL_AVERIAS},
               {"OSTREL_AVERIA", QByteArray::number(n) + ' ' + modo},
               {"OSTREL_AVERIA_CARPETA", carpeta.toUtf8() + '/'},
               {"OSTREL_AVERIA_GOLPES", golpe.toUtf8()}};
        for (const auto &[nombre, valor] : entorno)
            qputenv(nombre, valor);
        const Salida salida = proceso(prueba.orden);
        for (const auto &[nombre, valor] : entorno)
            qunsetenv(nombre);
        m_llamadas = lineas::leer(golpe).split('\n');
        m_llamadas.removeLast();
        return salida;
    }
    /// Whether the nth call and the one behind it are of a kind, on the same file.
    static bool igual(const QList<QByteArray> &llamadas, int n)
    {
        static const QByteArray unica(".nuevo-" + QByteArray(32, 'x'));
        const auto sinNumero = [](QByteArray texto) {
            const auto lugar = texto.indexOf(".nuevo-");
            return lugar < 0 ? texto : texto.replace(lugar, unica.size(), unica);
        };
        return sinNumero(llamadas[n - 1]) == sinNumero(llamadas[n]);
    }

    QList<QByteArray> m_llamadas; ///< of the last run, one after the other
};

QTEST_MAIN(TstFallosLlamadas)
#include "tst_fallos_llamadas.moc"
