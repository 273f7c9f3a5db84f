// The CryptoAPI refusing one step or another.
#include <set>

#include <windows.h>
#include <gtest/gtest.h>
// After the above, which it needs.
#include <wincrypt.h>

#include "definition/FileCipher.h"

namespace {

enum class Step { Acquire, AcquireNew, CreateHash, HashData, DeriveKey, Encrypt, Decrypt };

std::set<Step> refused;

template <typename... Arguments>
BOOL Unless(Step step, const char* function, Arguments... arguments) {
  using Function = BOOL(WINAPI*)(Arguments...);
  const FARPROC real = GetProcAddress(LoadLibraryW(L"advapi32.dll"), function);
  return refused.count(step) == 0 &&
         reinterpret_cast<Function>(reinterpret_cast<void*>(real))(arguments...);
}

}  // namespace

// The pointers that calls of the platform's functions go through.
extern "C" {
decltype(&CryptAcquireContextW) __imp_CryptAcquireContextW =
    [](HCRYPTPROV* provider, LPCWSTR container, LPCWSTR name, DWORD type, DWORD flags) {
      const Step step = flags == CRYPT_NEWKEYSET ? Step::AcquireNew : Step::Acquire;
      const auto acquire = [&](DWORD how) {
        return Unless(step, "CryptAcquireContextW", provider, container, name, type, how);
      };
      // A new container may be there already.
      return acquire(flags) || (flags == CRYPT_NEWKEYSET && acquire(0)) ? TRUE : FALSE;
    };
decltype(&CryptCreateHash) __imp_CryptCreateHash = [](auto... arguments) {
  return Unless(Step::CreateHash, "CryptCreateHash", arguments...);
};
decltype(&CryptHashData) __imp_CryptHashData = [](auto... arguments) {
  return Unless(Step::HashData, "CryptHashData", arguments...);
};
decltype(&CryptDeriveKey) __imp_CryptDeriveKey = [](auto... arguments) {
  return Unless(Step::DeriveKey, "CryptDeriveKey", arguments...);
};
decltype(&CryptEncrypt) __imp_CryptEncrypt = [](auto... arguments) {
  return Unless(Step::Encrypt, "CryptEncrypt", arguments...);
};
decltype(&CryptDecrypt) __imp_CryptDecrypt = [](auto... arguments) {
  return Unless(Step::Decrypt, "CryptDecrypt", arguments...);
};
}

namespace tavrin {
namespace {

TEST(WindowsCipher, EveryStepIsNeededButAnExistingKeyContainer) {
  const struct {
    std::set<Step> refused;
    bool encrypts, decrypts;
  } cases[] = {
      {{}, true, true},
      {{Step::Acquire}, true, true},
      {{Step::Acquire, Step::AcquireNew}, false, false},
      {{Step::CreateHash}, false, false},
      {{Step::HashData}, false, false},
      {{Step::DeriveKey}, false, false},
      {{Step::Encrypt}, false, true},
      {{Step::Decrypt}, true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    refused = c.refused;
    unsigned char block = 0;
    EXPECT_EQ(EncryptBuffer(&block, 1), c.encrypts);
    EXPECT_EQ(block, c.encrypts ? 0x71 : 0);
    block = 0x71;
    EXPECT_EQ(DecryptBuffer(&block, 1), c.decrypts);
    EXPECT_EQ(block, c.decrypts ? 0 : 0x71);
    refused.clear();
  }
}

}  // namespace
}  // namespace tavrin
