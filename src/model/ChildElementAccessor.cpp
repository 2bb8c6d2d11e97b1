#include <corvane/workbench/model/ChildElementAccessor.hpp>

#include <corvane/workbench/model/internal/AbstractChildElementAccessor.hpp>

#include <format>
#include <stdexcept>

namespace corvane::workbench::model {

namespace {

class EmptyCollection final : public internal::AbstractChildElementAccessor {
public:
    [[nodiscard]] std::size_t elementCount() const override { return 0; }

    // No accessor reaches this within its preconditions: there is no element to return.
    [[nodiscard]] const Element& elementAt(std::size_t) const override {
        const Element* const none = nullptr;
        return *none;
    }
};

} // namespace

ChildElementAccessor::ChildElementAccessor() : _collection(&emptyCollection()), _count(0) {}

ChildElementAccessor::ChildElementAccessor(InternalConstructorTag,
                                           const internal::AbstractChildElementAccessor& collection)
    : _collection(&collection), _count(collection.elementCount()) {}

const internal::AbstractChildElementAccessor& ChildElementAccessor::emptyCollection() {
    static const EmptyCollection collection;
    return collection;
}

const Element& ChildElementAccessor::at(std::size_t index) const {
    if (index >= _count) {
        throw std::out_of_range(std::format(
            "child element index {} out of range: element has {} child(ren)", index, _count));
    }
    return _collection->elementAt(index);
}

const Element& ChildElementAccessor::operator[](std::size_t index) const {
    return _collection->elementAt(index);
}

const Element& ChildElementAccessor::front() const {
    return _collection->elementAt(0);
}

const Element& ChildElementAccessor::back() const {
    return _collection->elementAt(_count - 1);
}

ChildElementAccessor::Iterator ChildElementAccessor::begin() const noexcept {
    return {*this, 0};
}

ChildElementAccessor::Iterator ChildElementAccessor::end() const noexcept {
    return {*this, _count};
}

ChildElementAccessor::Iterator ChildElementAccessor::cbegin() const noexcept {
    return begin();
}

ChildElementAccessor::Iterator ChildElementAccessor::cend() const noexcept {
    return end();
}

std::reverse_iterator<ChildElementAccessor::Iterator>
ChildElementAccessor::rbegin() const noexcept {
    return std::reverse_iterator(end());
}

std::reverse_iterator<ChildElementAccessor::Iterator> ChildElementAccessor::rend() const noexcept {
    return std::reverse_iterator(begin());
}

std::reverse_iterator<ChildElementAccessor::Iterator>
ChildElementAccessor::crbegin() const noexcept {
    return rbegin();
}

std::reverse_iterator<ChildElementAccessor::Iterator> ChildElementAccessor::crend() const noexcept {
    return rend();
}

} // namespace corvane::workbench::model
