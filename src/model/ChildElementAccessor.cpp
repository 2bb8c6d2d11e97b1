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

ChildElementAccessor::ChildElementAccessor() : collection_(&emptyCollection()), count_(0) {}

ChildElementAccessor::ChildElementAccessor(InternalConstructorTag,
                                           const internal::AbstractChildElementAccessor& collection)
    : collection_(&collection), count_(collection.elementCount()) {}

const internal::AbstractChildElementAccessor& ChildElementAccessor::emptyCollection() {
    static const EmptyCollection collection;
    return collection;
}

const Element& ChildElementAccessor::at(std::size_t index) const {
    if (index >= count_) {
        throw std::out_of_range(std::format(
            "child element index {} out of range: element has {} child(ren)", index, count_));
    }
    return collection_->elementAt(index);
}

const Element& ChildElementAccessor::operator[](std::size_t index) const {
    return collection_->elementAt(index);
}

const Element& ChildElementAccessor::front() const {
    return collection_->elementAt(0);
}

const Element& ChildElementAccessor::back() const {
    return collection_->elementAt(count_ - 1);
}

ChildElementAccessor::Iterator ChildElementAccessor::begin() const noexcept {
    return {*this, 0};
}

ChildElementAccessor::Iterator ChildElementAccessor::end() const noexcept {
    return {*this, count_};
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
