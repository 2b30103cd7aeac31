#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace kelvaro {

/// Feels how long the window is held at the longest, by a timer of its thread.
class Heartbeat : public QObject {
public:
    Heartbeat() {
        timer_.callOnTimeout(this, [this] { Beat(); });
        timer_.start(2);
        since_.start();
    }

    /// The longest time between two beats, up to now, in milliseconds.
    qint64 LongestHold() {
        Beat();
        return longest_;
    }

private:
    void Beat() { longest_ = std::max(longest_, since_.restart()); }

    QTimer timer_;
    QElapsedTimer since_;
    qint64 longest_ = 0;
};

} // namespace kelvaro
