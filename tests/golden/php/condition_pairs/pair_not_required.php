$condi3 = $_POST["condi3"];
$follo5 = $_POST["follo5"];
validate_radio($condi3d,$follo5," 1b. Please tell us how many guests are in your party for question 1b");

