#include "zilvo/platform/values/Status.h"

#include <utility>

namespace zilvo::platform {

const char* nameOf(Status status) noexcept {
    switch (status) {
    case Status::Ok:
        return "ok";
    case Status::False:
        return "no";
    case Status::NotImplemented:
        return "not implemented";
    case Status::NoInterface:
        return "no such interface";
    case Status::NullPointer:
        return "null pointer";
    case Status::Failed:
        return "failed";
    case Status::UnexpectedCall:
        return "unexpected call";
    case Status::UnknownMember:
        return "unknown member";
    case Status::ArgumentCount:
        return "argument count";
    case Status::FileNotFound:
        return "file not found";
    case Status::OutOfMemory:
        return "out of memory";
    case Status::BadComponent:
        return "not a component";
    case Status::InUse:
        return "in use";
    case Status::ClassNotAvailable:
        return "class not available";
    case Status::RegistrationsUnreadable:
        return "registrations unreadable";
    case Status::RegistrationsUnwritable:
        return "registrations unwritable";
    case Status::Overflow:
        return "overflow";
    case Status::SubscriptOutOfRange:
        return "subscript out of range";
    case Status::TypeMismatch:
        return "type mismatch";
    case Status::MissingElement:
        return "missing element";
    case Status::InvalidPropertyValue:
        return "invalid property value";
    case Status::ReadOnlyProperty:
        return "read-only property";
    case Status::WriteOnlyProperty:
        return "write-only property";
    }
    return "unknown status";
}

Failure::Failure(Status status, std::string message) : status_(status), message_(std::move(message)) {}

Failure::~Failure() = default;

namespace {

void leaveMessage(ErrorInfo* error, const std::string& context, const char* message) noexcept {
    if (!error) return;
    try {
        const bool isNamed = std::string_view(message).starts_with(context);
        error->message = isNamed ? message : context + ": " + message;
    } catch (const std::bad_alloc&) {
        error->message.clear();
    }
}

} // namespace

Status statusOfCurrentException(ErrorInfo* error, const std::string& context) noexcept {
    try {
        throw;
    } catch (const Failure& failure) {
        leaveMessage(error, context, failure.what());
        return failure.status();
    } catch (const std::bad_alloc&) {
        leaveMessage(error, context, "out of memory");
        return Status::OutOfMemory;
    } catch (const std::exception& exception) {
        leaveMessage(error, context, exception.what());
        return Status::Failed;
    } catch (...) {
        leaveMessage(error, context, "failed for a reason that it did not state");
        return Status::Failed;
    }
}

void throwUnlessOk(Status status, const ErrorInfo& error) {
    if (succeeded(status)) return;
    throw Failure(status, error.message.empty() ? nameOf(status) : error.message);
}

} // namespace zilvo::platform
