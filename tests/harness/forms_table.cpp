// Columns:  families | forms | arguments | checks | work value | limits | traits
//
// Arguments: name=K[rows,cols] is the operand with the K-th code of the form (a number by value for code c); dst:v, dst:m a
// destination, an array as soon as a source is; :s one number an object, :n several, :i integers, :b scratch, :r a number
// by value; a bare name is an integer, and `count` stands only in forms with an array. Shapes in brackets are those of the
// object as the operation sees it, in braces those in memory. `name/prefix` parts a pointer from its strides.
//
// Checks, by layout: N pointers, C count, Z sizes, M agreement, S strides, O shifts, s stride0 with a count above 1 (S then
// covers the other strides only). S1 O1 test the source alone, S2 O2 the destinations.
//
// Limits, by layout S P L: dense/strided;64f. Traits: "M <condition>" agreement, ">=" parallel at the limit, "merge" the
// threads' statuses count, "32f" that type alone, kernels "one" or "none" where they are not the usual set.
// A "!" line names one function that departs from its row; "spare n" are entries behind the end of each of its tables.
namespace harness {

extern const char* const formsTable;
const char* const formsTable = R"(
@vv   = src1=1[1,length] src2=2[1,length] dst:v[1,length] length count
@vc   = src=1[1,length] val=2 dst:v[1,length] length count
@cv   = src=2[1,length] val=1 dst:v[1,length] length count
@xyz  = src1=1[1,3] src2=2[1,3] dst:v[1,3] count
@mm   = src1=1[height,width] src2=2[height,width] dst:m[height,width] width height count
@mc   = src=1[height,width] val=2 dst:m[height,width] width height count
@sq   = src=1[widthHeight,widthHeight]
@sqd  = dst:m[widthHeight,widthHeight]
@msrc = src1=1{src1Height,src1Width} src1Width src1Height
@mul  = @msrc src2=2{src2Height,src2Width} src2Width src2Height
@eig  = dstRe:n[widthHeight] dstIm:n[widthHeight] widthHeight count
@vbuf = buffer:b[(3*widthHeight+5)*widthHeight]

vokmAdd vokmSub | vv       | @vv | S:NZS P:NZO
vokmSub         | cv       | @cv | S:NZS P:NZO
vokmAdd vokmSub vokmMul | vc | @vc | S:NZS P:NZO
vokmAdd vokmSub | vav      | @vv | S:NZSC P:NZSCO L:NZSOC | (2*count+1)*length       | 20000 20000 40000;20000
vokmSub         | vva      | @vv | S:NCZS P:NCZSO L:NCZSO | (2*count+1)*length       | 20000 20000 40000;20000
vokmAdd vokmSub | vava     | @vv | S:NCZS P:NCZSO L:NCZSO | 3*length*count           | 20000 20000 40000;20000
vokmAdd vokmSub | vac      | @vc | S:NCZS P:NCZSO L:NCZSO | (2*count+1)*length       | 20000 20000 40000;20000
vokmAdd vokmSub | vca      | @vc | S:NCZS P:NCZSO L:NCZSO | length*count+length+count | 20000 20000 40000;20000
vokmAdd vokmSub | vaca     | @vc | S:NCZS P:NCZSO L:NCZSO | (2*length+1)*count       | 20000 20000 40000;20000
vokmSub         | cav      | @cv | S:NCZS P:NCZSO L:NCZSO | length*count+length+count | 20000 20000 40000;20000
vokmSub         | cava     | @cv | S:NCZS P:NCZSO L:NCZSO | (2*length+1)*count       | 20000 20000 40000;20000
vokmSub         | cva      | @cv | S:NCZS P:NCZSO L:NCZSO | 2*count+1                | 20000 20000 40000;20000
vokmMul         | vac      | @vc | S:NCZS P:NCZSO L:NCZSO | 2*length*count           | 36864/18432 9216 18432
vokmMul         | vca      | @vc | S:NCZS P:NCZSO L:NCZSO | length*count+length+count | 36864 9216 18432
vokmMul         | vaca     | @vc | S:NCZS P:NCZSO L:NCZSO | (2*length+1)*count       | 36864 9216 18432

vokmDotProduct | vv   | src1=1[1,length] src2=2[1,length] dst:s length       | S:NZS P:NZO
vokmDotProduct | vav  | src1=1[1,length] src2=2[1,length] dst:s length count | S:NCZS P:NCZSO L:NCZSO | (count+1)*length | 40000/20000 20000;40000 40000/20000
vokmDotProduct | vava | src1=1[1,length] src2=2[1,length] dst:s length count | S:NCZS P:NCZSO L:NCZSO | 2*length*count   | 40000/20000 20000;40000 40000/20000
vokmL2Norm     | v    | src=1[1,length] dst:s length       | S:NZS P:NZO
vokmL2Norm     | va   | src=1[1,length] dst:s length count | S:NCZS P:NCZSO L:NCZSO | length*count | 20000 20000 20000
vokmCrossProduct | vv   | @xyz | S:NS P:NO
vokmCrossProduct | vav  | @xyz | S:NSC P:NSCO L:NSOC | 2*count+1 | 20000 20000 40000;20000
vokmCrossProduct | vva  | @xyz | S:NCS P:NCSO L:NCSO | 2*count+1 | 20000 20000 40000;20000
vokmCrossProduct | vava | @xyz | S:NCS P:NCSO L:NCSO | 3*count   | 20000 20000 40000;20000
vokmSaxpy | vv      | @vv val:r | S:NZS P:NZO
vokmSaxpy | vav vva | @vv val:r | S:NCZS P:NCZSO L:NCZSO | (2*count+1)*length | 40000 40000 40000
vokmSaxpy | vava    | @vv val:r | S:NCZS P:NCZSO L:NCZSO | 3*length*count     | 40000 40000 40000
vokmLComb | vv      | @vv val1:r val2:r | S:NZS P:NZO
vokmLComb | vav     | @vv val1:r val2:r | S:NCZS P:NCZSO L:NCZSO | (2*count+1)*length | 20000 20000 40000/20000;20000
vokmLComb | vava    | @vv val1:r val2:r | S:NCZS P:NCZSO L:NCZSO | 3*length*count     | 20000 20000 40000/20000;20000
vokmAffineTransform3DH | mva | src1=1[4,4] src2=2[1,3] dst:v[1,3] count | S:NCS | 6*count+16 | 2000 | 32f merge

vokmCopy | ma | src=1[height,width] dst:m[height,width] width height count | SS:NZCSs LL:NZCSO PP:NZCOs SL:NZCSOs LS:NZCSOs SP:NZCSOs PS:NZCSOs LP:NZCSOs PL:NZCSOs | | | none
vokmCopy | va | src=1[1,length] dst:v[1,length] length count                | SS:NZCSs LL:NZCSO PP:NZCOs SL:NZCSOs LS:NZCSOs SP:NZCSOs PS:NZCSOs LP:NZCSOs PL:NZCSOs | | | none
vokmExtract | m t   | src=1[height,width] dst:n[width*height] width height       | S:NZS P:ZNO | | | none
vokmExtract | ma ta | src=1[height,width] dst:n[width*height] width height count | S:NZCS P:NZCOS L:NZCOS | | | none
vokmExtract | v     | src=1[1,length] dst:n[length] length       | S:NZS P:NZO | | | none
vokmExtract | va    | src=1[1,length] dst:n[length] length count | S:NZCS P:NZCOS L:NZCOS | | | none
vokmLoadIdentity | ma | dst=1[height,width] width height count   | S:NZCSs P:NZOCs L:NZCSO | | | none
vokmTranspose | m  | src=1[height,width] width height dst:m[width,height]       | S:NZS P:NZO
vokmTranspose | ma | src=1[height,width] width height dst:m[width,height] count | S:NCZS P:NCZSO L:NCZSO

vokmAdd | mm tm tt    | @mm | S:NZS P:NZO
vokmSub | mm mt tm tt | @mm | S:NZS P:NZO
vokmMul | mc tc       | @mc | S:NZS P:NZO
vokmAdd         | mam            | @mm | S:NCSZ P:NCZSO L:NCZSO | width*height*(2*count+1) | 36864/18432 9216 18432 | >=
vokmSub         | mam mma        | @mm | S:NCSZ P:NCZSO L:NCZSO | width*height*(2*count+1) | 36864/18432 9216 18432 | >=
vokmAdd vokmSub | mat tam tat    | @mm | S:NCZS P:NCZSO L:NCZSO | width*height*(2*count+1) | 36864/18432 9216 18432 | >=
vokmSub         | mta tma tta    | @mm | S:NCZS P:NCZSO L:NCZSO | width*height*(2*count+1) | 36864/18432 9216 18432 | >=
vokmAdd vokmSub | mama tama tata | @mm | S:NCZS P:NCZSO L:NCZSO | 3*width*height*count     | 36864/18432 9216 18432 | >=
vokmSub         | mata           | @mm | S:NCZS P:NCZSO L:NCZSO | 3*width*height*count     | 36864/18432 9216 18432 | >=
vokmMul         | mac tac        | @mc | S:NCZS P:NCZSO L:NCZSO | 2*width*height*count     | 35000 17000 35000/15000;35000

vokmMul | mm   | @mul dst:m[src1Height,src2Width]  | S:NZMS P:NZMO | | | M src1Width==src2Height
vokmMul | mt   | @mul dst:m[src1Height,src2Height] | S:NZMS P:NZMO | | | M src1Width==src2Width
vokmMul | tm   | @mul dst:m[src1Width,src2Width]   | S:NZMS P:NZMO | | | M src1Height==src2Height
vokmMul | tt   | @mul dst:m[src1Width,src2Height]  | S:NZMS P:NZMO | | | M src1Height==src2Width
vokmMul | mam  | @mul dst:m[src1Height,src2Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w2*h1)*count+w2*h2   | 36864/18432 9216 18432 | M src1Width==src2Height
vokmMul | mama | @mul dst:m[src1Height,src2Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w2*h1+w2*h2)*count   | 36864/18432 9216 18432 | M src1Width==src2Height
vokmMul | mat  | @mul dst:m[src1Height,src2Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+h1*h2)*count+w2*h2   | 36864/18432 9216 18432 | M src1Width==src2Width
vokmMul | mata | @mul dst:m[src1Height,src2Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+h1*h2+w2*h2)*count   | 36864/18432 9216 18432 | M src1Width==src2Width
vokmMul | mma  | @mul dst:m[src1Height,src2Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w2*h1+w2*h2)*count+w1*h1   | 36864/18432 9216 18432 | M src1Width==src2Height
vokmMul | mta  | @mul dst:m[src1Height,src2Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (h1*h2+w2*h2)*count+w1*h1   | 36864/18432 9216 18432 | M src1Width==src2Width
vokmMul | tam  | @mul dst:m[src1Width,src2Width] count   | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1*w2)*count+w2*h2   | 36864/18432 9216 18432 | M src1Height==src2Height
vokmMul | tama | @mul dst:m[src1Width,src2Width] count   | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1*w2+w2*h2)*count   | 36864/18432 9216 18432 | M src1Height==src2Height
vokmMul | tat  | @mul dst:m[src1Width,src2Height] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1*h2)*count+w2*h2   | 36864/18432 9216 18432 | M src1Height==src2Width
vokmMul | tata | @mul dst:m[src1Width,src2Height] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1*h2+w2*h2)*count   | 36864/18432 9216 18432 | M src1Height==src2Width
vokmMul | tma  | @mul dst:m[src1Width,src2Width] count   | S:NCZMS P:NCZMSO L:NCZMSO | (w2*h2+w1*w2)*count+w1*h1   | 36864/18432 9216 18432 | M src1Height==src2Height
vokmMul | tta  | @mul dst:m[src1Width,src2Height] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h2+w2*h2)*count+w1*h1   | 36864/18432 9216 18432 | M src1Height==src2Width

