#include <korvane/runtime/RuntimeError.h>

#include <exception>
#include <new>
#include <utility>

namespace Korvane {

namespace {

const char* usualDescription(int number) {
    switch (number) {
    case RuntimeError::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case RuntimeError::Overflow:
        return "Overflow";
    case RuntimeError::OutOfMemory:
        return "Out of memory";
    case RuntimeError::SubscriptOutOfRange:
        return "Subscript out of range";
    case RuntimeError::DivisionByZero:
        return "Division by zero";
    case RuntimeError::TypeMismatch:
        return "Type mismatch";
    case RuntimeError::FileNotFound:
        return "File not found";
    case RuntimeError::DeviceIo:
        return "Device I/O error";
    case RuntimeError::DiskFull:
        return "Disk full";
    case RuntimeError::PermissionDenied:
        return "Permission denied";
    case RuntimeError::InvalidUseOfNull:
        return "Invalid use of Null";
    case RuntimeError::DuplicateKey:
        return "This key is already in use";
    case RuntimeError::InvalidArgument:
        return "An argument is of the wrong type or out of its range";
    case RuntimeError::NoCurrentRecord:
        return "There is no current record";
    case RuntimeError::ReadOnlyRecordset:
        return "The recordset does not allow changes";
    case RuntimeError::TransactionOpen:
        return "Not possible while a transaction is open";
    case RuntimeError::ItemNotFound:
        return "There is no item of that name or index";
    case RuntimeError::ObjectClosed:
        return "Not possible while the object is closed";
    case RuntimeError::ObjectOpen:
        return "Not possible while the object is open";
    case RuntimeError::InvalidConnection:
        return "The connection is missing, closed or not valid here";
    case RuntimeError::DatabaseFailure:
        return "The database reported a failure";
    default:
        return "Unknown error";
    }
}

} // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, usualDescription(number)) {}

RuntimeError::RuntimeError(int number, std::string description, int nativeCode)
    : std::runtime_error(description), mNumber(number), mDescription(std::move(description)),
      mNativeCode(nativeCode) {}

RuntimeError currentError() {
    try {
        throw;
    } catch (const RuntimeError& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return RuntimeError(RuntimeError::OutOfMemory);
    } catch (const std::exception& e) {
        return RuntimeError(RuntimeError::InvalidProcedureCall, e.what());
    } catch (...) {
        return RuntimeError(RuntimeError::InvalidProcedureCall);
    }
}

} // namespace Korvane
