// Stands for other programs on the computer. Without arguments it leaves the file "<itself>.started" behind,
// as a companion would show that it runs. With one it says so and runs until its input ends; "stubborn"
// ignores the request to end.
#include <csignal>
#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (argc == 1) {
        std::ofstream(std::string(argv[0]) + ".started") << "started";
        return 0;
    }
    if (std::string(argv[1]) == "stubborn") {
        std::signal(SIGTERM, SIG_IGN);
    }
    std::cout << "ready" << std::endl;
    std::cin.get();
    return 0;
}
