#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Korvane::ado {

/// Keeps what is known of the statements used last, found by their text (`Shape::text`). One that is dropped
/// is told so (`Shape::drop`); who still uses it may do so to the end.
template <class Shape>
class ShapeCache {
  public:
    /// The shape of that text; null when it is not kept.
    std::shared_ptr<Shape> find(std::string_view text) {
        const auto found = mByText.find(text);
        if (found == mByText.end()) return nullptr;
        mShapes.splice(mShapes.begin(), mShapes, found->second);
        return *found->second;
    }

    /// Keeps a shape; the one not used for longest makes room.
    void keep(std::shared_ptr<Shape> shape) {
        mShapes.push_front(std::move(shape));
        mByText.emplace(mShapes.front()->text, mShapes.begin());
        makeRoom();
    }

    void forget() {
        mByText.clear();
        for (const auto& shape : mShapes)
            shape->drop();
        mShapes.clear();
    }

    void limit(std::size_t most) {
        mMost = most;
        makeRoom();
    }

  private:
    void makeRoom() {
        while (mShapes.size() > mMost) {
            mByText.erase(mShapes.back()->text);
            mShapes.back()->drop();
            mShapes.pop_back();
        }
    }

    std::size_t mMost = 512;
    std::list<std::shared_ptr<Shape>> mShapes; ///< the one used last first
    std::unordered_map<std::string_view, typename std::list<std::shared_ptr<Shape>>::iterator> mByText;
};

} // namespace Korvane::ado
