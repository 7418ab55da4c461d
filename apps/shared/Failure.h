#pragma once

#include <QString>

#include <stdexcept>

namespace Apps {

/// Something on the tour is not as it should be.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const QString& what) : std::runtime_error(what.toStdString()) {}
};

inline void require(bool condition, const QString& otherwise) {
    if (!condition) throw Failure(otherwise);
}

} // namespace Apps
