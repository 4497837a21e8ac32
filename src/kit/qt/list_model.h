#pragma once

#include <QtCore/qabstractitemmodel.h>
#include <QtCore/qbytearray.h>
#include <QtCore/qhash.h>
#include <QtCore/qvariant.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "kit/list_difference.h"
#include "kit/settling.h"

namespace tidewell {

/// A list of values for QML, which can be compared. Setting new values tells only what differs, so
/// that a row that stays keeps its delegate, with its hover, focus and animations, wherever it
/// goes.
template <class Value>
class ListModel final : public QAbstractListModel {
 public:
    struct Role {
        QByteArray name;
        std::function<QVariant(const Value&)> read;
    };
    /// What makes a value the same row as before.
    using Key = std::function<std::string(const Value&)>;

    ListModel(Key key, std::vector<Role> roles, QObject* parent)
        : QAbstractListModel(parent), key_(std::move(key)), roles_(std::move(roles)) {}

    const std::vector<Value>& values() const { return values_; }
    /// The value of a row; null if there is none.
    const Value* at(int row) const {
        const auto index = static_cast<std::size_t>(row);
        return row >= 0 && index < values_.size() ? &values_[index] : nullptr;
    }

    /// Whether the rows have stood still for long enough that a press is meant for the one it
    /// meets.
    bool isAtRest() const { return settling_.isOver(); }
    /// For a press that cannot be taken back: null also as long as the rows are not at rest.
    const Value* atRest(int row) const { return isAtRest() ? at(row) : nullptr; }

    void set(std::vector<Value> values) {
        for (const auto& step : listDifference(keysOf(values_), keysOf(values))) take(step, values);
        for (std::size_t row = 0; row < values.size(); ++row) {
            if (values_[row] == values[row]) continue;
            values_[row] = std::move(values[row]);
            const auto changed = index(static_cast<int>(row));
            emit dataChanged(changed, changed);
        }
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(values_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const auto at = static_cast<std::size_t>(role - Qt::UserRole);
        if (!checkIndex(index, CheckIndexOption::IndexIsValid) || at >= roles_.size()) return {};
        return roles_[at].read(values_[static_cast<std::size_t>(index.row())]);
    }

    QHash<int, QByteArray> roleNames() const override {
        QHash<int, QByteArray> names;
        int role = Qt::UserRole;
        for (const auto& entry : roles_) names.insert(role++, entry.name);
        return names;
    }

 private:
    std::vector<std::string> keysOf(const std::vector<Value>& values) const {
        std::vector<std::string> keys;
        keys.reserve(values.size());
        for (const auto& value : values) keys.push_back(key_(value));
        return keys;
    }

    void take(const ListStep& step, const std::vector<Value>& wanted) {
        settling_.moved();
        const auto from = static_cast<int>(step.from);
        const auto to = static_cast<int>(step.to);
        switch (step.kind) {
            case ListStep::Kind::remove:
                beginRemoveRows({}, from, from);
                values_.erase(values_.begin() + from);
                endRemoveRows();
                break;
            case ListStep::Kind::move:  // always towards the front
                beginMoveRows({}, from, from, {}, to);
                std::rotate(values_.begin() + to, values_.begin() + from,
                            values_.begin() + from + 1);
                endMoveRows();
                break;
            case ListStep::Kind::insert:
                beginInsertRows({}, to, to);
                values_.insert(values_.begin() + to, wanted[step.to]);
                endInsertRows();
                break;
        }
    }

    const Key key_;
    const std::vector<Role> roles_;
    std::vector<Value> values_;
    Settling settling_;
};

}  // namespace tidewell
