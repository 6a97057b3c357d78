// An ordered list of shared objects that are found by name.
#ifndef ZN_HOST_NAMED_LIST_H
#define ZN_HOST_NAMED_LIST_H

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace znhost {

/// Objects in order, each under a name of its own: `Object` has `const std::string& Name() const`, which
/// never changes. Finding, adding and removing take the same time however many there are. Who lists all after
/// each removal, as deleting one by one does, gets a copy of plain memory, not a walk from object to object.
template <class Object>
class NamedList {
public:
    using Objects = std::list<std::shared_ptr<Object>>;

    /// The object of that exact name, or null.
    Object* Find(std::string_view name) const {
        const auto found = places_.find(name);
        return found == places_.end() ? nullptr : found->second->get();
    }
    /// Adds an object at the end. Its name must not be in the list yet.
    Object& Add(std::shared_ptr<Object> object) {
        listed_.clear();
        objects_.push_back(std::move(object));
        Object& added = *objects_.back();
        try {
            places_.emplace(added.Name(), std::prev(objects_.end()));
        } catch (...) {
            objects_.pop_back();
            throw;
        }
        return added;
    }
    /// Takes an object out of the list; null when it is not in it.
    std::shared_ptr<Object> Remove(const Object& object) {
        const auto found = places_.find(object.Name());
        if (found == places_.end() || found->second->get() != &object) return nullptr;
        const typename Objects::iterator place = found->second;
        places_.erase(found);
        if (std::exchange(isListed_, false) && !listed_.empty()) {
            listed_.erase(std::find(listed_.begin(), listed_.end(), &object));
        } else {
            listed_.clear();
        }
        std::shared_ptr<Object> removed = std::move(*place);
        objects_.erase(place);
        return removed;
    }
    /// Puts an object of the list at that position, counted from 0 without the object itself.
    void Move(const Object& object, std::size_t position) {
        listed_.clear();
        Objects moved;
        moved.splice(moved.end(), objects_, places_.at(object.Name()));
        objects_.splice(std::next(objects_.begin(), static_cast<std::ptrdiff_t>(position)), moved);
    }

    /// Empties the list and gives what it held. Takes no memory: destructors may use it.
    Objects TakeAll() noexcept {
        places_.clear();
        listed_.clear();
        Objects taken;
        taken.swap(objects_);
        return taken;
    }

    bool IsEmpty() const { return objects_.empty(); }
    std::size_t Size() const { return objects_.size(); }
    Object* First() const { return objects_.empty() ? nullptr : objects_.front().get(); }
    typename Objects::const_iterator begin() const { return objects_.begin(); }
    typename Objects::const_iterator end() const { return objects_.end(); }

    /// Replaces what `out` holds by all objects in order.
    template <class Interface>
    void CopyTo(std::vector<Interface*>& out) const {
        if (listed_.size() != objects_.size()) {
            std::vector<Object*> listed;
            listed.reserve(objects_.size());
            for (const std::shared_ptr<Object>& object : objects_) listed.push_back(object.get());
            listed_ = std::move(listed);
        }
        isListed_ = true;
        out.assign(listed_.begin(), listed_.end());
    }

private:
    Objects objects_;
    std::unordered_map<std::string_view, typename Objects::iterator> places_;
    // All in order, when they were last asked for; empty when that has changed.
    mutable std::vector<Object*> listed_;
    mutable bool isListed_ = false; ///< Since the last removal: that one can afford to search the list.
};

} // namespace znhost

#endif
