#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace vistrel {

// What an accessibility element handle holds: on macOS a retained AXUIElementRef,
// compared with CFEqual and hashed with CFHash; in the simulator a node of its tree.
class AXElementHandle {
  public:
    virtual ~AXElementHandle() = default;
    virtual bool equals(const AXElementHandle& other) const = 0;
    virtual std::size_t hash() const = 0;
};

// A reference to one element of another process's accessibility tree. Copies share the
// handle; two references are equal when they name the same element, even if they were
// obtained separately. A default-made reference names nothing.
class AXElement {
  public:
    AXElement() = default;
    explicit AXElement(std::shared_ptr<const AXElementHandle> handle)
        : handle_(std::move(handle)) {}

    explicit operator bool() const { return handle_ != nullptr; }
    const AXElementHandle* handle() const { return handle_.get(); }
    std::size_t hash() const { return handle_ ? handle_->hash() : 0; }

    friend bool operator==(const AXElement& a, const AXElement& b) {
        if (!a.handle_ || !b.handle_) return a.handle_ == b.handle_;
        return a.handle_->equals(*b.handle_);
    }

  private:
    std::shared_ptr<const AXElementHandle> handle_;
};

}  // namespace vistrel

template <>
struct std::hash<vistrel::AXElement> {
    std::size_t operator()(const vistrel::AXElement& element) const { return element.hash(); }
};
