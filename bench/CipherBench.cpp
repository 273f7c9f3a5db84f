// The file cipher, against RC4 of OpenSSL's legacy provider.
#include <memory>
#include <stdexcept>
#include <vector>

#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <openssl/provider.h>

#include "definition/FileCipher.h"

namespace tavrin::bench {
namespace {

using Block = std::vector<unsigned char>;

void Library(Block* block) {
  EncryptBuffer(block->data(), static_cast<std::uint32_t>(block->size()));
}

void OpenSsl(Block* block) {
  static const std::unique_ptr<OSSL_PROVIDER, int (*)(OSSL_PROVIDER*)> kLegacy(
      OSSL_PROVIDER_load(nullptr, "legacy"), OSSL_PROVIDER_unload);
  const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> context(EVP_CIPHER_CTX_new(),
                                                                           EVP_CIPHER_CTX_free);
  const unsigned char key[16] = {1, 2, 3};
  int length = 0;
  if (EVP_EncryptInit_ex(context.get(), EVP_rc4(), nullptr, key, nullptr) != 1 ||
      EVP_EncryptUpdate(context.get(), block->data(), &length, block->data(),
                        static_cast<int>(block->size())) != 1) {
    throw std::runtime_error("no RC4");
  }
}

void Cipher(benchmark::State& state, void (*apply)(Block*)) {
  Block block(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    apply(&block);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

BENCHMARK_CAPTURE(Cipher, library, Library)->RangeMultiplier(32)->Range(1 << 10, 1 << 26);
BENCHMARK_CAPTURE(Cipher, openssl, OpenSsl)->RangeMultiplier(32)->Range(1 << 10, 1 << 26);

}  // namespace
}  // namespace tavrin::bench
