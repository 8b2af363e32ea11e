#include "zilvo/platform/component/ClassFactory.h"

#include <memory>

namespace zilvo::platform {

void ClassFactory::Release() noexcept {
    if (--references_ == 0) std::default_delete<ClassFactory>()(this);
}

Status ClassFactory::CreateInstance(Ref<Object>& instance, ErrorInfo* error) noexcept {
    return atTheEdge(
        error, [&] { return toUtf8(entry_.identity.name); }, [&] { instance = entry_.create(lock_.module()); });
}

Status getClassObject(ComponentModule& module, const Guid& classId, const Guid& interfaceId, void** object) noexcept {
    *object = nullptr;
    if (classId == InformationClass && interfaceId == InformationInterface) {
        *object = &module;
        return Status::Ok;
    }
    const ClassEntry* entry = module.description().find(classId);
    if (!entry) return Status::ClassNotAvailable;
    if (interfaceId != ClassFactoryInterface) return Status::NoInterface;
    return atTheEdge(
        nullptr, [] { return std::string(); },
        [&] {
            auto factory = std::make_unique<ClassFactory>(module, *entry);
            factory->AddRef();
            *object = factory.release();
        });
}

Status canUnloadNow(const ComponentModule& module) noexcept {
    return module.canUnload() ? Status::Ok : Status::False;
}

} // namespace zilvo::platform
