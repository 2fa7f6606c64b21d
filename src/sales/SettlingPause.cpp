#include "sales/SettlingPause.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QThread>

namespace sandogh {

SettlingPause::Result SettlingPause::settle(const std::function<QString()>& text, int capMs) {
    Result result;
    QAbstractEventDispatcher* dispatcher =
        QAbstractEventDispatcher::instance(QThread::currentThread());
    if (dispatcher == nullptr) {
        return result;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    QString before = text();
    for (;;) {
        // One pass over what is pending now; never waits for more.
        const bool handled = dispatcher->processEvents(QEventLoop::AllEvents);
        ++result.passes;
        if (!handled) {
            return result;
        }
        const QString after = text();
        if (after == before) {
            return result;
        }
        before = after;
        if (elapsed.elapsed() >= capMs) {
            result.capped = true;
            return result;
        }
    }
}

}  // namespace sandogh
