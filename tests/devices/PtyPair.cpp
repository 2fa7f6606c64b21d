#include "PtyPair.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <cstdlib>

namespace sandogh::test {

PtyPair::PtyPair() {
    m_master = posix_openpt(O_RDWR | O_NOCTTY);
    if (m_master < 0)
        return;
    if (grantpt(m_master) != 0 || unlockpt(m_master) != 0)
        return;
    const char* name = ptsname(m_master);
    if (!name)
        return;
    m_slavePath = QString::fromLocal8Bit(name);
    m_slave = ::open(name, O_RDWR | O_NOCTTY);
    if (m_slave < 0)
        return;
    termios raw{};
    if (tcgetattr(m_slave, &raw) == 0) {
        cfmakeraw(&raw);
        tcsetattr(m_slave, TCSANOW, &raw);
    }
    fcntl(m_master, F_SETFL, fcntl(m_master, F_GETFL) | O_NONBLOCK);
}

PtyPair::~PtyPair() {
    if (m_slave >= 0)
        ::close(m_slave);
    if (m_master >= 0)
        ::close(m_master);
}

QByteArray PtyPair::readMaster(int count, int waitMs) {
    QByteArray got;
    QDeadlineTimer deadline(waitMs);
    while (got.size() < count && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        pollfd p{m_master, POLLIN, 0};
        if (::poll(&p, 1, 5) > 0 && (p.revents & POLLIN)) {
            char buf[512];
            const ssize_t n = ::read(m_master, buf, sizeof buf);
            if (n > 0)
                got.append(buf, static_cast<int>(n));
        }
    }
    return got;
}

QByteArray PtyPair::readAllFor(int waitMs) {
    return readMaster(1 << 20, waitMs);
}

void PtyPair::writeMaster(const QByteArray& bytes) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(m_master, bytes.constData() + done, bytes.size() - done);
        if (n <= 0)
            break;
        done += n;
    }
}

}  // namespace sandogh::test
