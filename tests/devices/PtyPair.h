#pragma once

#include <QByteArray>
#include <QString>

namespace sandogh::test {

// A pseudo-terminal pair standing in for a serial device: the code under test
// opens slavePath() as its port, the test reads and writes the master side.
// The test keeps its own descriptor of the slave open, so the far end never
// hangs up while the port under test is closed and reopened.
class PtyPair {
public:
    PtyPair();
    ~PtyPair();
    PtyPair(const PtyPair&) = delete;
    PtyPair& operator=(const PtyPair&) = delete;

    bool ok() const { return m_master >= 0 && m_slave >= 0; }
    const QString& slavePath() const { return m_slavePath; }

    // Bytes written by the port under test. Keeps the Qt event loop running
    // until `count` bytes have come or `waitMs` have passed.
    QByteArray readMaster(int count, int waitMs = 3000);
    // Everything that arrives within `waitMs` (the event loop keeps running).
    QByteArray readAllFor(int waitMs);
    // Bytes the device sends to the port under test.
    void writeMaster(const QByteArray& bytes);

private:
    int m_master = -1;
    int m_slave = -1;
    QString m_slavePath;
};

}  // namespace sandogh::test
