#include "picture/tiff_memory.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace tarnwick {
namespace {

std::span<const std::uint8_t> Data(const TiffMemory& memory) {
  return memory.input.empty() ? std::span<const std::uint8_t>(memory.bytes) : memory.input;
}

tmsize_t Read(thandle_t handle, void* buffer, tmsize_t size) {
  auto* memory = static_cast<TiffMemory*>(handle);
  const std::span<const std::uint8_t> data = Data(*memory);
  if (size <= 0 || memory->at >= data.size()) return 0;
  const auto count =
      std::min<std::size_t>(static_cast<std::size_t>(size), data.size() - memory->at);
  std::memcpy(buffer, data.data() + memory->at, count);
  memory->at += count;
  return static_cast<tmsize_t>(count);
}

tmsize_t Write(thandle_t handle, void* buffer, tmsize_t size) {
  auto* memory = static_cast<TiffMemory*>(handle);
  if (size <= 0 || !memory->input.empty()) return size <= 0 ? 0 : -1;
  const auto count = static_cast<std::size_t>(size);
  if (memory->at + count > memory->bytes.size()) memory->bytes.resize(memory->at + count);
  std::memcpy(memory->bytes.data() + memory->at, buffer, count);
  memory->at += count;
  return size;
}

toff_t Seek(thandle_t handle, toff_t offset, int whence) {
  auto* memory = static_cast<TiffMemory*>(handle);
  const toff_t size = Data(*memory).size();
  const toff_t base = whence == SEEK_CUR ? memory->at : whence == SEEK_END ? size : 0;
  memory->at = base + offset;
  return memory->at;
}

int Close(thandle_t) { return 0; }

toff_t Size(thandle_t handle) { return Data(*static_cast<TiffMemory*>(handle)).size(); }

int KeepComplaint(TIFF*, void* user, const char*, const char* format, va_list arguments) {
  char text[512];
  std::vsnprintf(text, sizeof text, format, arguments);
  static_cast<TiffMemory*>(user)->complaint = text;
  return 1;
}

int IgnoreWarning(TIFF*, void*, const char*, const char*, va_list) { return 1; }

}  // namespace

TiffHandle OpenTiffMemory(TiffMemory& memory, const char* mode) {
  std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                           &TIFFOpenOptionsFree);
  TIFFOpenOptionsSetErrorHandlerExtR(options.get(), KeepComplaint, &memory);
  TIFFOpenOptionsSetWarningHandlerExtR(options.get(), IgnoreWarning, nullptr);
  return TiffHandle(TIFFClientOpenExt("memory", mode, &memory, Read, Write, Seek, Close, Size,
                                      nullptr, nullptr, options.get()));
}

}  // namespace tarnwick
