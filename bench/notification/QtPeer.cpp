#include "Peer.hpp"

#include <QObject>
#include <QProperty>
#include <QStringListModel>

namespace corvane::bench {
namespace {

/// A signal of Qt's own, which needs no generated code: a direction and two numbers.
class QtSubject final : public Subject {
public:
    QtSubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        for (std::size_t subscriber = 0; subscriber < subscribers; ++subscriber) {
            subscribe();
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            emit model_.headerDataChanged(Qt::Horizontal, static_cast<int>(index), 0);
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            QObject::disconnect(subscribe());
        }
    }

private:
    QMetaObject::Connection subscribe() {
        return QObject::connect(&model_, &QAbstractItemModel::headerDataChanged,
                                [this](Qt::Orientation, int, int) { ++calls_; });
    }

    std::size_t& calls_;
    QStringListModel model_;
};

/// A property that calls its handlers when it is given another value.
class QtPropertySubject final : public Subject {
public:
    QtPropertySubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        while (handlers_.size() < subscribers) {
            handlers_.push_back(subscribe());
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            property_.setValue(property_.value() + 1);
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            const QPropertyNotifier handler = subscribe();
        }
    }

private:
    QPropertyNotifier subscribe() {
        return property_.addNotifier([this] { ++calls_; });
    }

    std::size_t& calls_;
    QProperty<std::size_t> property_{0};
    std::vector<QPropertyNotifier> handlers_;
};

const Peer kSignal("Qt signal", makeSubject<QtSubject>);
const Peer kProperty("QProperty", makeSubject<QtPropertySubject>);

} // namespace
} // namespace corvane::bench
