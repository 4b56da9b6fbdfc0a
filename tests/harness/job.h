// One call of one function on laid-out operands, run by the library and by the slow evaluation, and compared bit for bit.
#pragma once
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "arena.h"
#include "forms.h"

namespace harness {

enum class Values { ordinary, special, zeros };

struct JobPlan {
    std::map<std::string, int32_t> sizes;                            // the function's integer arguments, count included
    std::map<std::string, Pattern> patterns;                         // by operand; "" for all others
    std::map<std::string, std::pair<std::string, int64_t>> overlay;  // operand -> (operand laid before it, bytes from its start)
    Values values = Values::ordinary;
    int threads = 1;
    int laterThreads = -1;  // the answer to the second question, where it differs
    int64_t gap = 128;      // bytes between operands
    // Operands, tables and lists between closed pages, and of each operand the bytes behind it that may be touched.
    Guard guard = Guard::none;
    std::function<int64_t(const Operand&)> beyond;
    uint64_t seed = 1;
};

class Job;

// What an evaluation sees: its operands in the model image, objects counted from the start of the whole array.
template <class T> class View {
public:
    View(char* imageStart, const Operand& described) : image(imageStart), operand(described) {}
    T get(int object, int row, int col) const { return load<T>(at(object, row, col)); }
    void set(int object, int row, int col, T value) const { store<T>(at(object, row, col), value); }
    T get(int object, int col) const { return get(object, 0, col); }
    void set(int object, int col, T value) const { set(object, 0, col, value); }
    char* at(int object, int row, int col) const { return image + operand.offset(index(object), row, col); }
    // For rules that look at addresses: the pointer argument of a call whose first object is this one.
    uintptr_t address(int object) const { return reinterpret_cast<uintptr_t>(at(object, 0, 0)); }
    int64_t stride0() const { return operand.stride0; }
    int64_t stride1() const { return operand.stride1; }
    int64_t stride2() const { return operand.stride2; }
    int rows() const { return operand.logicalRows(); }
    int cols() const { return operand.logicalCols(); }

private:
    int index(int object) const { return operand.arg.array ? object : 0; }
    char* image;
    const Operand& operand;
};

template <class T> class Model {
public:
    explicit Model(Job& described) : job(described) {}
    View<T> view(const std::string& name) const;
    View<int32_t> indices(const std::string& name) const;  // pivots and other integers
    // The library's own result, for sums whose order is free.
    View<T> answer(const std::string& name) const;
    int size(const std::string& name) const;
    T real(const std::string& name) const;
    const Function& function() const;
    const std::string& kernel() const;  // "", "_S2", "_P", "_L", "_LS2"

private:
    Job& job;
};

// The slow evaluation of a family: what the kernel does for `n` objects from `first` on. Register an object of this type
// (static, in the family's oracle file) under the groups it serves.
struct Oracle {
    using Single = int32_t (*)(const Model<float>&, int first, int n);
    using Double = int32_t (*)(const Model<double>&, int first, int n);
    // Turns the random sources into ones that suit the family (Job::put): factors with their pivots, definite matrices, and
    // among them objects that fail. Called after the filling; may leave the job as it is, so that any input occurs.
    using Prepare = void (*)(Job& job, Random& random);
    Oracle(const std::vector<std::string>& groups, Single f, Double d, Prepare p = nullptr);
    static const Oracle* find(const std::string& group);
    Single single;
    Double real;
    Prepare prepare;
};

class Job {
public:
    Job(const Function& described, const JobPlan& wanted);
    Job(const Job&) = delete;

    // Runs both and compares. Empty if all agrees, else what differs.
    std::string check();
    // The library alone; the model image keeps what was before.
    int32_t runLibrary();
    int32_t runModel(std::set<int32_t>& acceptable);
    std::string differences();
    std::string describe() const;
    bool goesParallel() const;
    // Puts a value of the caller's choice into an operand, in both images.
    template <class T> void put(const std::string& name, int object, int row, int col, T value)
    {
        for (char* image : {arena.live(), arena.model()}) {
            store<T>(image + operands.at(name).offset(object, row, col), value);
        }
    }
    int expectedQuestions() const;

    const Function& function;
    JobPlan plan;
    Arguments arguments;
    std::map<std::string, Operand> operands;
    std::vector<std::string> laid;  // names, in the order of the arguments
    Arena arena;
    std::string kernel;

private:
    void layOut(Random& random);
    void fenceTables();
    void fill(Random& random);
    template <class T> void fillAs(Random& random);
    template <class T> std::string differencesAs();
    template <class T> void forgiveNaN();
    std::string owner(int64_t offset) const;
    std::string stoppedNear(const char* address) const;
    std::vector<OpenPages> pages, tablePages;
    Arena tables;  // copies of tables and lists, where they are fenced
    std::string stopped;
};

// The defaults of a size argument for searches and walks: every size n, agreeing ones agree.
std::map<std::string, int32_t> equalSizes(const Function& function, int n, int count);

template <class T> View<T> Model<T>::view(const std::string& name) const
{
    return View<T>(job.arena.model(), job.operands.at(name));
}
template <class T> View<int32_t> Model<T>::indices(const std::string& name) const
{
    return View<int32_t>(job.arena.model(), job.operands.at(name));
}
template <class T> View<T> Model<T>::answer(const std::string& name) const
{
    return View<T>(job.arena.live(), job.operands.at(name));
}
template <class T> int Model<T>::size(const std::string& name) const { return job.arguments.integers.at(name); }
template <class T> T Model<T>::real(const std::string& name) const { return T(job.arguments.reals.at(name)); }
template <class T> const Function& Model<T>::function() const { return job.function; }
template <class T> const std::string& Model<T>::kernel() const { return job.kernel; }

}  // namespace harness
