# SPDX-License-Identifier: MIT
#
# Installs ztk and the framework with Homebrew. This formula was written without a
# Mac and has never run. README.md in this folder describes the effects of the folder
# in which the framework is installed.
class Ztkfunc < Formula
  desc "Settings of the USB DJ mixer VRM-D6"
  homepage "https://tarvix.example/ztkfunc"
  # The address and the checksum of a release have to be added here. Until then, use
  # "brew install --HEAD".
  head "https://tarvix.example/ztkfunc.git", branch: "main"
  license "MIT"

  depends_on "cmake" => :build
  depends_on "nlohmann-json" => :build
  # With Qt the formula also installs ztk-window.
  depends_on "qt" => :optional

  def install
    system "cmake", "-S", ".", "-B", "build", *std_cmake_args,
           "-DBUILD_TESTING=OFF", "-DZTK_FRAMEWORK_DIR=#{frameworks}"
    system "cmake", "--build", "build"
    system "cmake", "--install", "build"
  end

  def caveats
    <<~EOS
      The library searches its texts and versions in /Library/Frameworks (from
      macOS 11 on, below /System/Library), not in #{opt_frameworks}.
      So ztk prints warnings with its own sentences. On macOS 10.11 to 10.15,
      the library finds its texts through this link:
        sudo ln -s #{opt_frameworks}/VRM-D6Setup.framework /Library/Frameworks/
    EOS
  end

  test do
    assert_match version.to_s, shell_output("#{bin}/ztk --version") if build.stable?
    assert_match "no mixer is attached", shell_output("#{bin}/ztk status 2>&1", 3)
  end
end