vokmMul | mv   | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Height] | S:NZMS P:NZMO | | | M src1Width==src2Len
vokmMul | tv   | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Width]  | S:NZMS P:NZMO | | | M src1Height==src2Len
vokmMul | mva  | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Height] count | S:NCZMS P:NCZMSO L:NCZMSO | w1*h1+(w1+h1)*count | 36864/18432 9216 18432 | M src1Width==src2Len
vokmMul | mav  | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+h1)*count+w1 | 36864/18432 9216 18432 | M src1Width==src2Len
vokmMul | mava | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1+h1)*count | 36864/18432 9216 18432 | M src1Width==src2Len
vokmMul | tva  | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | w1*h1+(w1+h1)*count | 36864/18432 9216 18432 | M src1Height==src2Len
vokmMul | tav  | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1)*count+h1 | 36864/18432 9216 18432 | M src1Height==src2Len
vokmMul | tava | @msrc src2=2[1,src2Len] src2Len dst:v[1,src1Width] count  | S:NCZMS P:NCZMSO L:NCZMSO | (w1*h1+w1+h1)*count | 36864/18432 9216 18432 | M src1Height==src2Len
vokmGaxpy | mv   | @msrc src2=2[1,src2Len] src2Len src3=2[1,src3Len] src3Len dst:v[1,src1Height]       | S:NZMS P:NZMO | | | M src1Width==src2Len&&src1Height==src3Len
vokmGaxpy | mva  | @msrc src2=2[1,src2Len] src2Len src3=2[1,src3Len] src3Len dst:v[1,src1Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (src2Len+2*src3Len)*count         | 5000 5000 5000 | M src1Width==src2Len&&src1Height==src3Len
vokmGaxpy | mvav | @msrc src2=2[1,src2Len] src2Len src3=3[1,src3Len] src3Len dst:v[1,src1Height] count | S:NCZMS P:NCZMSO L:NCZMSO | (src2Len+src3Len)*count+src3Len   | 5000 5000 5000 | M src1Width==src2Len&&src1Height==src3Len
vokmTrace    | m  | @sq widthHeight dst:s       | S:NZS P:NZO
vokmTrace    | ma | @sq widthHeight dst:s count | S:NCZS P:NCZSO L:NCZSO | n*count | 20000 20000 40000/20000;20000
vokmFrobNorm | m  | src=1[height,width] width height dst:s       | S:NZS P:NZO | | | one
vokmFrobNorm | ma | src=1[height,width] width height dst:s count | S:NCZS P:NCZSO L:NCZSO | width*height*count | 20000 20000 40000/20000;20000

vokmLUDecomp | m  | @sq pivot:i[widthHeight] @sqd widthHeight       | S:NZS P:NZO
vokmLUDecomp | ma | @sq pivot:i[widthHeight] @sqd widthHeight count | S:NCZS P:NCZSO L:NCZSO | n*n*count | 20000 20000 40000/20000;20000 | merge
vokmLUBackSubst | mv   | @sq pivot:i[widthHeight] src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight       | S:NZS P:NZO
vokmLUBackSubst | mva  | @sq pivot:i[widthHeight] src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight count | S:NCZS P:NCZSO L:NCZSO | n*n+2*n*count   | 1700 1700 1700
vokmLUBackSubst | mava | @sq pivot:i[widthHeight] src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight count | S:NCZS P:NCZSO L:NCZSO | (n*n+2*n)*count | 1700 1700 1700
vokmDet    | m  | @sq widthHeight buffer:b[n*n+n] dst:s       | S:NZS P:NZO
vokmDet    | ma | @sq widthHeight buffer:b[n*n+n] dst:s count | S:NCZS P:NCZSO L:NCZSO | n*count | 20000 20000 40000/20000;20000
vokmInvert | m  | @sq buffer:b[n*n+n] @sqd widthHeight       | S:NZS P:NZO
vokmInvert | ma | @sq buffer:b[n*n+n] @sqd widthHeight count | S:NCZS P:NCZSO L:NCZSO | 2*n*count*(2<=n) | 20000 20000 40000/20000;20000 | merge
vokmCholeskyDecomp | m  | @sq @sqd widthHeight       | S:NZS P:NZO
vokmCholeskyDecomp | ma | @sq @sqd widthHeight count | S:NCZS P:NCZSO L:NCZSO | n*n*count | 7500;2000 2000 2000;720/2000 | merge
vokmCholeskyBackSubst | mv   | @sq src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight       | S:NZS P:NZO
vokmCholeskyBackSubst | mva  | @sq src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight count | S:NCZS P:NCZSO L:NSOZC | n*n+2*n*count   | 1200;720 720 720
vokmCholeskyBackSubst | mava | @sq src2=2[1,widthHeight] dst:v[1,widthHeight] widthHeight count | S:NCZS P:NCZSO L:NCZSO | (n*n+2*n)*count | 2050/1700;1700 1700;2050 1700
vokmQRDecomp | m  | src=1[height,width] buffer:b[height] dst:m[height,width] width height       | S:NZSM P:NZOM | | | M width<=height
vokmQRDecomp | ma | src=1[height,width] buffer:b[height] dst:m[height,width] width height count | S:NCZSM P:NCZSOM L:NCZSOM | 2*width*height*count | 2800 1800 1800 | merge M width<=height
vokmQRBackSubst | mv   | src=1[height,width] buffer:b[height] src2=2[1,height] dst:v[1,width] width height       | S:NZSM P:NZOM | | | M width<=height
vokmQRBackSubst | mva  | src=1[height,width] buffer:b[height] src2=2[1,height] dst:v[1,width] width height count | S:NCZSM P:NCZSOM L:NCZSOM | width*height+(width+height)*count | 2800 1800 1800 | M width<=height
vokmQRBackSubst | mava | src=1[height,width] buffer:b[height] src2=2[1,height] dst:v[1,width] width height count | S:NCZSM P:NCZSOM L:NCZSOM | (width*height+width+height)*count | 2800 1800 1800 | M width<=height

vokmEigenValuesSym | m  | @sq buffer:b[n*n] dst:n[widthHeight] widthHeight       | S:NZS P:NZO
vokmEigenValuesSym | ma | @sq buffer:b[n*n] dst:n[widthHeight] widthHeight count | S:NZCS P:NZCOS L:NZCOS | (n*n+n)*count | 20000 20000 40000/20000;20000 | merge
vokmEigenValuesVectorsSym | m  | @sq buffer:b[n*n] dstVectors/dst:m[n,n] dstValues:n[n] widthHeight       | S:NZS P:NZO
vokmEigenValuesVectorsSym | ma | @sq buffer:b[n*n] dstVectors/dst:m[n,n] dstValues:n[n] widthHeight count | S:NZCS P:NZCOS L:NZCOS | (2*n*n+n)*count | 1700 1700 1700 | merge
vokmEigenValues | m  | @sq @eig buffer:b[(n+5)*n] | S:NZS P:NZO | | | one
vokmEigenValues | ma | @sq @eig buffer:b[(n+5)*n] | S:NZCS P:NZCOS L:NZCOS | (n*n+n)*count | 10000 10000 10000 | merge one
vokmEigenValuesVectors | m  | @sq dstRight:m[n,n] dstLeft:m[n,n] @eig @vbuf | S:NZS P:NZO | | | one
vokmEigenValuesVectors | ma | @sq dstRight:m[n,n] dstLeft:m[n,n] @eig @vbuf | S:NZCS P:NZCO1S1O2S2 L:NZCO1S1O2S2 | (3*n*n+n)*count | 7000 7000 7000 | merge one
vokmEigenValuesVectorsRight vokmEigenValuesVectorsLeft | m  | @sq @sqd @eig @vbuf | S:NZS P:NZO | | | one
vokmEigenValuesVectorsRight vokmEigenValuesVectorsLeft | ma | @sq @sqd @eig @vbuf | S:NZCS P:NZCO1S1O2S2 L:NZCO1S1O2S2 | (3*n*n+n)*count | 7000 7000 7000 | merge one
vokmEigenValuesGetBufSize vokmEigenValuesVectorsGetBufSize | - | widthHeight bufSize:i[1] | S:NZ | | | none

! vokmAdd_vca_64f_P   order NCZS
! vokmSub_cav_32f_P   order NCZS
! vokmAdd_vaca_32f_P  untested srcStride0
! vokmSub_vva_64f_P          serial
! vokmCrossProduct_vva_64f_P serial
! vokmMul_mm_32f_P   spare 9
! vokmMul_tt_64f_P   spare 9
! vokmExtract_v_64f_P        order ZNO
! vokmLoadIdentity_ma_64f_P  order NZCOs
! vokmCopy_va_32f_LP  order NZCOSs
! vokmCopy_va_32f_SP  order NZCOSs
)";

}  // namespace harness
